#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace loquitor {

/// A change of a text: the bytes from `begin` up to `end` give way to `replacement`.
struct ProfileEdit {
  std::size_t begin;
  std::size_t end;
  std::string replacement;
};

/// `zValue` as it stands in its line: each run of line breaks is one blank.
std::string InOneLine(std::string_view zValue);

/// The change that stores `zValue` under `zSection` and `zKey` in the profile text `zText`: a new
/// line for the key that a read would find (its spelling kept), or the key behind the last line of
/// its section that is not blank, or the section at the end of the text. Lines that it makes end in
/// CR LF; a last line without an end gets one first. The value stands there as InOneLine
/// makes it. An empty change (nothing replaced by nothing) when it does already.
///
/// Nothing when the format cannot hold a name: an empty key, one with an equals sign, one that
/// begins like a header or a comment, a section with a closing bracket, a line break in either.
std::optional<ProfileEdit> EditForValue(std::string_view zText, std::string_view zSection,
                                        std::string_view zKey, std::string_view zValue);

}  // namespace loquitor
