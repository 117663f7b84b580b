#pragma once

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

/// `zText`, the text of a profile file, with `zValues` stored in section `zSection`, one after the
/// other:
///
/// - a new line in place of the line that a read would find; the key keeps its spelling. A value
///   that is there already is left as it is,
/// - without such a line, a new line after the last line of the section that is not blank,
/// - without such a section, a new section at the end of the text.
///
/// Values are stored by InOneLine. New lines end in CR LF. A last line without a line end gets one
/// first.
///
/// Nothing when the format cannot hold a name (without the blanks around it): an empty key, a key
/// with an equals sign, a key that begins like a header or a comment, a section with a closing
/// bracket, or a line break in either.
std::optional<std::string> TextWithValues(std::string_view zText, std::string_view zSection,
                                          std::span<const ProfileValue> zValues);

}  // namespace loquitor
