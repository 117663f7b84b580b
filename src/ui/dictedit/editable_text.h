#pragma once

#include <QString>
#include <cstddef>
#include <filesystem>
#include <string>

namespace loquitor {

/// The largest dictionary that the editor shows. With more bytes or lines the box needs minutes and
/// gigabytes. Lines are limited because it lays out a whole line each time it draws a part of it.
struct EditableLimits {
  static constexpr std::size_t Bytes = std::size_t{64} << 20;
  static constexpr std::size_t Lines = 2'000'000;
  static constexpr std::size_t LineLength = 65'536;  ///< bytes, without the line end
};

/// The text of a dictionary file for the box.
struct EditableText {
  std::string text;  ///< lines end in LF; empty after a failure
  QString failure;   ///< tells the user why the file cannot be shown; empty when it can
};

/// Reads `zFile`. It is a failure when the file is beyond EditableLimits or cannot be read.
EditableText ReadEditableText(const std::filesystem::path& zFile);

}  // namespace loquitor
