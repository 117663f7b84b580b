#include "core/word_import.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "tests/support/rows.h"

namespace loquitor::testing {
namespace {

using namespace std::string_literals;

struct Imported {
  std::string text;
  std::size_t count;
  std::vector<std::string> lookups;
};

Imported Import(std::string_view zList, std::size_t zPiece = std::string_view::npos,
                const std::set<std::string, std::less<>>& zKnown = {}) {
  std::vector<std::string> lookups;
  WordImport import([&](std::string_view zWord) {
    lookups.emplace_back(zWord);
    return zKnown.count(zWord) == 0;
  });
  for (std::size_t at = 0; at < zList.size(); at += std::min(zPiece, zList.size() - at)) {
    import.Feed(zList.substr(at, zPiece));
  }
  import.Finish();
  return {import.AddedText(), import.Count(), lookups};
}

TEST(WordImport, RunsOfLettersAreWordsAndEverythingElseSeparatesThem) {
  for (const auto& [list, added, count] : Rows<std::string, std::string, std::size_t>{
           {" \r\n\t123'=\\", "", 0},
           {"don't", "don=\nt=\n", 2},
           {"a1b2c", "a=\nb=\nc=\n", 3},
           {"one two\r\nTHREE\nfour\rfive", "one=\ntwo=\nthree=\nfour=\nfive=\n", 5},
           {"na\xC3\xAFve", "na=\nve=\n", 2},
           {"\xEF\xBB\xBFgo", "go=\n", 1},
           {"x\0y\x7Fz"s, "x=\ny=\nz=\n", 3},
           {"@[`{AZaz@", "azaz=\n", 1}}) {
    for (const std::size_t piece : {1U, 2U, 3U, 1000U}) {
      const Imported imported = Import(list, piece);
      EXPECT_EQ(imported.text, added) << list << " in pieces of " << piece;
      EXPECT_EQ(imported.count, count) << list;
    }
  }
}

TEST(WordImport, OnlyWordsThatTheDictionaryLacksAreAdded) {
  const Imported imported = Import("The cat THE hat", 5, {"the", "hat"});
  EXPECT_EQ(imported.text, "cat=\n");
  EXPECT_EQ(imported.count, 1U);
  EXPECT_EQ(imported.lookups, (std::vector<std::string>{"the", "cat", "the", "hat"}));
}

}  // namespace
}  // namespace loquitor::testing
