#include "files/profile_lines.h"

namespace loquitor {
namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

ProfileLineReader::ProfileLineReader(std::string_view zText) : text_(zText) {
  if (text_.starts_with(ByteOrderMark)) {
    position_ = ByteOrderMark.size();
  }
  nextCr_ = Find('\r');
  nextLf_ = Find('\n');
}

std::size_t ProfileLineReader::Find(char zByte) const {
  return std::min(text_.find(zByte, position_), text_.size());
}

bool ProfileLineReader::Next(ProfileLine& zLine) {
  if (position_ == text_.size()) {
    return false;
  }
  const std::size_t end = std::min(nextCr_, nextLf_);
  zLine.begin = position_;
  zLine.text = text_.substr(position_, end - position_);
  const bool isCrLf = nextCr_ + 1 == nextLf_ && end == nextCr_;
  position_ = std::min(end + (isCrLf ? 2 : 1), text_.size());
  zLine.next = position_;
  if (nextCr_ < position_) {
    nextCr_ = Find('\r');
  }
  if (nextLf_ < position_) {
    nextLf_ = Find('\n');
  }
  return true;
}

}  // namespace loquitor
