#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace loquitor {

/// The most characters of a phrase that a settings read gives back.
inline constexpr std::size_t MaxStoredPhrase = 255;

/// What the settings file holds of `zPhrase`: runs of line breaks as one blank, no blanks around
/// it. A read gives back its first MaxStoredPhrase characters.
std::string StoredForm(std::string_view zPhrase);

}  // namespace loquitor
