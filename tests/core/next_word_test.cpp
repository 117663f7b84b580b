#include "core/next_word.h"

#include <gtest/gtest.h>

#include <string>

#include "core/dictionary_store.h"
#include "tests/support/rows.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

using Text = std::string_view;

class NextWordTest : public ::testing::Test {
 protected:
  void Given(Text zText) { WriteBytes(dictionary.File(), zText); }
  std::string Next(Text zCurrent, const IsWantedSayData& zIsWanted = nullptr) {
    return NextWord(dictionary, zCurrent, zIsWanted).value_or("(none)");
  }

  TempFolder folder;
  DictionaryStore dictionary{folder.Path()};
};

TEST_F(NextWordTest, TheNextWordFollowsInTheOrderOfTheBytesAndTheFirstFollowsTheLast) {
  Given(
      "[words]\r\ndog=\\DD\r\nApple=\\AE\r\n  cat \t=\r\napple=twice\r\n[a=b]\r\n;no=1\n"
      "\xC9t\xE9=1\rzzzzzzzzz!!!=no\r\nzzzzzzzzzz=no\r\nZZ=1\nno sign\n=x\n  =y\n");
  for (const auto& [current, next] : Rows<Text, Text>{{"", ";no"},
                                                      {";no", "[a"},
                                                      {"[a", "apple"},
                                                      {"apple", "cat"},
                                                      {"APPLE", "cat"},
                                                      {"b", "cat"},
                                                      {" cat", ";no"},
                                                      {"cat", "dog"},
                                                      {"cat ", "dog"},
                                                      {"dog", "zz"},
                                                      {"zz", ";no"},
                                                      {"\xC9", ";no"},
                                                      {"\xE9t\xE9", ";no"},
                                                      {"zzzzzzzzz!!!", ";no"}}) {
    EXPECT_EQ(Next(current), next) << current;
  }
}

TEST_F(NextWordTest, AFileWithoutWordsHasNoNextOne) {
  EXPECT_EQ(Next(""), "(none)");  // no file
  for (const char* text : {"", "[words]\r\n", "no sign\n", "=x\n", "zzzzzzzzz!!!=x\n"}) {
    Given(text);
    EXPECT_EQ(Next("") + Next("a"), "(none)(none)") << text;
  }
}

TEST_F(NextWordTest, TheNextWordIsChosenByTheSayDataThatLoadingItWouldMake) {
  Given(
      "stray=\\AA\n[words]\nc=\\KE\nB=\" \"\nd=\nice cream=x\nice=\\AY\nCream=\nb=\\BB\n"
      "[other]\nelse=\\EH\n");
  std::string asked;
  const auto none = [&asked](Text zSayData) {
    asked.append("(").append(zSayData).append(")");
    return false;
  };
  EXPECT_EQ(Next("b", none), "(none)");
  // stray and else are outside the section, the second b is after the first.
  EXPECT_EQ(asked, "( )(\\KE )( )(\\AY  )(\\AY )( )( )( )(\\KE )( )( )(\\AY  )(\\AY )( )( )( )");
  const auto hasData = [](Text zSayData) { return zSayData.find('\\') != Text::npos; };
  for (const auto& [current, withData, without] :
       Rows<Text, Text, Text>{{"", "c", "b"},
                              {"b", "c", "cream"},
                              {"c", "ice", "cream"},
                              {"ice", "ice cream", "stray"},
                              {"ice cream", "c", "stray"},
                              {"stray", "c", "b"}}) {
    EXPECT_EQ(Next(current, hasData), withData) << current;
    EXPECT_EQ(Next(current, std::not_fn(hasData)), without) << current;
  }
}

}  // namespace
}  // namespace loquitor::testing
