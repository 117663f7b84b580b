#include "core/silent_parts.h"

#include <string>
#include <unordered_map>
#include <utility>

#include "core/code_table.h"
#include "core/say_data_runs.h"
#include "text/letters.h"

namespace loquitor {
namespace {

bool IsMnemonics(const SayDataRun& zRun) {
  return zRun.kind == SayDataRun::Kind::Word && zRun.characters.front() == '\\';
}

bool IsPlainWord(const SayDataRun& zRun) {
  return zRun.kind == SayDataRun::Kind::Word && zRun.characters.front() != '\\';
}

/// Calls `zDo` with each token of a run that begins with a backslash: its text, and where it starts
/// and ends in `zSayData`.
template <class Action>
void ForEachToken(std::string_view zSayData, const SayDataRun& zRun, const Action& zDo) {
  std::string token;
  std::size_t start = zRun.start;
  std::size_t end = zRun.start;
  for (std::size_t at = zRun.start; at < zRun.end; ++at) {
    const char character = zSayData[at];
    if (character == '\\' && !token.empty()) {
      zDo(token, start, end);
      token.clear();
    }
    if (character == '\\' || IsNameCharacter(character)) {
      start = token.empty() ? at : start;
      end = at + 1;
      token += character;
    }
  }
  zDo(token, start, end);
}

/// The words that a text leads to, and which of them give a code. A word gives a code when its
/// entry has a mnemonic or a pause, or contains a word that gives one. Each word keeps a list of
/// the words whose entries contain it, so that a code that is found can be passed on to them at
/// once.
class WordSounds {
 public:
  WordSounds(const EntryLookUp& zEntryOf, const CodeTable& zCodeTable)
      : entryOf_(zEntryOf), codeTable_(zCodeTable) {}

  bool HasSound(const std::string& zWord) {
    Word& word = Visit(zWord);
    while (!unread_.empty()) {
      Word& next = *unread_.back();
      unread_.pop_back();
      Read(next);
    }
    return word.hasSound;
  }

 private:
  struct Word {
    std::string name;
    bool hasSound = false;
    std::vector<Word*> namedBy{};
  };

  Word& Visit(const std::string& zWord) {
    std::string name = ToUpper(zWord);
    const auto [found, isNew] = words_.try_emplace(name);
    if (isNew) {
      found->second.name = std::move(name);
      unread_.push_back(&found->second);
    }
    return found->second;
  }

  void Read(Word& zWord) {
    const std::string entry = entryOf_(zWord.name);
    SayDataRuns runs(entry);
    for (SayDataRun run; !zWord.hasSound && runs.Next(run);) {
      if (GivesCode(entry, run)) {
        GiveSound(zWord);
      } else if (IsPlainWord(run)) {
        Name(Visit(run.characters), zWord);
      }
    }
  }

  void Name(Word& zNamed, Word& zBy) {
    zNamed.namedBy.push_back(&zBy);
    if (zNamed.hasSound) {
      GiveSound(zBy);
    }
  }

  /// Marks `zWord` and every word that leads to it.
  static void GiveSound(Word& zWord) {
    std::vector<Word*> sounding{&zWord};
    while (!sounding.empty()) {
      Word& word = *sounding.back();
      sounding.pop_back();
      if (!std::exchange(word.hasSound, true)) {
        sounding.insert(sounding.end(), word.namedBy.begin(), word.namedBy.end());
      }
    }
  }

  /// Whether a run of an entry gives a code by itself.
  bool GivesCode(std::string_view zEntry, const SayDataRun& zRun) const {
    if (zRun.kind != SayDataRun::Kind::Word) {
      return zRun.kind == SayDataRun::Kind::Commas || zRun.characters.size() > 1;
    }
    bool hasCode = false;
    if (IsMnemonics(zRun)) {
      ForEachToken(zEntry, zRun, [&](std::string_view zToken, std::size_t, std::size_t) {
        hasCode = hasCode || !codeTable_.TokenCodes(zToken).empty();
      });
    }
    return hasCode;
  }

  const EntryLookUp& entryOf_;
  const CodeTable& codeTable_;
  std::unordered_map<std::string, Word> words_;
  std::vector<Word*> unread_;
};

}  // namespace

std::vector<SilentPart> FindSilentParts(std::string_view zSayData, const EntryLookUp& zEntryOf,
                                        const CodeTable& zCodeTable) {
  std::vector<SilentPart> parts;
  WordSounds words(zEntryOf, zCodeTable);
  SayDataRuns runs(zSayData);
  for (SayDataRun run; runs.Next(run);) {
    if (IsPlainWord(run) && !words.HasSound(run.characters)) {
      parts.push_back({SilentPart::Kind::Word, run.start, run.end - run.start});
    } else if (IsMnemonics(run)) {
      ForEachToken(zSayData, run,
                   [&](std::string_view zToken, std::size_t zStart, std::size_t zEnd) {
                     if (zCodeTable.TokenCodes(zToken).empty()) {
                       parts.push_back({SilentPart::Kind::Mnemonic, zStart, zEnd - zStart});
                     }
                   });
    }
  }
  return parts;
}

}  // namespace loquitor
