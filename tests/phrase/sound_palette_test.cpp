#include <gmock/gmock.h>

#include "tests/phrase/phrase_window.h"

namespace loquitor::testing {
namespace {

using ::testing::ElementsAre;

class SoundPaletteTest : public PhraseWindowTest {
 protected:
  void SetUp() override { Open(); }
};

TEST_F(SoundPaletteTest, PlaysWhatIsClicked) {
  struct Case {
    const char* caption;
    std::string behindPrefix;
  };
  for (const Case& expected :
       {Case{"IY", "\x80"}, Case{"P0", std::string(1, '\0')}, Case{"D11", "\xFB"},
        Case{"Call", std::string("\x1C\0", 2)}, Case{"PCtrl", "\x18\x07"},
        Case{"Delay", "\x1E\x64"}, Case{"Stress", "\x0E"}}) {
    Click(expected.caption);
    EXPECT_EQ(Sent(), DefaultPrefix + expected.behindPrefix) << expected.caption;
  }
  Tick("chkApplyControlsBeforeSounds", false);
  Click("IY");
  EXPECT_EQ(Sent(), "\x80");
  EXPECT_EQ(SayData(), "|") << "a click inserts nothing";
}

TEST_F(SoundPaletteTest, SendsTheSoundAfterARepeatWithoutPrefix) {
  Click("Repeat");
  EXPECT_EQ(Sent(), DefaultPrefix + "\x1A\x05");
  Click("Repeat");
  EXPECT_EQ(Sent(), "\x1A\x05") << "a repeat after a repeat";
  Press("bntSayIt");
  EXPECT_EQ(Sent(), DefaultPrefix) << "Say Data goes by its own check box";
  window.reset();
  Open();
  Click("OW");
  EXPECT_EQ(Sent(), "\x89") << "the flag outlives the window";
  Click("OW");
  EXPECT_EQ(Sent(), DefaultPrefix + "\x89");
}

TEST_F(SoundPaletteTest, SendsTheSettingsAsTheyWereBeforeANoteOrAReset) {
  Bar("scVolume")->setValue(50);
  Click("NTA2");
  EXPECT_EQ(Sent(), "\x14\x32\x15\x72\x16\x58\x17\x05\x16\x6E");
  EXPECT_EQ(Box("txtPitch")->Text(), "110");
  Click("Reset");
  EXPECT_EQ(Sent(), "\x14\x32\x15\x72\x16\x6E\x17\x05\x1F");
  EXPECT_EQ(Box("txtVolume")->Text(), "96");
  Click("IY");
  EXPECT_EQ(Sent(), DefaultPrefix + "\x80");
}

TEST_F(SoundPaletteTest, RefusesAValueOutsideAByteButInsertsIt) {
  Click("Repeat");
  Sent();
  Type("txtCall", " 256x");
  GivenBoxesThatSwallowClicks();
  DoubleClick("Call");
  EXPECT_EQ(Sent(), "");
  ASSERT_EQ(prompts.asked.size(), 1u);
  EXPECT_TRUE(prompts.asked[0].text.contains("Call"));
  EXPECT_TRUE(prompts.asked[0].text.contains("0 to 255"));
  EXPECT_TRUE(Box("txtCall")->Background().isValid()) << "the box is marked";
  EXPECT_EQ(SayData(), "\\Call \\ 256x |");
  EXPECT_FALSE(shared.SkipControlsOnce) << "the click has used it up";
  Type("txtCall", "255");
  EXPECT_FALSE(Box("txtCall")->Background().isValid());
  Click("Call");
  EXPECT_EQ(Sent(), DefaultPrefix + "\x1C\xFF");
}

TEST_F(SoundPaletteTest, PlaysOnceAndInsertsOnceAtADoubleClick) {
  struct Case {
    const char* caption;
    std::string sent;
    const char* inserted;
  };
  for (const Case& expected : {Case{"IY", "\x80", "\\IY |"}, Case{"NTC#1", "\x16\x23", "\\NTC#1 |"},
                               Case{"POut", "\x19\x07", "\\POut \\7 |"}}) {
    for (const int milliseconds : {50, 300}) {
      Press("btnClear");
      Get<ScrollBar>("scPitch")->setValue(88);
      DoubleClick(expected.caption, milliseconds);
      EXPECT_EQ(Sent(), DefaultPrefix + expected.sent) << expected.caption;
      EXPECT_EQ(SayData(), expected.inserted);
    }
  }
}

TEST_F(SoundPaletteTest, InsertsAtADoubleClickWhileTheFirstSoundIsBeingSent) {
  port.isHeldBack = true;
  WhileSending([this] {
    QTest::mouseDClick(Member("IY"), Qt::LeftButton);
    port.isHeldBack = false;
  });
  Click("IY");
  EXPECT_EQ(Sent(), DefaultPrefix + "\x80");
  EXPECT_EQ(SayData(), "\\IY |");
}

TEST_F(SoundPaletteTest, AsksAboutWaitOnceAtAClickAndAtADoubleClick) {
  GivenBoxesThatSwallowClicks();
  for (const PromptAnswer answer : {PromptAnswer::Cancel, PromptAnswer::Ok}) {
    for (const bool isDouble : {false, true}) {
      Press("btnClear");
      prompts.asked.clear();
      prompts.answers = {answer};
      isDouble ? DoubleClick("Wait", 100) : Click("Wait");
      ASSERT_TRUE(QTest::qWaitFor([this] { return prompts.answers.empty(); }));
      ASSERT_EQ(prompts.asked.size(), 1u);
      EXPECT_EQ(prompts.asked[0].title, "Notice");
      EXPECT_EQ(prompts.asked[0].buttons, PromptButtons::OkCancel);
      EXPECT_EQ(Sent(), answer == PromptAnswer::Ok ? DefaultPrefix + "\x10" : "");
      EXPECT_EQ(SayData(), isDouble ? "\\Wait |" : "|");
    }
  }
}

TEST_F(SoundPaletteTest, LeavesTheCaretInTheSayDataWhenItIsClicked) {
  SayDataBox()->setFocus();
  Click("IY");
  QTest::keyClicks(QApplication::focusWidget(), "x");
  EXPECT_EQ(SayData(), "x|");
}

class PaletteKeysTest : public PhraseWindowTest {
 protected:
  void SetUp() override { Open(); }

  void Focus(const char* zFrame) { Get<QWidget>(zFrame)->setFocus(Qt::TabFocusReason); }
  void Key(Qt::Key zKey, Qt::KeyboardModifiers zModifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), zKey, zModifiers);
  }
};

TEST_F(PaletteKeysTest, MovePlayAndInsert) {
  Focus("Frame1");
  Key(Qt::Key_Space);
  EXPECT_EQ(Sent(), DefaultPrefix + "\x80");
  Key(Qt::Key_Right);
  Key(Qt::Key_Return);
  EXPECT_EQ(Sent(), DefaultPrefix + "\x8B") << "UW";
  Key(Qt::Key_Down);
  Key(Qt::Key_Insert);
  EXPECT_EQ(Sent(), "") << "inserting plays nothing";
  EXPECT_EQ(SayData(), "\\UH |");
  Key(Qt::Key_End);
  Key(Qt::Key_Enter, Qt::ControlModifier);
  EXPECT_EQ(SayData(), "\\UH \\AW |");
  EXPECT_TRUE(Get<QWidget>("Frame1")->hasFocus());
}

TEST_F(PaletteKeysTest, StartAtTheMemberClickedLast) {
  Click("EB");
  Sent();
  Focus("Frame5");
  Key(Qt::Key_Enter);
  EXPECT_EQ(Sent(), DefaultPrefix + "\xAC");
}

TEST_F(PaletteKeysTest, MarkTheCurrentMemberVisibly) {
  const auto picture = [this](const char* zCaption) { return Member(zCaption)->grab().toImage(); };
  const QImage plain = picture("IY");
  Focus("Frame1");
  const QImage marked = picture("IY");
  EXPECT_NE(marked, plain);
  Key(Qt::Key_Right);
  EXPECT_EQ(picture("IY"), plain);
  EXPECT_EQ(picture("IY").size(), marked.size());
  Focus("Frame2");
  EXPECT_NE(picture("JH"), plain);
  EXPECT_EQ(picture("IY"), plain);
}

TEST_F(PaletteKeysTest, ReachTheVoiceLabelsAndReset) {
  Focus("Frame9");
  Key(Qt::Key_Space);
  EXPECT_EQ(Sent(), "") << "a click on a voice label does nothing";
  Key(Qt::Key_Insert);
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(SayData(), "\\VOLUME \\96 \\PITCH \\88 |");
  Key(Qt::Key_Down);
  Key(Qt::Key_Right);
  Key(Qt::Key_Space);
  EXPECT_EQ(Sent(), DefaultPrefix + "\x1F");
}

TEST_F(PaletteKeysTest, AreLeftAloneInAValueBox) {
  Type("txtCall", "1 2");
  Key(Qt::Key_Return);
  Key(Qt::Key_Insert);
  Key(Qt::Key_Down);
  EXPECT_EQ(Sent(), "");
  EXPECT_EQ(SayData(), "|");
  EXPECT_EQ(Box("txtCall")->Text(), "1 2");
}

TEST_F(PaletteKeysTest, StopOnceInEachFrameInTheOrderOfTheEye) {
  std::vector<std::string> stops;
  SayDataBox()->setFocus();
  do {
    stops.push_back(QApplication::focusWidget()->objectName().toStdString());
    Key(Qt::Key_Tab);
  } while (QApplication::focusWidget() != SayDataBox() && stops.size() < 100);
  EXPECT_THAT(
      stops,
      ElementsAre("txtSayData", "bntSayIt", "btnSaySelection", "btnClear", "btnCodes", "Command2",
                  "txtDict", "cmdLoadOver", "cmdLoadInsert", "btnNextWord", "chkWith", "chkWithout",
                  "cmdSave", "btnShutUp", "btnDone", "Frame14", "TxtDelay", "Frame1", "Frame4",
                  "Frame3", "Frame12", "Frame2", "Frame5", "Frame6", "Frame7", "Frame13", "Frame8",
                  "Frame16", "txtCall", "txtPlay", "txtPCtrl", "txtPOut", "Frame9", "txtVolume",
                  "scVolume", "txtSpeed", "scSpeed", "txtPitch", "scPitch", "txtBend", "scBend",
                  "chkApplyControlsBeforeSounds", "chkApplyControlsBeforeSayData", "Frame11",
                  "txtRepeat"));
}

TEST_F(PaletteKeysTest, HaveNamesForAssistivePrograms) {
  EXPECT_EQ(Member("IY")->accessibleName(), "IY");
  EXPECT_EQ(Member("IY")->accessibleDescription(), "See, Even, Feed");
  EXPECT_EQ(Member("NTC1")->accessibleDescription(), "Set the Pitch to the Frequency for C1");
  for (QWidget* control : window->findChildren<QWidget*>()) {
    if (control->focusPolicy() != Qt::NoFocus && !control->objectName().startsWith("qt_")) {
      EXPECT_NE(control->accessibleName(), "") << control->objectName().toStdString();
    }
  }
}

}  // namespace
}  // namespace loquitor::testing
