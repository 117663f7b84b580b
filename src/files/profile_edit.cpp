#include "files/profile_edit.h"

#include <unordered_map>
#include <utility>
#include <vector>

#include "files/profile_lines.h"
#include "text/letters.h"
#include "text/words.h"

namespace loquitor {
namespace {

constexpr std::string_view LineEnd = "\r\n";

std::string EntryLine(std::string_view zKey, std::string_view zValue) {
  std::string line;
  line.reserve(zKey.size() + zValue.size() + 3);
  return line.append(zKey).append("=").append(zValue).append(LineEnd);
}

bool HasNoEnd(const ProfileLine& zLine) {
  return zLine.next == zLine.begin + zLine.text.size();
}

ProfileEdit Insertion(const ProfileLine& zAfter, std::string zLines) {
  if (HasNoEnd(zAfter)) {
    zLines.insert(0, LineEnd);
  }
  return {zAfter.next, zAfter.next, std::move(zLines)};
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

/// Values to store, each key once. A key that was added again keeps its first spelling and gets its
/// last value.
class PendingValues {
 public:
  void Add(std::string_view zKey, std::string zValue) {
    const auto [place, isNew] = places_.try_emplace(ToLower(zKey), values_.size());
    if (isNew) {
      values_.push_back({std::string(zKey), std::move(zValue)});
    } else {
      values_[place->second].value = std::move(zValue);
    }
  }

  /// Removes the value of `zKey` and returns it; nothing when there is none.
  std::optional<std::string> Take(std::string_view zKey) {
    const auto place = places_.find(ToLower(zKey));
    if (place == places_.end()) {
      return std::nullopt;
    }
    ProfileValue& value = values_[place->second];
    places_.erase(place);
    value.key.clear();
    return std::move(value.value);
  }

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
  std::unordered_map<std::string, std::size_t> places_;
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

/// Applies changes in the order of their offsets.
class TextEditor {
 public:
  explicit TextEditor(std::string_view zText) : rest_(zText) {}

  void Apply(const ProfileEdit& zEdit) {
    text_.append(rest_.substr(0, zEdit.begin - at_)).append(zEdit.replacement);
    rest_.remove_prefix(zEdit.end - at_);
    at_ = zEdit.end;
  }
  std::string Text() && { return std::move(text_.append(rest_)); }

 private:
  std::string_view rest_;
  std::size_t at_ = 0;  // of `rest_` in the old text
  std::string text_;
};

/// The changes for `zPending` inside the section whose header was read last.
std::vector<ProfileEdit> EditsInSection(ProfileLineReader& zReader, const ProfileLine& zHeader,
                                        PendingValues& zPending) {
  std::vector<ProfileEdit> edits;
  ProfileLine lastFull = zHeader;
  std::size_t editsToLastFull = 0;
  bool isLastReplaced = false;
  ProfileLine line = zHeader;
  while (zReader.Next(line) && !HeaderName(line.text)) {
    const auto entry = EntryOf(line.text);
    const auto value = entry ? zPending.Take(entry->key) : std::nullopt;
    if (value) {
      edits.push_back(Replacement(line, *entry, *value));
    }
    if (!TrimBlanks(line.text).empty()) {
      lastFull = line;
      editsToLastFull = edits.size();
      isLastReplaced = value && !edits.back().replacement.empty();
    }
  }
  const std::string added = zPending.Lines();
  if (!added.empty()) {
    ProfileEdit edit = Insertion(lastFull, added);
    if (isLastReplaced && HasNoEnd(lastFull)) {
      edit.replacement = added;  // the replacement has an end
    }
    edits.insert(edits.begin() + static_cast<std::ptrdiff_t>(editsToLastFull), std::move(edit));
  }
  return edits;
}

}  // namespace

std::optional<ProfileEdit> EditForValue(std::string_view zText, std::string_view zSection,
                                        std::string_view zKey, std::string_view zValue) {
  const std::string_view section = TrimBlanks(zSection);
  const std::string_view key = TrimBlanks(zKey);
  if (key.empty() || UnstorableInKey(key) || UnstorableInSection(section)) {
    return std::nullopt;
  }
  const std::string value = InOneLine(zValue);
  ProfileLineReader reader(zText);
  // Before the first line. Its offsets say that it has a line end: an empty text needs none added.
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

namespace {

/// TextWithValues for one value. This is the usual case, and it needs no table.
std::optional<std::string> TextWithValue(std::string_view zText, std::string_view zSection,
                                         const ProfileValue& zValue) {
  const auto edit = EditForValue(zText, zSection, zValue.key, zValue.value);
  if (!edit) {
    return std::nullopt;
  }
  TextEditor editor(zText);
  editor.Apply(*edit);
  return std::move(editor).Text();
}

}  // namespace

std::optional<std::string> TextWithValues(std::string_view zText, std::string_view zSection,
                                          std::span<const ProfileValue> zValues) {
  if (zValues.size() == 1) {
    return TextWithValue(zText, zSection, zValues[0]);
  }
  const std::string_view section = TrimBlanks(zSection);
  std::optional<PendingValues> pending = PendingFrom(zValues);
  if (!pending || UnstorableInSection(section)) {
    return std::nullopt;
  }
  TextEditor editor(zText);
  ProfileLineReader reader(zText);
  // As in EditForValue, before the first line.
  ProfileLine line{{}, zText.size() + 1, zText.size()};
  while (reader.Next(line)) {
    const auto name = HeaderName(line.text);
    if (name && EqualNames(*name, section)) {
      for (const ProfileEdit& edit : EditsInSection(reader, line, *pending)) {
        editor.Apply(edit);
      }
      return std::move(editor).Text();
    }
  }
  if (!zValues.empty()) {
    editor.Apply(Insertion(
        line, "[" + std::string(section) + "]" + std::string(LineEnd) + pending->Lines()));
  }
  return std::move(editor).Text();
}

}  // namespace loquitor
