#include "core/dictionary_text.h"

#include <algorithm>
#include <cstdint>
#include <functional>

#include "core/words.h"
#include "link/letter_case.h"

namespace loquitor {
namespace {

constexpr std::string_view LineEnds = "\r\n";
constexpr std::string_view SectionLine = "[words]";

/// How many bytes the line end at `zAt` takes: two for CR LF, else one.
std::size_t LineEndLength(std::string_view zBytes, std::size_t zAt) {
  return zBytes.substr(zAt, 2) == "\r\n" ? 2 : 1;
}

bool HasEntry(std::string_view zLine) {
  const std::size_t equals = zLine.find('=');
  return equals != std::string_view::npos && !TrimSpaces(zLine.substr(equals + 1)).empty();
}

void AppendLine(std::string& zText, std::string_view zLine) {
  zText.append(zLine);
  zText.push_back('\n');
}

char Folded(char zCharacter) {
  return LowerCaseTable[static_cast<unsigned char>(zCharacter)];
}

/// A line with its first eight bytes as a number that orders as they do, so that most comparisons
/// need not visit the text.
struct SortKey {
  std::uint64_t head;
  std::string_view line;

  explicit SortKey(std::string_view zLine) : head(0), line(zLine) {
    for (std::size_t i = 0; i < sizeof head; ++i) {
      head = head << 8 | (i < zLine.size() ? static_cast<unsigned char>(zLine[i]) : 0U);
    }
  }
  bool operator<(const SortKey& zOther) const {
    return head != zOther.head ? head < zOther.head : line < zOther.line;
  }
};

}  // namespace

std::string BoxTextFromFile(std::string_view zFileBytes) {
  std::string text;
  text.reserve(zFileBytes.size());
  std::size_t start = 0;
  while (start < zFileBytes.size()) {
    const std::size_t end = std::min(zFileBytes.find_first_of(LineEnds, start), zFileBytes.size());
    text.append(zFileBytes, start, end - start);
    if (end == zFileBytes.size()) {
      break;
    }
    text.push_back('\n');
    start = end + LineEndLength(zFileBytes, end);
  }
  return text;
}

TextExtent ExtentOf(std::string_view zBoxText) {
  TextExtent extent{0, 0, 1};
  for (std::size_t start = 0; start <= zBoxText.size();) {
    const std::size_t end = std::min(zBoxText.find('\n', start), zBoxText.size());
    ++extent.lines;
    if (end - start > extent.longestLine) {
      extent.longestLine = end - start;
      extent.longestAt = extent.lines;
    }
    start = end + 1;
  }
  return extent;
}

std::string FileBytesFromBox(std::string_view zBoxText) {
  const auto breaks = static_cast<std::size_t>(std::count(zBoxText.begin(), zBoxText.end(), '\n'));
  std::string bytes;
  bytes.reserve(zBoxText.size() + breaks + 2);
  for (const char character : zBoxText) {
    if (character == '\n') {
      bytes.push_back('\r');
    }
    bytes.push_back(character);
  }
  bytes += "\r\n";
  return bytes;
}

std::vector<std::string_view> ReadLines(std::string_view zFileBytes) {
  std::vector<std::string_view> lines;
  // Of lines ended by a lone CR, which no saved file has, there may be more.
  lines.reserve(static_cast<std::size_t>(std::count(zFileBytes.begin(), zFileBytes.end(), '\n')) +
                1);
  std::size_t start = 0;
  while (start < zFileBytes.size()) {
    const std::size_t end = std::min(zFileBytes.find_first_of(LineEnds, start), zFileBytes.size());
    lines.push_back(zFileBytes.substr(start, end - start));
    start = end < zFileBytes.size() ? end + LineEndLength(zFileBytes, end) : end;
  }
  return lines;
}

void LowerCaseKeys(std::string& zFileBytes) {
  bool isKey = true;
  for (char& character : zFileBytes) {
    if (character == '\r' || character == '\n') {
      isKey = true;
    } else if (character == '=') {
      isKey = false;
    } else if (isKey) {
      character = Folded(character);
    }
  }
}

void SortDictionaryLines(std::vector<std::string_view>& zLines, std::size_t zFirst,
                         std::size_t zLast) {
  if (zLines.empty() || zLast < zFirst) {
    return;
  }
  const auto first = zLines.begin() + static_cast<std::ptrdiff_t>(zFirst);
  const auto end = zLines.begin() + static_cast<std::ptrdiff_t>(zLast) + 1;
  std::vector<SortKey> keys(first, end);
  std::sort(keys.begin(), keys.end());
  std::transform(keys.begin(), keys.end(), first, [](const SortKey& zKey) { return zKey.line; });
}

std::string SortedText(std::string zFileBytes) {
  LowerCaseKeys(zFileBytes);
  std::vector<std::string_view> lines = ReadLines(zFileBytes);
  if (!lines.empty()) {
    SortDictionaryLines(lines, 0, lines.size() - 1);
  }
  std::string text;
  text.reserve(zFileBytes.size());
  for (const std::string_view line : lines) {
    if (!TrimSpaces(line).empty()) {
      AppendLine(text, line);
    }
  }
  return text;
}

std::string CleanedText(std::string zFileBytes) {
  LowerCaseKeys(zFileBytes);
  std::string text;
  text.reserve(SectionLine.size() + 1 + zFileBytes.size());
  AppendLine(text, SectionLine);
  for (const std::string_view line : ReadLines(zFileBytes)) {
    if (HasEntry(line)) {
      AppendLine(text, line);
    }
  }
  return text;
}

std::size_t FindText(std::string_view zText, std::string_view zSought, std::size_t zFrom) {
  if (zSought.empty()) {
    return std::string_view::npos;
  }
  const auto fold = [](char zCharacter) {
    return static_cast<std::size_t>(static_cast<unsigned char>(Folded(zCharacter)));
  };
  const auto isSame = [](char zOne, char zOther) { return Folded(zOne) == Folded(zOther); };
  const std::boyer_moore_horspool_searcher searcher(zSought.begin(), zSought.end(), fold, isSame);
  const auto start = zText.begin() + static_cast<std::ptrdiff_t>(std::min(zFrom, zText.size()));
  auto found = std::search(start, zText.end(), searcher);
  if (found == zText.end()) {
    found = std::search(zText.begin(), zText.end(), searcher);
  }
  return found == zText.end() ? std::string_view::npos
                              : static_cast<std::size_t>(found - zText.begin());
}

}  // namespace loquitor
