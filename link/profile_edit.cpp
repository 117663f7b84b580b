#include "link/profile_edit.h"

#include <utility>

#include "link/profile_lines.h"

namespace loquitor {
namespace {

constexpr std::string_view LineEnd = "\r\n";

bool IsHoldableSection(std::string_view zSection) {
  return zSection.find_first_of("\r\n]") == std::string_view::npos;
}

bool IsHoldableKey(std::string_view zKey) {
  return !zKey.empty() && zKey.front() != '[' && zKey.front() != ';' &&
         zKey.find_first_of("\r\n=") == std::string_view::npos;
}

std::string EntryLine(std::string_view zKey, std::string_view zValue) {
  std::string line;
  line.reserve(zKey.size() + zValue.size() + 3);
  return line.append(zKey).append("=").append(zValue).append(LineEnd);
}

bool HasNoEnd(const ProfileLine& zLine) {
  return zLine.next == zLine.begin + zLine.text.size();
}

ProfileEdit Insertion(const ProfileLine& zBehind, std::string zLines) {
  if (HasNoEnd(zBehind)) {
    zLines.insert(0, LineEnd);
  }
  return {zBehind.next, zBehind.next, std::move(zLines)};
}

ProfileEdit Replacement(const ProfileLine& zLine, const ProfileEntry& zOld,
                        std::string_view zValue) {
  if (zOld.value == TrimBlanks(zValue)) {
    return {zLine.begin, zLine.begin, {}};
  }
  return {zLine.begin, zLine.next, EntryLine(zOld.key, zValue)};
}

/// The change inside the section whose header was read last.
ProfileEdit EditInSection(ProfileLineReader& zReader, const ProfileLine& zHeader,
                          std::string_view zKey, std::string_view zValue) {
  ProfileLine lastFull = zHeader;
  ProfileLine line = zHeader;
  while (zReader.Next(line) && !HeaderName(line.text)) {
    const auto entry = EntryOf(line.text);
    if (entry && EqualNames(entry->key, zKey)) {
      return Replacement(line, *entry, zValue);
    }
    if (!TrimBlanks(line.text).empty()) {
      lastFull = line;
    }
  }
  return Insertion(lastFull, EntryLine(zKey, zValue));
}

}  // namespace

std::string InOneLine(std::string_view zValue) {
  std::string line;
  line.reserve(zValue.size());
  bool isInBreak = false;
  for (const char c : zValue) {
    const bool isBreak = c == '\r' || c == '\n';
    if (!isBreak) {
      line += c;
    } else if (!isInBreak) {
      line += ' ';
    }
    isInBreak = isBreak;
  }
  return line;
}

std::optional<ProfileEdit> EditForValue(std::string_view zText, std::string_view zSection,
                                        std::string_view zKey, std::string_view zValue) {
  const std::string_view section = TrimBlanks(zSection);
  const std::string_view key = TrimBlanks(zKey);
  if (!IsHoldableSection(section) || !IsHoldableKey(key)) {
    return std::nullopt;
  }
  const std::string value = InOneLine(zValue);
  ProfileLineReader reader(zText);
  // Stands for "no line yet": it counts as ended, so that an empty text gets no line end first.
  ProfileLine line{{}, zText.size() + 1, zText.size()};
  while (reader.Next(line)) {
    const auto name = HeaderName(line.text);
    if (name && EqualNames(*name, section)) {
      return EditInSection(reader, line, key, value);
    }
  }
  return Insertion(line,
                   "[" + std::string(section) + "]" + std::string(LineEnd) + EntryLine(key, value));
}

}  // namespace loquitor
