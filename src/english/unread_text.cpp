#include "english/unread_text.h"

#include <string_view>
#include <unordered_set>

namespace loquitor {

namespace {

constexpr std::size_t MostParts = 8;
constexpr std::size_t LongestPart = 40;

/// `zPart`, cut at the end of a character if it is longer than LongestPart bytes.
std::string Shortened(std::string_view zPart) {
  if (zPart.size() <= LongestPart) {
    return std::string(zPart);
  }
  const auto isWithin = [](char zByte) {
    return (static_cast<unsigned char>(zByte) & 0xC0) == 0x80;
  };
  std::size_t end = LongestPart;
  while (end > 0 && isWithin(zPart[end])) {
    --end;
  }
  return std::string(zPart.substr(0, end)) + "...";
}

}  // namespace

std::string DescribeUnread(const std::vector<std::string>& zUnread) {
  std::unordered_set<std::string_view> seen;
  std::string text;
  for (const std::string& part : zUnread) {
    if (seen.insert(part).second && seen.size() <= MostParts) {
      text += (text.empty() ? "\"" : ", \"") + Shortened(part) + "\"";
    }
  }
  if (seen.size() > MostParts) {
    text += " and " + std::to_string(seen.size() - MostParts) + " more";
  }
  return text;
}

}  // namespace loquitor
