#include <QToolTip>

#include "tests/phrase/phrase_window.h"
#include "ui/phrase/dictionary_words.h"

namespace loquitor::testing {
namespace {

constexpr char Pets[] = "dog=\\DO\r\nCat=\\KE \\AY\r\napple=\r\n";

class DictionaryBrowserTest : public PhraseWindowTest {
 protected:
  void SetUp() override {
    Open();
    Tick("chkApplyControlsBeforeSayData", false);
  }
  void GivenModes(bool zIsWith, bool zIsWithout) {
    Tick("chkWith", zIsWith);
    Tick("chkWithout", zIsWithout);
  }

  /// Presses the button. Returns the word, the Say Data and what was said.
  std::string Step() {
    Press("btnNextWord");
    return Box("txtDict")->Text() + ": " + SayData() + ": " + Sent();
  }
};

TEST_F(DictionaryBrowserTest, LoadsWordsAtTheCaretOrInPlaceOfTheText) {
  const Rows<const char*, const char*, const char*, const char*> rows = {
      {"cmdLoadInsert", "cat  DOG ", "x |", "x \\KE \\AY \\DO |"},
      {"cmdLoadInsert", "cat dog", "a[b]  c", "a\\KE \\AY   \\DO |c"},
      {"cmdLoadInsert", "dog nothing", "x|  y", "x  \\DO  |y"},
      {"cmdLoadOver", "cat dog", "old |text", "\\KE \\AY \\DO |"},
      {"cmdLoadOver", "nothing", "old |text", " |"},
      {"cmdLoadOver", "", "old |text", "|"}};
  GivenDictionary(Pets);
  for (const auto& [button, words, before, after] : rows) {
    GivenSayData(before);
    const std::string old = SayDataBox()->Text();
    Type("txtDict", words);
    Press(button);
    EXPECT_EQ(SayData(), after) << words;
    EXPECT_TRUE(SayDataBox()->hasFocus());
    SayDataBox()->undo();
    EXPECT_EQ(SayDataBox()->Text(), old) << "one step back from " << after;
  }
  EXPECT_EQ(Sent(), "");
}

TEST_F(DictionaryBrowserTest, StepsToAllWordsOrThoseWithOrWithoutData) {
  GivenDictionary(Pets);
  EXPECT_EQ(Step(), "apple:  |: ");
  EXPECT_EQ(Step(), "cat: \\KE \\AY |: \xC2\x84");
  EXPECT_EQ(Step(), "dog: \\DO |: \xAF");
  EXPECT_EQ(Step(), "apple:  |: ") << "the first follows the last";
  Type("txtDict", "BOY");
  Tick("chkApplyControlsBeforeSayData", true);
  EXPECT_EQ(Step(), "cat: \\KE \\AY |: " + DefaultPrefix + "\xC2\x84");
  Tick("chkApplyControlsBeforeSayData", false);
  GivenModes(true, false);
  EXPECT_EQ(Step(), "dog: \\DO |: \xAF");
  EXPECT_EQ(Step(), "cat: \\KE \\AY |: \xC2\x84");
  Box("txtfindwith")->SetText("\\ke");
  EXPECT_EQ(Step(), "cat: \\KE \\AY |: \xC2\x84") << "the only match again";
  GivenModes(false, true);
  Tick("chkApplyControlsBeforeSayData", true);
  EXPECT_EQ(Step(), "apple:  |: ") << "says nothing, not even the prefix";
}

TEST(DictionaryWords, SayWhenAnEntryIsTooLongToComeBackWhole) {
  const std::string longest(DictionaryStore::MaxEntry, 'x');
  EXPECT_EQ(CutNotice("  " + longest + " \n"), "");
  EXPECT_EQ(CutNotice("\n" + longest), "") << "line breaks are left out";
  const QString notice = CutNotice(longest + "\ny");
  EXPECT_TRUE(notice.contains("2,560") && notice.contains("2,559")) << notice.toStdString();
}

TEST(DictionaryWords, AreFoundByTheCapitalsOfAText) {
  const Rows<const char*, const char*, bool> rows = {{"\\IY \\EH ", "\\eh", true},
                                                     {"\\iy ", "\\iy", false},
                                                     {"\xC9 ", "\xE9", true},
                                                     {"\x8A\x9F ", "\x9A\xFF", true}};
  for (const auto& [sayData, findWith, isWanted] : rows) {
    EXPECT_EQ(IsWanted(NextWordMode::WithData, sayData, findWith), isWanted) << findWith;
    EXPECT_TRUE(IsWanted(NextWordMode::Any, sayData, findWith)) << "not used in other modes";
  }
}

TEST_F(DictionaryBrowserTest, EndsASearchThatCannotSucceed) {
  const Rows<const char*, bool, bool, const char*> rows = {
      {nullptr, true, true, "no words"},  // there is no file yet
      {"zzzzzzzzzz=\\IY\r\n", true, true, "no words"},
      {"a=\r\nb=\r\n", true, false, "has data"},
      {"a=x\r\nb=y\r\n", false, true, "has data"}};
  for (const auto& [entries, isWith, isWithout, message] : rows) {
    if (entries != nullptr) {
      GivenDictionary(entries);
    }
    GivenModes(isWith, isWithout);
    GivenSayData("as it [was]");
    Type("txtDict", "A word ");
    EXPECT_EQ(Step(), "A word : as it [was]: ") << message;
    EXPECT_TRUE(QToolTip::text().contains(message));
  }
  EXPECT_EQ(Told(), QStringList());
  GivenModes(false, false);
  EXPECT_EQ(Step(), "A word : as it [was]: ");
  EXPECT_EQ(Told(), QStringList("Must select either With Data or Without Data or Both"));
}

TEST_F(DictionaryBrowserTest, UndoBringsTheWordBackWithItsSayData) {
  GivenDictionary(Pets);
  GivenModes(true, false);
  const auto press = [&](Qt::Key zKey) {
    QTest::keyClick(SayDataBox(), zKey, Qt::ControlModifier);
    return Box("txtDict")->Text() + ": " + SayDataBox()->Text();
  };
  Step();
  Step();
  EXPECT_EQ(press(Qt::Key_Z), "cat: \\KE \\AY ");
  Press("cmdSave");
  EXPECT_EQ(ReadBytes(dictionary.File()), std::string("[words]\r\n") + Pets);
  EXPECT_EQ(press(Qt::Key_Z), ": ");
  SayDataBox()->redo();
  EXPECT_EQ(Box("txtDict")->Text(), "cat");
  QTest::keyClicks(SayDataBox(), "x");
  EXPECT_EQ(press(Qt::Key_Z), "cat: \\KE \\AY ") << "undoes only what was typed";
  Type("txtDict", "mine");
  EXPECT_EQ(press(Qt::Key_Z), "mine: ");
}

TEST_F(DictionaryBrowserTest, SavesTheSayDataUnderTheWord) {
  GivenDictionary(Pets);
  Type("txtDict", "  Hello ");
  GivenSayData("\\HE \\EH\n\n\\LO \\OW|");
  Press("cmdSave");
  EXPECT_TRUE(SayDataBox()->hasFocus());
  Type("txtDict", "DOG");
  GivenSayData("\\DE|");
  Press("cmdSave");
  EXPECT_EQ(ReadBytes(dictionary.File()),
            "[words]\r\ndog=\\DE\r\nCat=\\KE \\AY\r\napple=\r\nHello=\\HE \\EH\\LO \\OW\r\n");
  EXPECT_TRUE(prompts.asked.empty());
}

TEST_F(DictionaryBrowserTest, SavesNothingUnderAWordThatTheFileCannotHold) {
  const Rows<const char*, const char*> rows = {{"two words", "Cannot save mutil-word"},
                                               {"a=b", "equals sign (=)"},
                                               {"[words]", "begin with ["},
                                               {";word", "begin with ;"},
                                               {"   ", nullptr}};
  GivenDictionary(Pets);
  for (const auto& [word, problem] : rows) {
    prompts.asked.clear();
    Type("txtDict", word);
    Press("cmdSave");
    EXPECT_EQ(prompts.asked.empty(), problem == nullptr) << word;
    EXPECT_TRUE(problem == nullptr || prompts.asked.at(0).text.contains(problem)) << word;
    EXPECT_EQ(ReadBytes(dictionary.File()), std::string("[words]\r\n") + Pets) << word;
    EXPECT_TRUE(SayDataBox()->hasFocus());
  }
  EXPECT_EQ(RefusalOfWord("a]b[;"), std::nullopt);
}

}  // namespace
}  // namespace loquitor::testing
