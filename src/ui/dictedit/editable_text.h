#pragma once

#include <QString>
#include <cstddef>
#include <filesystem>
#include <string>

namespace loquitor {

/// The largest dictionary that the editor shows. With more lines or bytes the box takes minutes and
/// gigabytes, and it lays a whole line out each time it draws a part of it.
struct EditableLimits {
  static constexpr std::size_t Bytes = std::size_t{64} << 20;
  static constexpr std::size_t Lines = 2'000'000;
  static constexpr std::size_t LineLength = 65'536;
};

/// The text of a dictionary file for the box.
struct EditableText {
  std::string text;  ///< lines end in LF; empty after a failure
  QString failure;   ///< a message why the file cannot be shown; empty when it can
};

/// Reads `zFile`, unless it is beyond EditableLimits.
EditableText ReadEditableText(const std::filesystem::path& zFile);

}  // namespace loquitor
