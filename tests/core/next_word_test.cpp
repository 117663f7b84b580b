#include "core/next_word.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

class NextWordTest : public ::testing::Test {
 protected:
  void Given(std::string_view zText) { WriteBytes(dictionary.File(), zText); }
  std::string Next(std::string_view zCurrent, const IsWantedSayData& zIsWanted = nullptr) {
    return NextWord(dictionary, zCurrent, zIsWanted).value_or("(none)");
  }

  TempFolder folder;
  DictionaryStore dictionary{folder.Path()};
};

TEST_F(NextWordTest, FollowsTheOrderOfTheBytesAndStartsAgainBehindTheLast) {
  Given(
      "[words]\r\ndog=\\DD\r\nApple=\\AE\r\n  cat \t=\r\napple=twice\r\n[a=b]\r\n;no=1\n"
      "\xC9t\xE9=1\rzzzzzzzzz!!!=no\r\nzzzzzzzzzz=no\r\nZZ=1\nno sign\n=x\n  =y\n");
  const std::pair<std::string_view, std::string_view> rows[] = {
      {"", ";no"},          {";no", "[a"},           {"[a", "apple"},
      {"apple", "cat"},     {"APPLE", "cat"},        {"b", "cat"},
      {" cat", ";no"},      {"cat", "dog"},          {"cat ", "dog"},
      {"dog", "zz"},        {"zz", ";no"},           {"\xC9", ";no"},
      {"\xE9t\xE9", ";no"}, {"zzzzzzzzz!!!", ";no"},
  };
  for (const auto& [current, next] : rows) {
    EXPECT_EQ(Next(current), next) << current;
  }
}

TEST_F(NextWordTest, HasNoneInAFileWithoutWords) {
  EXPECT_EQ(Next(""), "(none)");  // no file
  for (const char* text : {"", "[words]\r\n", "no sign\n", "=x\n", "zzzzzzzzz!!!=x\n"}) {
    Given(text);
    EXPECT_EQ(Next(""), "(none)") << text;
    EXPECT_EQ(Next("a"), "(none)") << text;
  }
}

TEST_F(NextWordTest, AsksForTheSayDataThatLoadingTheWordWouldMake) {
  Given(
      "stray=\\AA\n[words]\nc=\\KE\nB=\" \"\nd=\nice cream=x\nice=\\AY\nCream=\nb=\\BB\n"
      "[other]\nelse=\\EH\n");
  std::string asked;
  const auto none = [&asked](std::string_view zSayData) {
    asked.append("(").append(zSayData).append(")");
    return false;
  };
  EXPECT_EQ(Next("b", none), "(none)");
  // stray and else stand outside the section, the second b behind the first.
  EXPECT_EQ(asked, "( )(\\KE )( )(\\AY  )(\\AY )( )( )( )(\\KE )( )( )(\\AY  )(\\AY )( )( )( )");
  const auto hasData = [](std::string_view zSayData) {
    return zSayData.find_first_not_of(' ') != std::string_view::npos;
  };
  const auto hasNone = [&hasData](std::string_view zSayData) { return !hasData(zSayData); };
  struct Row {
    std::string_view current, withData, without;
  };
  const Row rows[] = {{"", "c", "b"},
                      {"b", "c", "cream"},
                      {"c", "ice", "cream"},
                      {"ice", "ice cream", "stray"},
                      {"ice cream", "c", "stray"},
                      {"stray", "c", "b"}};
  for (const auto& [current, withData, without] : rows) {
    EXPECT_EQ(Next(current, hasData), withData) << current;
    EXPECT_EQ(Next(current, hasNone), without) << current;
  }
}

TEST_F(NextWordTest, SeesTheFileAsItIsNow) {
  Given("a=1\n");
  EXPECT_EQ(Next("a"), "a");
  ASSERT_TRUE(dictionary.SaveDictionaryValue("Words", "b", ""));
  EXPECT_EQ(Next("a"), "b");
  std::filesystem::remove(dictionary.File());
  EXPECT_EQ(Next("a"), "(none)");
}

}  // namespace
}  // namespace loquitor::testing
