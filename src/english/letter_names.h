#pragma once

#include <string_view>

#include "english/phones.h"

namespace loquitor {

/// The phones of a letter's name. `zLetter` is a letter a to z, or such a letter and an s for the
/// plural.
WordPhones LetterName(std::string_view zLetter);

}  // namespace loquitor
