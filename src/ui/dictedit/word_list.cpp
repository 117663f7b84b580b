#include "ui/dictedit/word_list.h"

#include <algorithm>
#include <system_error>

namespace loquitor {

WordList::WordList(const std::filesystem::path& zFile) {
  std::error_code failure;
  if (!std::filesystem::exists(zFile, failure)) {
    std::ofstream(zFile, std::ios::app);  // another program may just have created it with content
  }
  if (!std::filesystem::is_regular_file(zFile, failure)) {
    hasFailed_ = true;
    return;
  }
  in_.open(zFile, std::ios::binary);
  bytesLeft_ = std::filesystem::file_size(zFile, failure);
  hasFailed_ = !in_ || failure;
}

std::optional<std::string_view> WordList::NextPiece() {
  if (hasFailed_ || bytesLeft_ == 0) {
    return std::nullopt;
  }
  piece_.resize(static_cast<std::size_t>(std::min<std::uintmax_t>(bytesLeft_, PieceBytes)));
  in_.read(piece_.data(), static_cast<std::streamsize>(piece_.size()));
  hasFailed_ = !in_;
  bytesLeft_ -= piece_.size();
  return std::string_view(piece_).substr(0, static_cast<std::size_t>(in_.gcount()));
}

}  // namespace loquitor
