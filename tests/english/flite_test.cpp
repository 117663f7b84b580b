// From English text to Say Data with the real source of phones.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "english/english_reader.h"
#include "english/pronunciation.h"

namespace loquitor {
namespace {

class Flite : public ::testing::Test {
 protected:
  Flite() { table_.BuildCodeTable(); }

  std::string Read(std::string_view zText) {
    return reader_.ReadText(zText, WordsOf(dictionary_, translator_)).sayData;
  }

  std::unique_ptr<PhoneSource> source_ = CreatePhoneSource();
  CodeTable table_;
  DictionaryStore dictionary_{LOQUITOR_DATA};
  DictionaryStore noDictionary_{"no such folder"};
  SayDataTranslator translator_{table_, dictionary_};
  EnglishReader reader_{*source_, table_};
};

TEST_F(Flite, WritesTheStarterDictionary) {
  std::ifstream file(dictionary_.File());
  std::size_t words = 0;
  std::size_t same = 0;
  for (std::string line; std::getline(file, line);) {
    const std::string word = line.substr(0, line.find('='));
    if (const std::string entry = dictionary_.GetDictionaryValue("Words", word, "");
        !entry.empty()) {
      ++words;
      same += reader_.ReadWord(word) == entry ? 1 : 0;
    }
  }
  EXPECT_EQ(words, 385U);
  EXPECT_GE(same, 360U);
}

TEST_F(Flite, ReadsWordsByTheirNeighbours) {
  const auto record = [this](std::vector<std::string> zWords) {
    return Pronounce(*source_, zWords).back();
  };
  EXPECT_EQ(record({"i", "will", "record"}), PhonesFromText("r ax k1 ao1 r1 d1"));
  EXPECT_NE(record({"the", "record"}), record({"i", "will", "record"}));
}

TEST_F(Flite, MakesCodesOfEveryMnemonic) {
  const std::string sayData =
      Read("The quick brown fox jumps over the lazy dog; 1,234 thermostats aren't $5.99 at NASA.");
  const std::string codes = translator_.MnemonicsToCodes(translator_.ExpandSayData(sayData));
  std::size_t mnemonics = 0;
  for (const char character : translator_.ExpandSayData(sayData)) {
    mnemonics += character == '\\' ? 1 : 0;
  }
  EXPECT_EQ(codes.size(), mnemonics);
  EXPECT_GT(mnemonics, 60U);
}

TEST_F(Flite, OutlivesAnyWord) {
  std::vector<std::string> words = {
      "'''a", "a'''", "a'b'c'd", std::string(60, 'w'), std::string(60, 'a'), "n't", "s", "zzzz"};
  for (char first = 'a'; first <= 'z'; ++first) {
    for (char second = 'a'; second <= 'z'; ++second) {
      words.push_back(std::string{first, second});
      words.push_back(std::string{first, '\'', second});
    }
  }
  for (const std::string& word : words) {
    EXPECT_FALSE(Pronounce(*source_, {&word, 1}).front().empty()) << word;
  }
}

}  // namespace
}  // namespace loquitor
