#include "link/profile_lines.h"

#include <algorithm>
#include <cstring>

#include "link/letter_case.h"

namespace loquitor {
namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

bool EqualNames(std::string_view zLeft, std::string_view zRight) {
  return zLeft.size() == zRight.size() &&
         std::equal(zLeft.begin(), zLeft.end(), zRight.begin(), [](char zOne, char zOther) {
           return LowerCaseTable[static_cast<unsigned char>(zOne)] ==
                  LowerCaseTable[static_cast<unsigned char>(zOther)];
         });
}

ProfileLineReader::ProfileLineReader(std::string_view zText) : text_(zText) {
  if (text_.substr(0, ByteOrderMark.size()) == ByteOrderMark) {
    position_ = ByteOrderMark.size();
  }
  nextCr_ = Find('\r');
  nextLf_ = Find('\n');
}

std::size_t ProfileLineReader::Find(char zByte) const {
  if (position_ == text_.size()) {
    return position_;
  }
  const char* start = text_.data() + position_;
  const void* found = std::memchr(start, zByte, text_.size() - position_);
  return found == nullptr
             ? text_.size()
             : position_ + static_cast<std::size_t>(static_cast<const char*>(found) - start);
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

std::optional<std::string_view> HeaderName(std::string_view zLine) {
  const std::string_view line = TrimBlanks(zLine);
  if (line.empty() || line.front() != '[') {
    return std::nullopt;
  }
  return TrimBlanks(line.substr(1, line.find(']') - 1));
}

std::optional<ProfileEntry> EntryOf(std::string_view zLine) {
  const std::string_view line = TrimBlanks(zLine);
  if (line.empty() || line.front() == '[' || line.front() == ';') {
    return std::nullopt;
  }
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) {
    return std::nullopt;
  }
  return ProfileEntry{TrimBlanks(line.substr(0, equals)), TrimBlanks(line.substr(equals + 1))};
}

std::string_view WithoutQuotes(std::string_view zValue) {
  const bool isQuoted = zValue.size() >= 2 && zValue.front() == zValue.back() &&
                        (zValue.front() == '"' || zValue.front() == '\'');
  return isQuoted ? zValue.substr(1, zValue.size() - 2) : zValue;
}

}  // namespace loquitor
