// The dictionary by its words: reading and saving one, and stepping to the next.

#include <gtest/gtest.h>

#include <string>

#include "core/dictionary_store.h"
#include "core/next_word.h"
#include "link/fresh_profile.h"
#include "tests/support/rows.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

using namespace std::string_view_literals;
using Text = std::string_view;

class DictionaryTest : public ::testing::Test {
 protected:
  void Given(Text zText) { WriteBytes(dictionary.File(), zText); }
  std::string Get(Text zWord, Text zDefault = "NoEntry") {
    return dictionary.GetDictionaryValue("Words", zWord, zDefault);
  }
  bool Save(Text zWord, Text zValue) {
    return dictionary.SaveDictionaryValue("Words", zWord, zValue);
  }
  std::string Next(Text zCurrent, const IsWantedSayData& zIsWanted = nullptr) {
    return NextWord(dictionary, zCurrent, zIsWanted).value_or("(none)");
  }

  TempFolder folder;
  DictionaryStore dictionary{folder.Path()};
};

TEST_F(DictionaryTest, TellsAMissingWordFromAnEmptyOne) {
  EXPECT_EQ(Get("hello"), "NoEntry");
  Given(
      "[WORDS]\r\nHello=\\HE \\EH\r\nempty=\r\nblank= \t\r\nquoted=\" \\HE \0 \0\"\r\n"
      "only=\" \0 \"\r\ntwice=1\r\nTWICE=2\r\n"sv);
  const Rows<Text, Text> rows{{"hello", "\\HE \\EH"}, {" HELLO ", "\\HE \\EH"}, {"empty", ""},
                              {"blank", ""},          {"quoted", "\\HE"},       {"only", ""},
                              {"twice", "1"},         {"none", "NoEntry"},      {"", "NoEntry"}};
  for (const auto& [word, entry] : rows) {
    EXPECT_EQ(Get(word), entry) << word;
    EXPECT_EQ(DictionaryStore::EntryIn(*FreshIndexOf(dictionary.File()), word),
              entry == "NoEntry" ? "" : entry)
        << word;
  }
  EXPECT_EQ(Get("none", "  a default \0"sv), "a default");
}

TEST_F(DictionaryTest, SavesAWordAndSeesItAtOnce) {
  const std::string longEntry(3000, 'x');
  ASSERT_TRUE(Save("Hello", "  \\HE\r\n\r\n\\LO "));
  EXPECT_EQ(Get("hello"), "\\HE \\LO");
  ASSERT_TRUE(Save("HELLO", longEntry));
  EXPECT_EQ(Get("hello"), longEntry.substr(0, 2559));
  EXPECT_EQ(Get("none", longEntry), longEntry.substr(0, 2559));
  EXPECT_EQ(ReadBytes(dictionary.File()), "[Words]\r\nHello=" + longEntry + "\r\n");
  EXPECT_FALSE(Save("a=b", ""));
  EXPECT_EQ(Next("hello"), "hello");
  ASSERT_TRUE(Save("Next", ""));
  EXPECT_EQ(Next("hello"), "next");
}

TEST_F(DictionaryTest, TheNextWordFollowsTheOrderOfTheBytesAndStartsAgainBehindTheLast) {
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

TEST_F(DictionaryTest, AFileWithoutWordsHasNoNextOne) {
  EXPECT_EQ(Next(""), "(none)");  // no file
  for (const char* text : {"", "[words]\r\n", "no sign\n", "=x\n", "zzzzzzzzz!!!=x\n"}) {
    Given(text);
    EXPECT_EQ(Next("") + Next("a"), "(none)(none)") << text;
  }
}

TEST_F(DictionaryTest, TheNextWordIsChosenByTheSayDataThatLoadingItWouldMake) {
  Given(
      "stray=\\AA\n[words]\nc=\\KE\nB=\" \"\nd=\nice cream=x\nice=\\AY\nCream=\nb=\\BB\n"
      "[other]\nelse=\\EH\n");
  std::string asked;
  const auto none = [&asked](Text zSayData) {
    asked.append("(").append(zSayData).append(")");
    return false;
  };
  EXPECT_EQ(Next("b", none), "(none)");
  // stray and else stand outside the section, the second b behind the first.
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
