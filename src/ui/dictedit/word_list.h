#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

namespace loquitor {

/// Reads the file of a word list in pieces, so that the program can handle events in between.
class WordList {
 public:
  static constexpr std::size_t PieceBytes = 65536;

  /// Opens `zFile`. Creates an empty file when it is missing. Bytes that are appended afterwards
  /// are not read. A folder, a device or a pipe is a failure.
  explicit WordList(const std::filesystem::path& zFile);

  /// The next bytes, at most PieceBytes, valid until the next call. Nothing at the end and after a
  /// failure.
  std::optional<std::string_view> NextPiece();

  /// Whether the file could not be created, opened or read to its end.
  bool HasFailed() const { return hasFailed_; }

 private:
  std::ifstream in_;
  std::string piece_;
  std::uintmax_t bytesLeft_ = 0;
  bool hasFailed_ = false;
};

}  // namespace loquitor
