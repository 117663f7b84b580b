#include "core/dictionary_store.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/rows.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

using namespace std::string_view_literals;
using Text = std::string_view;

class DictionaryStoreTest : public ::testing::Test {
 protected:
  void Given(Text zText) { WriteBytes(dictionary.File(), zText); }
  std::string Get(Text zWord, Text zDefault = "NoEntry") {
    return dictionary.GetDictionaryValue("Words", zWord, zDefault);
  }
  bool Save(Text zWord, Text zValue) {
    return dictionary.SaveDictionaryValue("Words", zWord, zValue);
  }

  TempFolder folder;
  DictionaryStore dictionary{folder.Path()};
};

TEST_F(DictionaryStoreTest, TellsAMissingWordFromAnEmptyOne) {
  EXPECT_EQ(Get("hello"), "NoEntry");
  Given(
      "[WORDS]\r\nHello=\\HE \\EH\r\nempty=\r\nblank= \t\r\nquoted=\" \\HE \0 \0\"\r\n"
      "only=\" \0 \"\r\ntwice=1\r\nTWICE=2\r\n"sv);
  const Rows<Text, Text> rows{{"hello", "\\HE \\EH"}, {" HELLO ", "\\HE \\EH"}, {"empty", ""},
                              {"blank", ""},          {"quoted", "\\HE"},       {"only", ""},
                              {"twice", "1"},         {"none", "NoEntry"},      {"", "NoEntry"}};
  for (const auto& [word, entry] : rows) {
    EXPECT_EQ(Get(word), entry) << word;
    EXPECT_EQ(dictionary.Snapshot().Entry(word), entry == "NoEntry" ? "" : entry) << word;
  }
  EXPECT_EQ(Get("none", "  a default \0"sv), "a default");
}

TEST_F(DictionaryStoreTest, SavesAWordAndSeesItAtOnce) {
  const std::string longEntry(3000, 'x');
  ASSERT_TRUE(Save("Hello", "  \\HE\r\n\r\n\\LO "));
  EXPECT_EQ(Get("hello"), "\\HE\\LO");
  ASSERT_TRUE(Save("HELLO", longEntry));
  EXPECT_EQ(Get("hello"), longEntry.substr(0, 2559));
  EXPECT_EQ(Get("none", longEntry), longEntry.substr(0, 2559));
  EXPECT_EQ(ReadBytes(dictionary.File()), "[Words]\r\nHello=" + longEntry + "\r\n");
  EXPECT_FALSE(Save("a=b", ""));
}

}  // namespace
}  // namespace loquitor::testing
