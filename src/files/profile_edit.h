#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace loquitor {

/// A key of a section and its value.
struct ProfileValue {
  std::string key;
  std::string value;
};

/// A change of a text: `replacement` takes the place of the bytes from offset `begin` up to, not
/// including, offset `end`.
struct ProfileEdit {
  std::size_t begin;
  std::size_t end;
  std::string replacement;
};

/// The change that stores InOneLine of `zValue` under `zSection` and `zKey` in the profile text
/// `zText`:
///
/// - a new line in place of the line that a read would find; the key keeps its spelling,
/// - without such a line, a new line after the last line of the section that is not blank,
/// - without such a section, a new section at the end of the text.
///
/// New lines end in CR LF. A last line without a line end gets one first. When the value is there
/// already, the change is empty: it replaces nothing by nothing.
///
/// Nothing when the format cannot hold a name (without the blanks around it): an empty key, a key
/// with an equals sign, a key that begins like a header or a comment, a section with a closing
/// bracket, or a line break in either.
std::optional<ProfileEdit> EditForValue(std::string_view zText, std::string_view zSection,
                                        std::string_view zKey, std::string_view zValue);

/// `zText` with all `zValues` of `zSection` stored, with the same result as EditForValue for one
/// after the other, in one pass. Nothing when the format cannot hold one of the names.
std::optional<std::string> TextWithValues(std::string_view zText, std::string_view zSection,
                                          std::span<const ProfileValue> zValues);

}  // namespace loquitor
