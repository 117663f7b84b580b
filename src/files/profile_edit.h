#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace loquitor {

/// One value of a section.
struct ProfileValue {
  std::string key;
  std::string value;
};

/// A change of a text: `replacement` takes the place of the bytes from `begin` to before `end`.
struct ProfileEdit {
  std::size_t begin;
  std::size_t end;
  std::string replacement;
};

/// `zValue` as a profile file stores it: without its line breaks.
std::string InOneLine(std::string_view zValue);

/// The change that stores InOneLine of `zValue` under `zSection` and `zKey` in the profile text
/// `zText`: a new line for the key that a read would find (its spelling is kept), or the key after
/// the last line of its section that is not blank, or the section at the end of the text. Lines
/// that it makes end in CR LF; a last line without an end gets one first. When the value is there
/// already, the change is empty (it replaces nothing by nothing).
///
/// Nothing when the format cannot hold a name: an empty key, one with an equals sign, one that
/// begins like a header or a comment, a section with a closing bracket, a line break in either.
std::optional<ProfileEdit> EditForValue(std::string_view zText, std::string_view zSection,
                                        std::string_view zKey, std::string_view zValue);

/// `zText` with all `zValues` of `zSection` stored, as EditForValue would one after the other.
/// Costs one pass. Nothing when the format cannot hold one of the names.
std::optional<std::string> TextWithValues(std::string_view zText, std::string_view zSection,
                                          std::span<const ProfileValue> zValues);

}  // namespace loquitor
