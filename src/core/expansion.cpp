#include "core/expansion.h"

#include <deque>
#include <unordered_set>
#include <utility>

#include "core/say_data_runs.h"
#include "text/letters.h"

namespace loquitor {

namespace {

// Expansion walks the Say Data and, at each dictionary word, the entry of that word. The texts
// being walked are kept on a stack of our own, so a chain of any length needs no call stack. A word
// whose entry is on that stack counts as missing, which ends every cycle. Two bounds end a
// dictionary whose entries double at every level: one on the length of the result, and one on the
// work in entries, which also counts entries that add nothing to the result.

/// The work of looking up a word inside an entry, as a number of characters read.
constexpr std::size_t LookUpWork = 32;
/// The most work in entries: for every Say Data, and for each of its bytes.
constexpr std::size_t EntryWork = std::size_t{8} << 20;
constexpr std::size_t EntryWorkPerByte = 8;

/// The entry of a word under expansion, or the Say Data itself.
struct TextWalk {
  /// `zName`: the word in upper case; empty for the Say Data itself.
  TextWalk(std::string zText, std::string zName)
      : text(std::move(zText)), name(std::move(zName)), runs(text) {}
  TextWalk(const TextWalk&) = delete;  // `runs` refers to `text`
  TextWalk& operator=(const TextWalk&) = delete;

  const std::string text;
  const std::string name;
  SayDataRuns runs;
};

class Expansion {
 public:
  Expansion(const EntryLookUp& zEntryOf, std::size_t zMaxLength)
      : entryOf_(zEntryOf), maxLength_(zMaxLength) {}

  std::string Run(std::string_view zSayData) {
    maxEntryWork_ = EntryWork + EntryWorkPerByte * zSayData.size();
    walks_.emplace_back(std::string(zSayData), std::string());
    for (SayDataRun run; !walks_.empty() && !isFull_;) {
      if (walks_.back().runs.Next(run)) {
        Expand(run);
      } else {
        FinishWalk();
      }
    }
    return std::move(output_);
  }

 private:
  void Expand(const SayDataRun& zRun) {
    const std::size_t count = zRun.characters.size();
    if (zRun.kind == SayDataRun::Kind::Word) {
      ExpandWord(zRun.characters);
    } else if (zRun.kind == SayDataRun::Kind::Commas) {
      for (std::size_t i = 0; i < count && !isFull_; ++i) {
        Append(" \\P2");
      }
    } else if (count > 1) {
      Append(count == 2 ? " \\P6" : " \\P4 \\P1");
    }
  }

  void ExpandWord(const std::string& zWord) {
    if (zWord.front() == '\\') {
      Append(zWord);
      return;
    }
    std::string name = ToUpper(zWord);
    if (underExpansion_.count(name) > 0 || !AllowsLookUp()) {
      return;
    }
    std::string entry = entryOf_(zWord);
    if (!entry.empty() && AllowsWork(entry.size())) {
      underExpansion_.insert(name);
      walks_.emplace_back(std::move(entry), std::move(name));
    }
  }

  /// The words of the Say Data itself are always looked up: the caller limits their number.
  bool AllowsLookUp() { return walks_.size() == 1 || AllowsWork(LookUpWork); }

  bool AllowsWork(std::size_t zWork) {
    entryWork_ += zWork;
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
  std::size_t maxEntryWork_ = 0;
  std::deque<TextWalk> walks_;  ///< a deque leaves its elements where they are
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
