#include "files/profile_edit.h"

#include <map>
#include <utility>
#include <vector>

#include "files/profile_lines.h"
#include "text/words.h"

namespace loquitor {
namespace {

constexpr std::string_view LineEnd = "\r\n";

std::string EntryLine(std::string_view zKey, std::string_view zValue) {
  return std::string(zKey).append("=").append(zValue).append(LineEnd);
}

struct NameOrder {
  using is_transparent = void;
  bool operator()(std::string_view zLeft, std::string_view zRight) const {
    return CompareNames(zLeft, zRight) < 0;
  }
};

/// Values to store, each key once. A key that was added again keeps its first spelling and gets its
/// last value.
class PendingValues {
 public:
  void Add(std::string_view zKey, std::string zValue) {
    const auto [place, isNew] = places_.try_emplace(std::string(zKey), values_.size());
    if (isNew) {
      values_.push_back({std::string(zKey), std::move(zValue)});
    } else {
      values_[place->second].value = std::move(zValue);
    }
  }

  /// Removes the value of `zKey` and returns it; nothing when there is none.
  std::optional<std::string> Take(std::string_view zKey) {
    const auto place = places_.find(zKey);
    if (place == places_.end()) {
      return std::nullopt;
    }
    ProfileValue& value = values_[place->second];
    places_.erase(place);
    value.key.clear();
    return std::move(value.value);
  }

  bool IsEmpty() const { return places_.empty(); }

  /// A line for each value that has not been taken.
  std::string Lines() const {
    std::string lines;
    for (const ProfileValue& value : values_) {
      lines += value.key.empty() ? "" : EntryLine(value.key, value.value);
    }
    return lines;
  }

 private:
  std::vector<ProfileValue> values_;  // a taken one has no key
  std::map<std::string, std::size_t, NameOrder> places_;
};

std::optional<PendingValues> PendingFrom(std::span<const ProfileValue> zValues) {
  PendingValues pending;
  for (const ProfileValue& value : zValues) {
    const std::string_view key = TrimBlanks(value.key);
    if (key.empty() || UnstorableInKey(key)) {
      return std::nullopt;
    }
    pending.Add(key, InOneLine(value.value));
  }
  return pending;
}

/// Makes a changed text from front to back.
class TextEditor {
 public:
  explicit TextEditor(std::string_view zOld) : old_(zOld) {}

  /// Puts `zNew` in the place of `zLine` and its line end.
  void Replace(const ProfileLine& zLine, std::string_view zNew) {
    CopyUpTo(zLine.begin);
    text_ += zNew;
    copied_ = zLine.next;
  }

  /// Puts `zLines` after `zLine`, which may have been replaced. It gets a line end first if it has
  /// none.
  void InsertAfter(const ProfileLine& zLine, std::string_view zLines) {
    CopyUpTo(zLine.next);
    const bool hadEnd = zLine.next != zLine.begin + zLine.text.size();
    text_.append(hadEnd || text_.ends_with(LineEnd) ? "" : LineEnd).append(zLines);
  }

  std::string Text() && {
    CopyUpTo(old_.size());
    return std::move(text_);
  }

 private:
  void CopyUpTo(std::size_t zOffset) {
    text_ += old_.substr(copied_, zOffset - copied_);
    copied_ = zOffset;
  }

  std::string_view old_;
  std::size_t copied_ = 0;  // of `old_`
  std::string text_;
};

/// Stores `zPending` in the section whose header was read last.
void StoreInSection(ProfileLineReader& zReader, const ProfileLine& zHeader, PendingValues& zPending,
                    TextEditor& zEditor) {
  ProfileLine lastFull = zHeader;
  ProfileLine line = zHeader;
  while (!zPending.IsEmpty() && zReader.Next(line) && !HeaderName(line.text)) {
    const auto entry = EntryOf(line.text);
    const auto value = entry ? zPending.Take(entry->key) : std::nullopt;
    if (value && entry->value != TrimBlanks(*value)) {
      zEditor.Replace(line, EntryLine(entry->key, *value));
    }
    if (!TrimBlanks(line.text).empty()) {
      lastFull = line;
    }
  }
  if (!zPending.IsEmpty()) {
    zEditor.InsertAfter(lastFull, zPending.Lines());
  }
}

}  // namespace

std::optional<std::string> TextWithValues(std::string_view zText, std::string_view zSection,
                                          std::span<const ProfileValue> zValues) {
  const std::string_view section = TrimBlanks(zSection);
  std::optional<PendingValues> pending = PendingFrom(zValues);
  if (!pending || UnstorableInSection(section)) {
    return std::nullopt;
  }
  TextEditor editor(zText);
  ProfileLineReader reader(zText);
  // Before the first line. Its offsets say that it has a line end: an empty text needs none added.
  ProfileLine line{{}, zText.size() + 1, zText.size()};
  while (reader.Next(line)) {
    const auto name = HeaderName(line.text);
    if (name && EqualNames(*name, section)) {
      StoreInSection(reader, line, *pending, editor);
      return std::move(editor).Text();
    }
  }
  if (!pending->IsEmpty()) {
    editor.InsertAfter(line,
                       "[" + std::string(section) + "]" + std::string(LineEnd) + pending->Lines());
  }
  return std::move(editor).Text();
}

}  // namespace loquitor
