#include "core/expansion.h"

#include <unordered_set>
#include <utility>
#include <vector>

#include "core/upper_case.h"

namespace loquitor {

namespace {

// Expansion walks the Say Data and, at each dictionary word, the word's entry. The texts being
// walked form a stack of their own, so that a chain of any length needs no call stack; a word is
// missing while its entry is on that stack, which ends every cycle. Two bounds keep a dictionary
// whose entries double at every level from running for years: the length of the result, and the
// work spent in entries, which also counts entries that add nothing to it.

/// What one look-up of a word inside an entry costs, in characters read.
constexpr std::size_t LookUpWork = 32;
/// The most work in entries that one expansion does, for each byte that its result may have.
constexpr std::size_t EntryWorkPerByte = 8;

enum class RunKind { None, Word, Spaces, Commas, Ignored };

RunKind KindOf(char zCharacter) {
  const bool isLetter =
      (zCharacter >= 'a' && zCharacter <= 'z') || (zCharacter >= 'A' && zCharacter <= 'Z');
  const bool isDigit = zCharacter >= '0' && zCharacter <= '9';
  if (isLetter || isDigit || zCharacter == '\\' || zCharacter == '#') {
    return RunKind::Word;
  }
  if (zCharacter == ' ') {
    return RunKind::Spaces;
  }
  return zCharacter == ',' ? RunKind::Commas : RunKind::Ignored;
}

/// A text under expansion and the run of characters that it is in.
struct TextWalk {
  std::string text;
  std::string name;  ///< upper case, of the entry; empty for the Say Data itself
  std::size_t position = 0;
  RunKind run = RunKind::None;
  std::string word{};
  std::size_t count = 0;  ///< of spaces or commas in the run
};

class Expansion {
 public:
  Expansion(const EntryLookUp& zEntryOf, std::size_t zMaxLength)
      : entryOf_(zEntryOf), maxLength_(zMaxLength), maxEntryWork_(zMaxLength * EntryWorkPerByte) {}

  std::string Run(std::string_view zSayData) {
    walks_.push_back({std::string(zSayData), {}});
    while (!walks_.empty() && !isFull_) {
      Step();
    }
    return std::move(output_);
  }

 private:
  /// Handles one character of the innermost text, or the blank behind its end.
  void Step() {
    TextWalk& walk = walks_.back();
    if (walk.position > walk.text.size()) {
      FinishWalk();
      return;
    }
    const char character = walk.position < walk.text.size() ? walk.text[walk.position] : ' ';
    ++walk.position;
    const RunKind kind = KindOf(character);
    if (kind == RunKind::Ignored) {
      return;
    }
    const RunKind endedRun = walk.run;
    const std::size_t endedCount = walk.count;
    if (kind != endedRun) {
      walk.run = kind;
      walk.count = 0;
    }
    ++walk.count;
    if (kind == RunKind::Word) {
      walk.word += character;
    }
    if (kind != endedRun && endedRun != RunKind::None) {
      CloseRun(endedRun, endedCount);  // may add a walk, which moves `walk`
    }
  }

  void CloseRun(RunKind zRun, std::size_t zCount) {
    if (zRun == RunKind::Word) {
      CloseWord();
    } else if (zRun == RunKind::Commas) {
      for (std::size_t i = 0; i < zCount && !isFull_; ++i) {
        Append(" \\P2");
      }
    } else if (zCount == 2) {
      Append(" \\P6");
    } else if (zCount > 2) {
      Append(" \\P4 \\P1");
    }
  }

  void CloseWord() {
    const std::string word = std::exchange(walks_.back().word, {});
    if (word.front() == '\\') {
      Append(word);
      return;
    }
    std::string name = UpperCase(word);
    if (underExpansion_.count(name) > 0 || !AllowsLookUp()) {
      return;
    }
    std::string entry = entryOf_(word);
    if (!entry.empty() && AllowsEntry(entry.size())) {
      underExpansion_.insert(name);
      walks_.push_back({std::move(entry), std::move(name)});
    }
  }

  /// The words of the Say Data itself are always looked up: they are as many as the caller wrote.
  bool AllowsLookUp() { return walks_.size() == 1 || AllowsEntry(LookUpWork); }

  bool AllowsEntry(std::size_t zWork) {
    if (walks_.size() > 1) {
      entryWork_ += zWork;
    }
    return entryWork_ <= maxEntryWork_;
  }

  void FinishWalk() {
    underExpansion_.erase(walks_.back().name);
    walks_.pop_back();
  }

  void Append(std::string_view zMnemonics) {
    isFull_ = output_.size() + zMnemonics.size() > maxLength_;
    if (!isFull_) {
      output_ += zMnemonics;
    }
  }

  const EntryLookUp& entryOf_;
  const std::size_t maxLength_;
  const std::size_t maxEntryWork_;
  std::vector<TextWalk> walks_;
  std::unordered_set<std::string> underExpansion_;
  std::string output_;
  std::size_t entryWork_ = 0;
  bool isFull_ = false;
};

}  // namespace

std::string ExpandWords(std::string_view zSayData, const EntryLookUp& zEntryOf,
                        std::size_t zMaxLength) {
  return Expansion(zEntryOf, zMaxLength).Run(zSayData);
}

}  // namespace loquitor
