// What docs/say-data.md says is what the program does.

#include <gtest/gtest.h>

#include <sstream>

#include "core/say_data.h"
#include "tests/support/temp_folder.h"

namespace loquitor {
namespace {

using Row = std::vector<std::string>;

/// The cells of the tables in a document, row by row, without blanks around them.
std::vector<Row> TableRows(const std::string& zDocument) {
  std::vector<Row> rows;
  std::istringstream lines(zDocument);
  for (std::string line; std::getline(lines, line);) {
    if (line.substr(0, 2) != "| ") {
      continue;
    }
    Row& row = rows.emplace_back();
    std::istringstream cells(line.substr(2));
    for (std::string cell; std::getline(cells >> std::ws, cell, '|');) {
      row.push_back(cell.substr(0, cell.find_last_not_of(' ') + 1));
    }
  }
  return rows;
}

bool IsNumber(const std::string& zCell) {
  return !zCell.empty() && zCell.find_first_not_of("0123456789") == std::string::npos;
}

/// The text of a cell that is one piece of code, else nothing.
std::string CodeOf(const std::string& zCell) {
  const bool isCode =
      zCell.size() > 2 && zCell.front() == '`' && zCell.find('`', 1) == zCell.size() - 1;
  return isCode ? zCell.substr(1, zCell.size() - 2) : "";
}

class SayDataDocumentTest : public ::testing::Test {
 protected:
  SayDataDocumentTest() {
    table.BuildCodeTable();
    testing::WriteBytes(folder / "Loquitor.Dic", "[words]\r\nhello=\\HE \\EH \\LO \\OW\r\n");
  }

  const std::vector<Row> rows =
      TableRows(testing::ReadBytes(std::filesystem::path(LOQUITOR_DATA) / "../docs/say-data.md"));
  testing::TempFolder folder;
  CodeTable table;
  DictionaryStore dictionary{folder.Path()};
  SayDataTranslator translator{table, dictionary};
};

/// Whether the row gives Say Data, its expansion and its codes.
bool IsExample(const Row& zRow) {
  return zRow.size() == 3 && !CodeOf(zRow[0]).empty() && !CodeOf(zRow[1]).empty();
}

TEST_F(SayDataDocumentTest, ListsTheSoundsWithTheirCodes) {
  int count = 0;
  for (const Row& row : rows) {
    for (std::size_t i = 0; i + 1 < row.size() && !IsExample(row); ++i) {
      const std::string name = CodeOf(row[i]);
      if (!name.empty() && IsNumber(row[i + 1])) {
        EXPECT_EQ(table.GetCodeIndex(name), std::stoi(row[i + 1])) << name;
        count += table.GetCodeIndex(name) >= 128 ? 1 : 0;
      }
    }
  }
  EXPECT_EQ(count, 200 - 128);
}

TEST_F(SayDataDocumentTest, ListsThePitchesOfTheNotes) {
  int count = 0;
  for (const Row& row : rows) {
    if (row.size() == 13 && IsNumber(row[0])) {
      const int beforeFirst = 300 + 20 * (std::stoi(row[0]) - 1);
      for (std::size_t position = 1; position < row.size(); ++position, ++count) {
        const int index = beforeFirst + static_cast<int>(position);
        EXPECT_EQ(table.GetNotePitch(static_cast<std::int16_t>(index)), std::stoi(row[position]));
      }
    }
  }
  EXPECT_EQ(count, 36);
}

TEST_F(SayDataDocumentTest, TranslatesItsExamples) {
  int count = 0;
  for (const Row& row : rows) {
    if (IsExample(row)) {
      const std::string expanded = translator.ExpandSayData(CodeOf(row[0]));
      EXPECT_EQ(expanded, CodeOf(row[1]));
      const std::string codes = CodeListText(translator.MnemonicsToCodes(expanded));
      EXPECT_EQ(codes.empty() ? "none" : codes, row[2]);
      ++count;
    }
  }
  EXPECT_EQ(count, 5);
}

}  // namespace
}  // namespace loquitor
