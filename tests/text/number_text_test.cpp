#include "text/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "tests/support/rows.h"

namespace loquitor::testing {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();

TEST(NumberTextTest, ReadsTheNumberAtTheStart) {
  for (const auto& [text, number] :
       Rows<const char*, double>{{"7abc", 7},         {"12.5", 12.5}, {"\t1 2\n3 ", 123},
                                 {"1\r2", 1},         {"-4", -4},     {"+4", 4},
                                 {"- 4", -4},         {".5", .5},     {"5.", 5},
                                 {"1.2.3", 1.2},      {"1,5", 1},     {"00012", 12},
                                 {"1E2", 100},        {"1d2", 100},   {"1e+2", 1},
                                 {"5E-1", 5},         {"1E", 1},      {"12d+3", 12},
                                 {"1EX", 1},          {"1E2E3", 100}, {"1 E 2", 100},
                                 {"1E400", Infinity}, {"&HFF", 255},  {"& h F F", 255},
                                 {" &H10Z", 16},      {"1&HFF", 1},   {"&HaA9fF0G", 0xAA9FF0}}) {
    EXPECT_EQ(NumberAtStart(text), number) << text;
    EXPECT_TRUE(HasNumberAtStart(text)) << text;
  }
  for (const char* text : {"-0", "0", ".0E7", "&H", "&HZ"}) {
    EXPECT_EQ(NumberAtStart(text), 0) << text;
    EXPECT_FALSE(std::signbit(NumberAtStart(text))) << text;
    EXPECT_TRUE(HasNumberAtStart(text)) << text;
  }
  for (const char* text : {"", "abc", "--4", "-", ".", ".D1", "E5", ".E5", "&", "-&HFF", "&O17",
                           "nan", "inf", "\2405"}) {
    EXPECT_EQ(NumberAtStart(text), 0) << text;
    EXPECT_FALSE(HasNumberAtStart(text)) << text;
  }
}

TEST(NumberTextTest, ReadsNumbersOfAnyLength) {
  const std::string zeros(1'000'000, '0');
  EXPECT_EQ(NumberAtStart(std::string(1'000'000, '9')), Infinity);
  EXPECT_EQ(NumberAtStart(zeros + "7"), 7);
  EXPECT_EQ(NumberAtStart("0." + zeros + "7E1000001"), 7);
  EXPECT_EQ(NumberAtStart("0." + zeros + "7E100"), 0);
  EXPECT_EQ(NumberAtStart("1E" + zeros + "2"), 100);
  EXPECT_EQ(NumberAtStart("-1E999999999999999999999"), -Infinity);
  EXPECT_EQ(NumberAtStart("." + zeros + "1"), 0);
  EXPECT_EQ(NumberAtStart("&H" + std::string(1'000'000, 'F')), Infinity);
  // Exactly half way between two doubles, and a little above it far after the point.
  EXPECT_EQ(NumberAtStart("9007199254740993"), 9007199254740992.0);
  EXPECT_EQ(NumberAtStart("9007199254740993." + zeros + "1"), 9007199254740994.0);
}

TEST(NumberTextTest, RoundsToTheNearestWholeNumberHalvesToEven) {
  const Rows<const char*, int> rows{{"2.5", 2}, {"3.5", 4},    {"-2.5", -2}, {"-3.5", -4},
                                    {"0.5", 0}, {"2.4999", 2}, {"2.5001", 3}};
  for (const auto& [text, whole] : rows) {
    EXPECT_EQ(WholeNumberAtStart(text), whole) << text;
  }
  EXPECT_EQ(WholeNumberAtStart("0.49999999999999994"), 0);
  EXPECT_EQ(WholeNumberAtStart("2147483647.4"), 2147483647);
  EXPECT_EQ(WholeNumberAtStart("-2147483648.5"), -2147483647 - 1);
  for (const char* text : {"2147483647.5", "-2147483649", "99999999999", "1E400", "-1E400"}) {
    EXPECT_EQ(WholeNumberAtStart(text), std::nullopt) << text;
  }
  EXPECT_EQ(RoundToWhole(std::nan("")), std::nullopt);
}

}  // namespace
}  // namespace loquitor::testing
