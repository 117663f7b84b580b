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

}  // namespace
}  // namespace loquitor::testing
