#include "ui/phrase/voice_values.h"

#include <gtest/gtest.h>

namespace loquitor {
namespace {

TEST(VoiceValues, CommitTypedTexts) {
  struct Case {
    const char* typed;
    int maximum;
    const char* text;
    int value;
  };
  for (const Case& expected : {
           Case{"300", 127, "127", 127},
           Case{"127.4", 127, "127", 127},
           Case{"127", 127, "127", 127},
           Case{"-4", 255, "0", 0},
           Case{"-0.4", 255, "0", 0},
           Case{"-0", 255, "-0", 0},
           Case{"7.5", 15, "7.5", 8},
           Case{"6.5", 15, "6.5", 6},
           Case{"14.6", 15, "14.6", 15},
           Case{"15.4", 15, "15", 15},
           Case{"12abc", 127, "12abc", 12},
           Case{"abc", 127, "abc", 0},
           Case{"", 127, "", 0},
           Case{" 1 2 ", 127, " 1 2 ", 12},
           Case{"1E999", 255, "255", 255},
           Case{"-1E999", 255, "0", 0},
       }) {
    const CommittedVoiceText committed = CommitVoiceText(expected.typed, expected.maximum);
    EXPECT_EQ(committed.text, expected.text) << expected.typed;
    EXPECT_EQ(committed.value, expected.value) << expected.typed;
  }
}

}  // namespace
}  // namespace loquitor
