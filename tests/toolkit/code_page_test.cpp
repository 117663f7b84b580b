#include "ui/toolkit/code_page.h"

#include <gtest/gtest.h>

namespace loquitor {
namespace {

TEST(CodePage, EveryByteSurvivesTheWayThroughABox) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) {
    all.push_back(static_cast<char>(byte));
  }
  const QString text = ToQString(all);
  EXPECT_EQ(text.size(), 256);
  EXPECT_TRUE(CanHold(text));
  EXPECT_EQ(ToBytes(text), all);
}

TEST(CodePage, MeansTheCharactersThatOwnersSee) {
  EXPECT_EQ(ToQString("\x80\x8A\x9E\xE4\xFF\x81\x9D"), QString::fromUtf8("€Šžäÿ\u0081\u009D"));
}

TEST(CodePage, TellsWhatItCannotHoldAndLeavesItOut) {
  for (const char* text : {"ř", "日", "🙂", "\u0080", "\u0100", "\u2028"}) {
    EXPECT_FALSE(CanHold(QString::fromUtf8(text))) << text;
  }
  EXPECT_EQ(ToBytes(QString::fromUtf8("ařb🙂c")), "abc");
}

}  // namespace
}  // namespace loquitor
