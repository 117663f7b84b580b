#include "core/dictionary_store.h"

#include <gtest/gtest.h>

#include <string>

#include "link/fresh_profile.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

using namespace std::string_view_literals;

class DictionaryStoreTest : public ::testing::Test {
 protected:
  std::string Get(std::string_view zWord, std::string_view zDefault = "NoEntry") {
    return store.GetDictionaryValue("Words", zWord, zDefault);
  }

  TempFolder folder;
  DictionaryStore store{folder.Path()};
};

TEST_F(DictionaryStoreTest, TellsAMissingWordFromAnEmptyOne) {
  EXPECT_EQ(Get("hello"), "NoEntry");
  WriteBytes(store.File(),
             "[WORDS]\r\nHello=\\HE \\EH \\LO \\OW\r\nempty=\r\nblank= \t\r\n"
             "quoted=\" \\HE \0 \0\"\r\nonly=\" \0 \"\r\ntwice=1\r\nTWICE=2\r\n"sv);
  const std::pair<std::string_view, std::string_view> rows[] = {{"hello", "\\HE \\EH \\LO \\OW"},
                                                                {"HELLO", "\\HE \\EH \\LO \\OW"},
                                                                {" Hello ", "\\HE \\EH \\LO \\OW"},
                                                                {"empty", ""},
                                                                {"blank", ""},
                                                                {"quoted", "\\HE"},
                                                                {"only", ""},
                                                                {"twice", "1"},
                                                                {"none", "NoEntry"},
                                                                {"", "NoEntry"}};
  for (const auto& [word, entry] : rows) {
    EXPECT_EQ(Get(word), entry) << word;
    EXPECT_EQ(DictionaryStore::EntryIn(*FreshIndexOf(store.File()), word),
              entry == "NoEntry" ? "" : entry)
        << word;
  }
  EXPECT_EQ(Get("none", "  a default \0"sv), "a default");
}

TEST_F(DictionaryStoreTest, SavesAWordAndSeesItAtOnce) {
  const std::string longEntry(3000, 'x');
  ASSERT_TRUE(store.SaveDictionaryValue("Words", "Hello", "  \\HE\r\n\r\n\\LO "));
  EXPECT_EQ(Get("hello"), "\\HE \\LO");
  ASSERT_TRUE(store.SaveDictionaryValue("Words", "HELLO", longEntry));
  EXPECT_EQ(Get("hello"), longEntry.substr(0, 2559));
  EXPECT_EQ(Get("none", longEntry), longEntry.substr(0, 2559));
  EXPECT_EQ(ReadBytes(store.File()), "[Words]\r\nHello=" + longEntry + "\r\n");
  EXPECT_FALSE(store.SaveDictionaryValue("Words", "a=b", ""));
}

}  // namespace
}  // namespace loquitor::testing
