#include "text/letters.h"

#include <gtest/gtest.h>

#include "tests/support/rows.h"

namespace loquitor::testing {
namespace {

TEST(Letters, CapitalsOfTheCodePageBecomeSmallAndBackAndAllElseStays) {
  EXPECT_EQ(ToLower("AZ\xC0\xD6\xD8\xDE\x8A\x8C\x8E\x9F\xD7\xF7\xDF@[`{ 1="),
            "az\xE0\xF6\xF8\xFE\x9A\x9C\x9E\xFF\xD7\xF7\xDF@[`{ 1=");
  int capitals = 0;
  for (const char character : EveryByte()) {
    const char lower = LowerCase(character);
    capitals += lower == character ? 0 : 1;
    EXPECT_EQ(LowerCase(lower), lower) << int{character};
    EXPECT_EQ(LowerCase(UpperCase(lower)), lower) << int{character};
    EXPECT_TRUE(lower == character || UpperCase(lower) == character) << int{character};
  }
  EXPECT_EQ(capitals, 26 + 30 + 4);
  EXPECT_EQ(ToUpper("az\xE0\xF6\xF8\xFE\x9A\x9C\x9E\xFF\xD7\xF7\xDF@[`{ 1="),
            "AZ\xC0\xD6\xD8\xDE\x8A\x8C\x8E\x9F\xD7\xF7\xDF@[`{ 1=");
}

}  // namespace
}  // namespace loquitor::testing
