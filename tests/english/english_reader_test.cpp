// English text to Say Data, with phones that a script gives.
#include "english/english_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "english/blank_entries.h"
#include "english/new_words.h"
#include "tests/english/say_data_words_for_tests.h"
#include "tests/support/scripted_phones.h"

namespace loquitor {
namespace {

using ::testing::ElementsAre;
using testing::ScriptedPhones;
using testing::WordsWithEntries;

class EnglishReading : public ::testing::Test {
 protected:
  EnglishReading() { table_.BuildCodeTable(); }

  std::string Read(std::string_view zText) { return reader_.ReadText(zText, words_).sayData; }

  ScriptedPhones source_;
  CodeTable table_;
  EnglishReader reader_{source_, table_};
  SayDataWords words_ = WordsWithEntries({"robot", "r2d2"});
};

TEST_F(EnglishReading, KeepsWordsOfTheDictionaryAndSoundsTheOthers) {
  EXPECT_EQ(Read("See the Robot, see R2D2. \\PITCH \\100 me"),
            "\\SE\\IY \\DH\\AX Robot, \\SE\\IY R2D2 \\P3 \\PITCH \\100 \\MM\\IY");
}

TEST_F(EnglishReading, ReadsWhatItWroteAsItIs) {
  const std::string once = Read("See me! The robot (me) - see TV... \\IY");
  EXPECT_EQ(Read(once), once);
}

TEST_F(EnglishReading, KeepsParagraphs) {
  const std::string two = "\\SE\\IY \\P3 \n\nrobot";
  for (const char* text : {"see\n\nrobot", "see.\n\nrobot", "see,\r\n \t\r\nrobot",
                           "\n\nsee\n\n\n\nrobot\n\n", "see\n\n-\n\nrobot", "see \\P3 \n\nrobot"}) {
    EXPECT_EQ(Read(text), two) << text;
  }
  EXPECT_EQ(Read("see\nrobot\n"), "\\SE\\IY robot");
  EXPECT_THAT(reader_.ReadText("xyzzy €\n\n😀 see", words_).unread,
              ElementsAre("xyzzy", "euro", "😀"));
}

TEST_F(EnglishReading, ShowsTheSourceASentenceAtATime) {
  Read("See the robot, me. See R2D2 me");
  EXPECT_THAT(source_.asked,
              ElementsAre(ElementsAre("see", "the", "robot", "me"), ElementsAre("see", "me")));
}

TEST_F(EnglishReading, AsksForNoMoreThanTheSourceTakes) {
  std::string text;
  for (int i = 0; i < 250; ++i) {
    text += "me ";
  }
  EXPECT_EQ(Read(text).size(), 250 * std::string("\\MM\\IY ").size() - 1);
  for (const auto& words : source_.asked) {
    EXPECT_LE(words.size(), PhoneSource::MaxWords);
  }
}

TEST_F(EnglishReading, SpellsLetters) {
  EXPECT_EQ(Read("TVs"), "\\TU\\IY \\VV\\IY\\ZZ");
}

TEST_F(EnglishReading, NeverTakesAContractionForAnotherWord) {
  EXPECT_EQ(Read("isn't wasn't aren't we're robot's"),
            "\\IH\\ZZ\\AX\\NE\\TT \\WW\\OH\\ZZ\\AX\\NE\\TT \\AWRR\\NE\\TT \\WW\\IYRR");
}

TEST_F(EnglishReading, TellsOfWordsWithoutPhones) {
  const auto reading = reader_.ReadText("see xyzzy € 😀 me", words_);
  EXPECT_EQ(reading.sayData, "\\SE\\IY \\MM\\IY");
  EXPECT_THAT(reading.unread, ElementsAre("😀", "xyzzy", "euro"));
}

TEST_F(EnglishReading, WritesAnEntryOfMnemonicsAlone) {
  EXPECT_EQ(reader_.ReadWord("robot"), "\\RR \\OW \\BO \\OH \\TT");
  EXPECT_EQ(reader_.ReadWord("TV"), "\\TU \\IY \\VV \\IY");
  EXPECT_EQ(reader_.ReadWord("xyzzy"), "");
  EXPECT_EQ(reader_.ReadWord(std::string(1000, 't')), "") << "longer than an entry may be";
}

TEST_F(EnglishReading, FillsTheBlankEntriesOfADictionary) {
  const auto goOn = [](std::size_t) { return true; };
  const auto filled = FillBlankEntries(
      "[words]\nsee=\nMe = \t\nrobot=\\RR\n;is=\nwas\nxyzzy=\nwe'll=\n\nis=", reader_, goOn);
  ASSERT_TRUE(filled);
  EXPECT_EQ(filled->text,
            "[words]\nsee=\\SE \\IY\nMe =\\MM \\IY\nrobot=\\RR\n;is=\nwas\nxyzzy=\nwe'll=\n\n"
            "is=\\IH \\ZZ");
  EXPECT_EQ(filled->count, 3U);
  EXPECT_THAT(filled->unread, ElementsAre("xyzzy", "we'll"));
  EXPECT_EQ(FillBlankEntries("", reader_, goOn)->text, "");
}

TEST_F(EnglishReading, FindsTheNewWordsOfAList) {
  const NewWords words = SoundOutNewWords(
      "\uFEFFsee \u201CMe\u201D robot is\u2014SEE 'was' we\u2019ll caf\xE9 cafe\u0301 12", reader_,
      words_);
  std::vector<std::string> found;
  for (const ProfileValue& entry : words.entries) {
    found.push_back(entry.key + "=" + entry.value);
  }
  EXPECT_THAT(found,
              ElementsAre("see=\\SE \\IY", "me=\\MM \\IY", "is=\\IH \\ZZ", "was=\\WW \\OH \\ZZ"));
  EXPECT_THAT(words.unread, ElementsAre("we'll", "caf\u00E9", "cafe\u0301"));
}

TEST_F(EnglishReading, CanBeCancelledWhileItFills) {
  std::vector<std::size_t> progress;
  EXPECT_FALSE(FillBlankEntries("see=\nme=\nis=\n", reader_, [&](std::size_t zBytes) {
    progress.push_back(zBytes);
    return zBytes < 8;
  }));
  EXPECT_THAT(progress, ElementsAre(5, 9));
}

}  // namespace
}  // namespace loquitor
