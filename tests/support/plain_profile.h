#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "link/letter_case.h"
#include "link/platform_files.h"

namespace loquitor::testing {

/// A profile text in the plainest form: all lines in a list, everything found by walking it. The
/// tests hold the real code, which is quick, against this, which is obvious.
class PlainProfile {
 public:
  explicit PlainProfile(const std::string& zText) {
    std::size_t at = zText.rfind("\xEF\xBB\xBF", 0) == 0 ? 3 : 0;
    mark_ = zText.substr(0, at);
    while (at < zText.size()) {
      Line line;
      while (at < zText.size() && zText[at] != '\r' && zText[at] != '\n') {
        line.text += zText[at++];
      }
      if (at < zText.size()) {
        line.end += zText[at++];
        if (line.end == "\r" && at < zText.size() && zText[at] == '\n') {
          line.end += zText[at++];
        }
      }
      lines_.push_back(line);
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
    const auto at = FindKey(zSection, zKey);
    if (!at) {
      return std::nullopt;
    }
    const std::string value = Value(*at);
    const bool isQuoted = value.size() > 1 && value[0] == value[value.size() - 1] &&
                          (value[0] == '"' || value[0] == '\'');
    return isQuoted ? value.substr(1, value.size() - 2) : value;
  }

  bool Write(const std::string& zSection, const std::string& zKey, const std::string& zValue) {
    const std::string section = Trim(zSection);
    const std::string key = Trim(zKey);
    if (section.find_first_of("]\r\n") != std::string::npos || key.empty() || key[0] == '[' ||
        key[0] == ';' || key.find_first_of("=\r\n") != std::string::npos) {
      return false;
    }
    const std::string value = JoinLines(zValue);
    if (const auto at = FindKey(section, key)) {
      if (Value(*at) != Trim(value)) {
        lines_[*at] = {KeyOf(*at) + "=" + value, "\r\n"};
      }
      return true;
    }
    std::size_t place = FindSection(section);
    if (place == lines_.size()) {
      Insert(place, "[" + section + "]");
    } else {
      std::size_t last = place;
      for (std::size_t i = place + 1; i < lines_.size() && !IsHeader(i); ++i) {
        last = Trim(lines_[i].text).empty() ? last : i;
      }
      place = last;
    }
    Insert(place + 1, key + "=" + value);
    return true;
  }

 private:
  struct Line {
    std::string text;
    std::string end;
  };

  static std::string Trim(const std::string& zText) {
    const std::size_t begin = zText.find_first_not_of(" \t");
    const std::size_t last = zText.find_last_not_of(" \t");
    return begin == std::string::npos ? "" : zText.substr(begin, last + 1 - begin);
  }

  static std::string JoinLines(const std::string& zValue) {
    std::string joined;
    for (std::size_t i = 0; i < zValue.size(); ++i) {
      const bool isBreak = zValue[i] == '\r' || zValue[i] == '\n';
      const bool wasBreak = i > 0 && (zValue[i - 1] == '\r' || zValue[i - 1] == '\n');
      joined += isBreak ? (wasBreak ? "" : " ") : std::string(1, zValue[i]);
    }
    return joined;
  }

  bool IsHeader(std::size_t zLine) const { return Trim(lines_[zLine].text).rfind('[', 0) == 0; }

  std::string KeyOf(std::size_t zLine) const {
    return Trim(lines_[zLine].text.substr(0, lines_[zLine].text.find('=')));
  }

  std::string Value(std::size_t zLine) const {
    return Trim(lines_[zLine].text.substr(lines_[zLine].text.find('=') + 1));
  }

  std::size_t FindSection(const std::string& zSection) const {
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      if (IsHeader(i)) {
        const std::string rest = Trim(lines_[i].text).substr(1);
        if (ToLower(Trim(rest.substr(0, rest.find(']')))) == ToLower(Trim(zSection))) {
          return i;
        }
      }
    }
    return lines_.size();
  }

  std::optional<std::size_t> FindKey(const std::string& zSection, const std::string& zKey) const {
    for (std::size_t i = FindSection(zSection) + 1; i < lines_.size() && !IsHeader(i); ++i) {
      const bool isComment = Trim(lines_[i].text).rfind(';', 0) == 0;
      const bool hasSign = lines_[i].text.find('=') != std::string::npos;
      if (!isComment && hasSign && ToLower(KeyOf(i)) == ToLower(Trim(zKey))) {
        return i;
      }
    }
    return std::nullopt;
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

/// `zText` as if it had been read from a file.
inline LoadedFile AsLoaded(std::string_view zText) {
  LoadedFile file;
  file.bytes = std::make_unique<char[]>(zText.size());
  std::copy(zText.begin(), zText.end(), file.bytes.get());
  file.size = zText.size();
  return file;
}

/// `zText` after `zEdit`.
template <typename Edit>
std::string Edited(std::string zText, const Edit& zEdit) {
  return zText.replace(zEdit.begin, zEdit.end - zEdit.begin, zEdit.replacement);
}

}  // namespace loquitor::testing
