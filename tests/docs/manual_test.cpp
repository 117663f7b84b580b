#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

#include "core/code_table.h"
#include "core/dictionary_store.h"
#include "core/say_data.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

struct Example {
  int line;  ///< of the manual
  std::string input;
  std::string output;
};

/// The examples of the blocks of one kind. In a `say` block a line is Say Data and the line "= ..."
/// below it the codes that it becomes; in an `english` block English and its Say Data; in a
/// `console` block a line "$ ..." is a command and the lines below it are what it prints.
std::vector<Example> ExamplesOf(const std::string& zKind) {
  std::istringstream manual(ReadBytes(MANUAL));
  std::vector<Example> examples;
  bool isInside = false;
  int number = 0;
  for (std::string line; std::getline(manual, line);) {
    ++number;
    if (line.starts_with("```")) {
      isInside = line == "```" + zKind;
    } else if (isInside && zKind == "console" && line.starts_with("$ ")) {
      examples.push_back({number, line.substr(2), ""});
    } else if (isInside && zKind == "console") {
      examples.back().output += line + "\n";
    } else if (isInside && line.starts_with("= ")) {
      examples.back().output = line.substr(2);
    } else if (isInside) {
      examples.push_back({number, line, ""});
    }
  }
  return examples;
}

/// A folder with loquitor-say and the starter dictionary, as an owner has it.
class Manual : public ::testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::copy_file(LOQUITOR_SAY, folder / "loquitor-say");
    std::filesystem::copy_file(STARTER_DICTIONARY, folder / "Loquitor.Dic");
  }

  std::string Run(const std::string& zCommand) const {
    const std::string line = "PATH='" + folder.Path().string() + "':\"$PATH\"; " + zCommand;
    FILE* pipe = popen(line.c_str(), "r");
    std::string output;
    std::array<char, 256> buffer{};
    while (fgets(buffer.data(), buffer.size(), pipe) != nullptr) {
      output += buffer.data();
    }
    EXPECT_EQ(pclose(pipe), 0) << zCommand;
    return output;
  }

  TempFolder folder;
};

TEST_F(Manual, ItsSayDataBecomesTheCodesThatItShows) {
  CodeTable codeTable;
  codeTable.BuildCodeTable();
  const DictionaryStore dictionary(folder.Path());
  const SayDataTranslator translator(codeTable, dictionary);
  const std::vector<Example> examples = ExamplesOf("say");
  ASSERT_FALSE(examples.empty());
  for (const Example& example : examples) {
    const std::string codes = translator.MnemonicsToCodes(translator.ExpandSayData(example.input));
    EXPECT_EQ(CodeListText(codes), example.output) << "line " << example.line;
  }
}

#ifdef LOQUITOR_READS_ENGLISH
TEST_F(Manual, ItsEnglishBecomesTheSayDataThatItShows) {
  const std::vector<Example> examples = ExamplesOf("english");
  ASSERT_FALSE(examples.empty());
  for (const Example& example : examples) {
    EXPECT_EQ(Run("loquitor-say --english --say-data \"" + example.input + "\""),
              example.output + "\n")
        << "line " << example.line;
  }
}
#endif

TEST_F(Manual, ItsCommandsPrintWhatItShows) {
  const std::vector<Example> examples = ExamplesOf("console");
  ASSERT_FALSE(examples.empty());
  for (const Example& example : examples) {
    EXPECT_EQ(Run(example.input), example.output) << "line " << example.line;
  }
}

}  // namespace
}  // namespace loquitor::testing
