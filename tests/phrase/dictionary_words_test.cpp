#include "ui/phrase/dictionary_words.h"

#include <gtest/gtest.h>

namespace loquitor {
namespace {

TEST(DictionaryWords, AreWantedByMode) {
  struct Case {
    bool isWithTicked;
    bool isWithoutTicked;
    const char* sayData;
    const char* findWith;
    bool isWanted;
  };
  for (const Case& expected : {
           Case{true, false, "\\IY ", "", true},
           Case{true, false, "  ", "", false},
           Case{true, false, "\\IY \\EH ", "\\eh", true},
           Case{true, false, "\\iy ", "\\iy", false},
           Case{true, false, "\xC9 ", "\xE9", true},
           Case{true, false, "\x8A\x9F ", "\x9A\xFF", true},
           Case{false, true, "  ", "\\iy", true},
           Case{false, true, "x ", "", false},
           Case{true, true, " ", "\\iy", true},
           Case{false, false, "x ", "", false},
       }) {
    const NextWordMode mode = NextWordModeOf(expected.isWithTicked, expected.isWithoutTicked);
    EXPECT_EQ(IsWanted(mode, expected.sayData, expected.findWith), expected.isWanted)
        << expected.sayData << " with " << expected.findWith;
  }
}

TEST(DictionaryWords, AreRefusedWhenTheFileCannotHoldThem) {
  struct Case {
    const char* word;
    const char* problem;  ///< what the message names; null when the word is taken
  };
  for (const Case& expected : {
           Case{"hello", nullptr},
           Case{"a]b[;", nullptr},
           Case{"two words", "Remove the spaces"},
           Case{"a=b", "(=)"},
           Case{"=", "(=)"},
           Case{"[words]", "begin with ["},
           Case{";word", "begin with ;"},
       }) {
    const std::optional<QString> refusal = RefusalOfWord(expected.word);
    EXPECT_EQ(refusal.has_value(), expected.problem != nullptr) << expected.word;
    EXPECT_TRUE(!refusal || refusal->contains(expected.problem)) << expected.word;
  }
}

}  // namespace
}  // namespace loquitor
