#include "link/letter_case.h"

#include <gtest/gtest.h>

namespace loquitor {
namespace {

TEST(LetterCase, CapitalsOfTheCodePageBecomeSmallAndAllElseStays) {
  const std::string capitals = "AZ\xC0\xD6\xD8\xDE\x8A\x8C\x8E\x9F";
  const std::string small = "az\xE0\xF6\xF8\xFE\x9A\x9C\x9E\xFF";
  EXPECT_EQ(ToLower(capitals), small);
  int changed = 0;
  for (int code = 0; code < 256; ++code) {
    const char character = static_cast<char>(code);
    const char lower = LowerCase(character);
    changed += lower == character ? 0 : 1;
    EXPECT_EQ(LowerCase(lower), lower) << code;
    EXPECT_EQ(LowerCaseTable[static_cast<std::size_t>(code)], lower) << code;
  }
  EXPECT_EQ(changed, 26 + 30 + 4);
  EXPECT_EQ(ToLower("\xD7\xF7\xDF@[`{ 1="), "\xD7\xF7\xDF@[`{ 1=");
}

}  // namespace
}  // namespace loquitor
