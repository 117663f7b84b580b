#include "core/silent_parts.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "core/say_data.h"
#include "tests/support/rows.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

using Text = std::string_view;

class SilentPartsTest : public ::testing::Test {
 protected:
  SilentPartsTest() { table.BuildCodeTable(); }

  void GivenDictionary(Text zEntries) {
    WriteBytes(dictionary.File(), "[words]\r\n" + std::string(zEntries));
  }

  /// The silent parts as "start:text", mnemonics with an exclamation mark.
  std::string Silent(Text zSayData) const {
    std::string found;
    for (const SilentPart& part : translator.FindSilentParts(zSayData)) {
      found += found.empty() ? "" : " ";
      found += std::to_string(part.start) + ":";
      found += zSayData.substr(part.start, part.length);
      found += part.kind == SilentPart::Kind::Mnemonic ? "!" : "";
    }
    return found;
  }

  TempFolder folder;
  DictionaryStore dictionary{folder.Path()};
  CodeTable table;
  SayDataTranslator translator{table, dictionary};
};

TEST_F(SilentPartsTest, AreWordsAndMnemonicsWithoutACode) {
  GivenDictionary(
      "hi=\\HE \\EH\r\ndont=\\DO\r\nempty=\r\npause=,\r\nblanks=\"none  none,\"\r\n"
      "wrong=\\XX \\300 \\\r\nbetter=\\XX\\IY\r\n100=\\UW\r\nend=none  \t\r\n");
  for (const auto& [text, silent] :
       Rows<Text, Text>{{"", ""},
                        {" ,\r\n .", ""},
                        {"hi HI, hi", ""},
                        {"helo", "0:helo"},
                        {"hi, helo. you", "4:helo 10:you"},
                        {"don't do'not!", "6:do'not"},
                        {"hi\nhi", "0:hi\nhi"},
                        {"hi\\IY", "0:hi\\IY"},
                        {"empty pause blanks", "0:empty"},
                        {"wrong better end", "0:wrong 13:end"},
                        {"100 200", "4:200"},
                        {"\\iy\\EH \\NTC#1 \\100", ""},
                        {"\\IY\\ZZZ\\EH \\X", "3:\\ZZZ! 11:\\X!"},
                        {"\\0 \\00 \\255 \\256 \\1E9", "3:\\00! 12:\\256! 17:\\1E9!"},
                        {"\\ IY", "0:\\! 2:IY"},
                        {"\\\\IY", "0:\\!"},
                        {".\\I-Y .\\Z-Z-Y.", "7:\\Z-Z-Y!"}}) {
    EXPECT_EQ(Silent(text), silent) << text;
  }
}

TEST_F(SilentPartsTest, WordsSoundWhenAWordThatTheyLeadToDoes) {
  GivenDictionary(
      "a=b c\r\nb=A\r\nc=d b\r\nd=e\r\ne=C \\IY\r\n"  // a circle with a sound in it
      "x=Y none\r\ny=z X\r\nz=x\r\n"                  // and one without
      "p=x a\r\nself=self\r\n");
  EXPECT_EQ(Silent("a b c d e p"), "");
  EXPECT_EQ(Silent("e d c b a"), "");
  EXPECT_EQ(Silent("x p z b y self"), "0:x 4:z 8:y 10:self");
}

TEST_F(SilentPartsTest, AgreeWithWhatTheTranslationMakesOfEachWord) {
  std::string entries;
  std::string text;
  unsigned state = 7;
  const auto random = [&state](unsigned zBound) {
    state = state * 1664525 + 1013904223;
    return (state >> 16) % zBound;
  };
  for (int i = 0; i < 300; ++i) {
    const std::string word = "w" + std::to_string(i);
    entries += word + "=";
    for (unsigned parts = random(4); parts > 0; --parts) {
      entries += random(12) == 0 ? "\\IY " : "w" + std::to_string(random(330)) + " ";
    }
    entries += "\r\n";
    text += word + " ";
  }
  GivenDictionary(entries);
  std::map<std::size_t, std::size_t> silent;
  for (const SilentPart& part : translator.FindSilentParts(text)) {
    silent[part.start] = part.length;
  }
  EXPECT_GT(silent.size(), 30U);
  EXPECT_LT(silent.size(), 270U);
  for (std::size_t start = 0, end = 0; start < text.size(); start = end + 1) {
    end = text.find(' ', start);
    const std::string word = text.substr(start, end - start);
    const bool isSilent = translator.MnemonicsToCodes(translator.ExpandSayData(word)).empty();
    EXPECT_EQ(silent.count(start), isSilent ? 1U : 0U) << word;
  }
}

TEST_F(SilentPartsTest, EachEntryIsReadOnce) {
  int lookUps = 0;
  const EntryLookUp entryOf = [&lookUps](Text zWord) {  // each word names the next one twice
    ++lookUps;
    const int number = std::stoi(std::string(zWord.substr(1)));
    const std::string next = "a" + std::to_string(number + 1);
    return number < 1000 ? next + " " + next : std::string();
  };
  std::string text;
  for (int i = 0; i < 10'000; ++i) {
    text += "a0 A1 ";
  }
  EXPECT_EQ(FindSilentParts(text, entryOf, table).size(), 20'000U);
  EXPECT_EQ(lookUps, 1001);
}

}  // namespace
}  // namespace loquitor::testing
