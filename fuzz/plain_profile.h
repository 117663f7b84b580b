#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "text/letters.h"

namespace loquitor::testing {

/// A profile text in the plainest form: a list of lines that every call searches from its start.
/// The fuzz target compares the real code, which is fast, with this one, which is obvious.
class PlainProfile {
 public:
  explicit PlainProfile(const std::string& zText)
      : mark_(zText.starts_with("\xEF\xBB\xBF") ? zText.substr(0, 3) : "") {
    for (std::size_t at = mark_.size(); at < zText.size();) {
      const std::size_t end = std::min(zText.find_first_of("\r\n", at), zText.size());
      const std::size_t next = end + (zText.compare(end, 2, "\r\n") == 0 ? 2 : 1);
      lines_.push_back({zText.substr(at, end - at), zText.substr(end, next - end)});
      at = next;
    }
  }

  std::string Text() const {
    std::string text = mark_;
    for (const Line& line : lines_) {
      text += line.text + line.end;
    }
    return text;
  }

  std::optional<std::string> Read(const std::string& zSection, const std::string& zKey) const {
    const std::size_t at = FindKey(zSection, zKey);
    if (at == lines_.size()) {
      return std::nullopt;
    }
    const std::string value = ValueOf(at);
    const bool isQuoted =
        value.size() > 1 && value.front() == value.back() && (value[0] == '"' || value[0] == '\'');
    return isQuoted ? value.substr(1, value.size() - 2) : value;
  }

  bool Write(const std::string& zSection, const std::string& zKey, const std::string& zValue) {
    const std::string section = Trim(zSection);
    const std::string key = Trim(zKey);
    if (section.find_first_of("]\r\n") != std::string::npos || key.empty() ||
        key.find_first_of("[;") == 0 || key.find_first_of("=\r\n") != std::string::npos) {
      return false;
    }
    const std::string value = JoinLines(zValue);
    if (const std::size_t at = FindKey(section, key); at < lines_.size()) {
      if (ValueOf(at) != Trim(value)) {
        lines_[at] = {KeyOf(at) + "=" + value, "\r\n"};
      }
      return true;
    }
    std::size_t place = FindSection(section);
    if (place == lines_.size()) {
      Insert(place, "[" + section + "]");
    }
    for (std::size_t i = place + 1; i < lines_.size() && !IsHeader(i); ++i) {
      place = Trim(lines_[i].text).empty() ? place : i;
    }
    Insert(place + 1, key + "=" + value);
    return true;
  }

 private:
  struct Line {
    std::string text, end;
  };

  static std::string Trim(const std::string& zText) {
    const std::size_t begin = zText.find_first_not_of(" \t");
    const std::size_t last = zText.find_last_not_of(" \t");
    return begin == std::string::npos ? "" : zText.substr(begin, last + 1 - begin);
  }

  static std::string JoinLines(std::string zValue) {
    std::erase(zValue, '\r');
    std::erase(zValue, '\n');
    return zValue;
  }

  bool IsHeader(std::size_t zLine) const { return Trim(lines_[zLine].text).starts_with('['); }
  std::string KeyOf(std::size_t zLine) const {
    return Trim(lines_[zLine].text.substr(0, lines_[zLine].text.find('=')));
  }
  std::string ValueOf(std::size_t zLine) const {
    return Trim(lines_[zLine].text.substr(lines_[zLine].text.find('=') + 1));
  }

  /// The index of the section's header or of the key's line; the number of lines when there is
  /// none.
  std::size_t FindSection(const std::string& zSection) const {
    const auto isIt = [&](const Line& zLine) {
      const std::string line = Trim(zLine.text);
      return line.starts_with('[') &&
             ToLower(Trim(line.substr(1, line.find(']') - 1))) == ToLower(Trim(zSection));
    };
    const auto found = std::find_if(lines_.begin(), lines_.end(), isIt);
    return static_cast<std::size_t>(found - lines_.begin());
  }
  std::size_t FindKey(const std::string& zSection, const std::string& zKey) const {
    for (std::size_t i = FindSection(zSection) + 1; i < lines_.size() && !IsHeader(i); ++i) {
      const bool isComment = Trim(lines_[i].text).starts_with(';');
      const bool hasSign = lines_[i].text.find('=') != std::string::npos;
      if (!isComment && hasSign && ToLower(KeyOf(i)) == ToLower(Trim(zKey))) {
        return i;
      }
    }
    return lines_.size();
  }

  void Insert(std::size_t zPlace, const std::string& zText) {
    if (zPlace > 0 && lines_[zPlace - 1].end.empty()) {
      lines_[zPlace - 1].end = "\r\n";
    }
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(zPlace), Line{zText, "\r\n"});
  }

  std::string mark_;
  std::vector<Line> lines_;
};

}  // namespace loquitor::testing
