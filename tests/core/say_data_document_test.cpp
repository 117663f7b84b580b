// What docs/say-data.md says is what the program does.

#include <gtest/gtest.h>

#include <regex>
#include <sstream>

#include "core/say_data.h"
#include "tests/support/temp_folder.h"

namespace loquitor {
namespace {

class SayDataDocumentTest : public ::testing::Test {
 protected:
  SayDataDocumentTest() { table.BuildCodeTable(); }

  /// The places of the document that `zPattern` fits.
  std::vector<std::smatch> Places(const char* zPattern) const {
    const std::regex pattern(zPattern);
    return {std::sregex_iterator(document.begin(), document.end(), pattern), {}};
  }

  const std::string document =
      testing::ReadBytes(std::filesystem::path(LOQUITOR_DATA) / "../docs/say-data.md");
  testing::TempFolder folder;
  CodeTable table;
};

TEST_F(SayDataDocumentTest, ListsTheSoundsWithTheirCodes) {
  int sounds = 0;
  for (const std::smatch& row : Places(R"(`(\\[^`\\]+)` \| (\d+) \|)")) {
    EXPECT_EQ(table.GetCodeIndex(row.str(1)), std::stoi(row[2])) << row.str(1);
    sounds += table.GetCodeIndex(row.str(1)) >= 128 ? 1 : 0;
  }
  EXPECT_EQ(sounds, 200 - 128);
}

TEST_F(SayDataDocumentTest, ListsThePitchesOfTheNotes) {
  int notes = 0;
  for (const std::smatch& row : Places(R"(\n\| (\d) \|((?: \d+ \|){12}))")) {
    int index = 300 + 20 * (std::stoi(row[1]) - 1);
    std::istringstream pitches(row[2]);
    for (std::string pitch, bar; pitches >> pitch >> bar; ++notes) {
      EXPECT_EQ(table.GetNotePitch(static_cast<std::int16_t>(++index)), std::stoi(pitch));
    }
  }
  EXPECT_EQ(notes, 36);
}

TEST_F(SayDataDocumentTest, TranslatesItsExamples) {
  testing::WriteBytes(folder / "Loquitor.Dic", "[words]\r\nhello=\\HE \\EH \\LO \\OW\r\n");
  const DictionaryStore dictionary(folder.Path());
  const SayDataTranslator translator(table, dictionary);
  const auto examples = Places(R"(\| `([^`]+)` \| `([^`]+)` \| ([^|]+) \|)");
  for (const std::smatch& row : examples) {
    const std::string expanded = translator.ExpandSayData(row.str(1));
    EXPECT_EQ(expanded, row[2]);
    const std::string codes = CodeListText(translator.MnemonicsToCodes(expanded));
    EXPECT_EQ(codes.empty() ? "none" : codes, row[3]);
  }
  EXPECT_EQ(examples.size(), 5U);
}

}  // namespace
}  // namespace loquitor
