#include "core/dictionary_text.h"

#include <algorithm>
#include <functional>

#include "text/letters.h"
#include "text/words.h"

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

/// `zText` without the byte order marks of UTF-8 at its start. Some editors write one.
std::string_view WithoutMark(std::string_view zText) {
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  while (zText.starts_with(mark)) {
    zText.remove_prefix(mark.size());
  }
  return zText;
}

}  // namespace

std::string BoxTextFromFile(std::string_view zFileBytes) {
  const std::string_view bytes = WithoutMark(zFileBytes);
  std::string text;
  text.reserve(bytes.size());
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] != '\r') {
      text.push_back(bytes[i]);
    } else if (bytes.substr(i + 1, 1) != "\n") {
      text.push_back('\n');
    }
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
  // There may be more lines, when a lone CR ends them; no saved file has one.
  lines.reserve(static_cast<std::size_t>(std::count(zFileBytes.begin(), zFileBytes.end(), '\n')) +
                1);
  std::size_t start = 0;
  while (start < zFileBytes.size()) {
    const std::size_t end = std::min(zFileBytes.find_first_of(LineEnds, start), zFileBytes.size());
    lines.push_back(WithoutMark(zFileBytes.substr(start, end - start)));
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
  std::sort(first, end);
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
