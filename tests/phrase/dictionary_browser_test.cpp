#include <gmock/gmock.h>

#include "tests/phrase/phrase_window.h"

namespace loquitor::testing {
namespace {

using ::testing::HasSubstr;

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
  std::string Word() { return Box("txtDict")->Text(); }

  /// Presses the button and gives the word, the Say Data and what was said.
  std::string Step() {
    Press("btnNextWord");
    return Word() + ": " + SayData() + ": " + Sent();
  }
};

TEST_F(DictionaryBrowserTest, LoadsWordsAtTheCaret) {
  struct Case {
    const char* words;
    const char* before;
    const char* after;
  };
  GivenDictionary(Pets);
  for (const Case& expected : {
           Case{"cat  DOG ", "x |", "x \\KE \\AY \\DO |"},
           Case{"cat", "a[b]c", "a\\KE \\AY |c"},
           Case{"dog nothing", "x|  y", "x  \\DO  |y"},
           Case{"  ", "x|", "x|"},
       }) {
    GivenSayData(expected.before);
    Type("txtDict", expected.words);
    Press("cmdLoadInsert");
    EXPECT_EQ(SayData(), expected.after) << expected.words;
    EXPECT_TRUE(SayDataBox()->hasFocus());
  }
  EXPECT_EQ(Sent(), "");
}

TEST_F(DictionaryBrowserTest, LoadsWordsInPlaceOfTheText) {
  GivenDictionary(Pets);
  for (const auto& [words, after] :
       {std::pair{"cat dog", "\\KE \\AY \\DO |"}, std::pair{"nothing", " |"}, std::pair{"", "|"}}) {
    GivenSayData("old |text");
    Type("txtDict", words);
    Press("cmdLoadOver");
    EXPECT_EQ(SayData(), after) << words;
    SayDataBox()->undo();
    EXPECT_EQ(SayDataBox()->Text(), "old text") << "one step back";
  }
}

TEST_F(DictionaryBrowserTest, StepsThroughAllWordsAndSaysThem) {
  GivenDictionary(Pets);
  EXPECT_EQ(Step(), "apple:  |: ");
  EXPECT_EQ(Step(), "cat: \\KE \\AY |: \xC2\x84");
  EXPECT_EQ(Step(), "dog: \\DO |: \xAF");
  EXPECT_EQ(Step(), "apple:  |: ") << "the first follows the last";
  Type("txtDict", "BOY");
  EXPECT_EQ(Step(), "cat: \\KE \\AY |: \xC2\x84") << "from a word that is not there";
  Type("txtDict", "zzzzzzzzz!!!");
  EXPECT_EQ(Step(), "apple:  |: ");
  Tick("chkApplyControlsBeforeSayData", true);
  EXPECT_EQ(Step(), "cat: \\KE \\AY |: " + DefaultPrefix + "\xC2\x84");
}

TEST_F(DictionaryBrowserTest, StepsToWordsWithOrWithoutData) {
  GivenDictionary(std::string(Pets) + "bird=\r\n");
  GivenModes(true, false);
  EXPECT_EQ(Step(), "cat: \\KE \\AY |: \xC2\x84");
  EXPECT_EQ(Step(), "dog: \\DO |: \xAF");
  Box("txtfindwith")->SetText("\\ke");
  EXPECT_EQ(Step(), "cat: \\KE \\AY |: \xC2\x84");
  EXPECT_EQ(Step(), "cat: \\KE \\AY |: \xC2\x84") << "round to itself";
  GivenModes(false, true);
  EXPECT_EQ(Step(), "apple:  |: ") << "and says nothing";
  EXPECT_EQ(Step(), "bird:  |: ");
  EXPECT_EQ(Step(), "apple:  |: ");
}

TEST_F(DictionaryBrowserTest, EndsASearchThatCannotSucceed) {
  struct Case {
    const char* entries;
    bool isWith;
    bool isWithout;
    const char* message;
  };
  for (const Case& expected : {
           Case{nullptr, true, true, "no words"},
           Case{"zzzzzzzzzz=\\IY\r\n", true, true, "no words"},
           Case{"a=\r\nb=\r\n", true, false, "has data"},
           Case{"a=x\r\nb=y\r\n", false, true, "has data"},
           Case{"a=x\r\n", false, false, "Must select either With Data or Without Data or Both"},
       }) {
    if (expected.entries != nullptr) {  // else there is no file yet
      GivenDictionary(expected.entries);
    }
    GivenModes(expected.isWith, expected.isWithout);
    GivenSayData("as it [was]");
    Type("txtDict", "A word ");
    prompts.asked.clear();
    EXPECT_EQ(Step(), "A word : as it [was]: ") << expected.message;
    ASSERT_EQ(prompts.asked.size(), 1u);
    EXPECT_THAT(prompts.asked[0].text.toStdString(), HasSubstr(expected.message));
    EXPECT_EQ(prompts.asked[0].title, "Loquitor");
    EXPECT_EQ(prompts.asked[0].buttons, PromptButtons::Ok);
  }
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
            "[words]\r\ndog=\\DE\r\nCat=\\KE \\AY\r\napple=\r\nHello=\\HE \\EH \\LO \\OW\r\n");
  EXPECT_TRUE(prompts.asked.empty());
  GivenSayData("|");
  Type("txtDict", "hello dog");
  Press("bntSayIt");
  Press("cmdLoadInsert");
  EXPECT_EQ(SayData(), "\\HE \\EH \\LO \\OW \\DE |");
}

TEST_F(DictionaryBrowserTest, SavesNothingUnderAWordThatCannotBeHeld) {
  GivenDictionary(Pets);
  for (const auto& [word, messages] :
       {std::pair{"   ", 0u}, std::pair{"two words", 1u}, std::pair{"a=b", 1u}}) {
    prompts.asked.clear();
    Type("txtDict", word);
    Press("cmdSave");
    EXPECT_EQ(prompts.asked.size(), messages) << word;
    EXPECT_EQ(ReadBytes(dictionary.File()), std::string("[words]\r\n") + Pets) << word;
    EXPECT_TRUE(SayDataBox()->hasFocus());
  }
}

}  // namespace
}  // namespace loquitor::testing
