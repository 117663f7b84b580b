#include "ui/phrase/sound_palette.h"

#include <QAccessible>

#include "tests/phrase/phrase_window.h"
#include "ui/phrase/sound_command.h"

namespace loquitor::testing {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

class SoundPaletteTest : public PhraseWindowTest {
 protected:
  /// Moves the focus with the Tab key to the members of a frame.
  void Focus(const char* zFrame) {
    for (auto* label : Get(zFrame)->findChildren<ClickLabel*>()) {
      if (label->focusPolicy() == Qt::TabFocus) {
        label->setFocus(Qt::TabFocusReason);
      }
    }
  }
  void Key(Qt::Key zKey, Qt::KeyboardModifiers zModifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), zKey, zModifiers);
  }
  QImage Picture(const char* zCaption) { return Member(zCaption)->grab().toImage(); }
};

TEST(SoundCommand, ReadsAValueBoxAsAByte) {
  constexpr int None = -1;
  const Rows<const char*, int> rows = {{"", 0},         {"-0.5", 0},  {"255.4x", 255},
                                       {"255.5", None}, {"-1", None}, {"1E999", None}};
  for (const auto& [text, byte] : rows) {
    const std::optional<std::uint8_t> read = ValueByte(text);
    EXPECT_EQ(read ? *read : None, byte) << text;
  }
}

TEST_F(SoundPaletteTest, PlaysWhatIsClicked) {
  const Rows<const char*, std::string> rows = {{"IY", "\x80"},
                                               {"P0", std::string(1, '\0')},
                                               {"D11", "\xFB"},
                                               {"Call", std::string("\x1C\0", 2)},
                                               {"Play", std::string("\x1D\0", 2)},
                                               {"PCtrl", "\x18\x07"},
                                               {"Delay", "\x1E\x64"},
                                               {"Stress", "\x0E"}};
  for (const auto& [caption, codes] : rows) {
    Click(caption);
    EXPECT_EQ(Sent(), DefaultPrefix + codes) << caption;
  }
  Tick("chkApplyControlsBeforeSounds", false);
  Click("IY");
  EXPECT_EQ(Sent(), "\x80");
  QTest::keyClicks(QApplication::focusWidget(), "x");
  EXPECT_EQ(SayData(), "x|") << "the caret stays, and nothing is inserted";
}

TEST_F(SoundPaletteTest, SendsTheSoundAfterARepeatWithoutPrefix) {
  Click("Repeat");
  EXPECT_EQ(Sent(), DefaultPrefix + "\x1A\x05");
  Click("Repeat");
  EXPECT_EQ(Sent(), "\x1A\x05") << "a repeat after a repeat";
  Press("bntSayIt");
  EXPECT_EQ(Sent(), DefaultPrefix) << "Say Data goes by its own check box";
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
  shared.SkipControlsOnce = true;
  Type("txtCall", " 256x");
  SayDataBox()->setFocus();
  GivenBoxesThatSwallowClicks();
  DoubleClick("Call");
  EXPECT_EQ(Sent(), "");
  ASSERT_EQ(prompts.asked.size(), 1u);
  EXPECT_THAT(prompts.asked[0].text.toStdString(), AllOf(HasSubstr("Call"), HasSubstr("0 to 255")));
  EXPECT_TRUE(ColourOf(Box("txtCall")).isValid()) << "the box is marked";
  EXPECT_TRUE(QTest::qWaitFor([this] { return Box("txtCall")->hasFocus(); }));
  EXPECT_EQ(SayData(), "\\Call \\ 256x |");
  EXPECT_FALSE(shared.SkipControlsOnce) << "the click has used it up";
  QTest::keyClicks(QApplication::focusWidget(), "255");
  EXPECT_FALSE(ColourOf(Box("txtCall")).isValid());
  Click("Call");
  EXPECT_EQ(Sent(), DefaultPrefix + "\x1C\xFF");
  prompts.whileOpen();
  EXPECT_TRUE(QTest::qWaitFor([this] { return SayDataBox()->hasFocus(); }))
      << "as whenever the window becomes the active one";
}

TEST_F(SoundPaletteTest, PlaysOnceAndInsertsOnceAtADoubleClick) {
  const Rows<int, const char*, std::string, const char*> rows = {
      {50, "IY", DefaultPrefix + "\x80", "\\IY |"},
      {300, "IY", DefaultPrefix + "\x80", "\\IY |"},
      {200, "POut", DefaultPrefix + "\x19\x07", "\\POut \\7 |"},
      {100, "NTC#1", DefaultPrefix + "\x16\x23", "\\NTC#1 |"}};
  for (const auto& [milliseconds, caption, sent, inserted] : rows) {
    Press("btnClear");
    DoubleClick(caption, milliseconds);
    EXPECT_EQ(Sent(), sent) << caption;
    EXPECT_EQ(SayData(), inserted);
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
      EXPECT_EQ(prompts.asked[0].text.split("\r\n").size(), 13);
      EXPECT_EQ(prompts.asked[0].buttons, PromptButtons::OkCancel);
      EXPECT_EQ(Sent(), answer == PromptAnswer::Ok ? DefaultPrefix + "\x10" : "");
      EXPECT_EQ(SayData(), isDouble ? "\\Wait |" : "|");
    }
  }
}

TEST_F(SoundPaletteTest, AsksAboutWaitBeforeTheNextClickActs) {
  prompts.answers = {PromptAnswer::Ok, PromptAnswer::Cancel};
  RealMouse mouse;
  mouse.Click(Member("Repeat"));
  mouse.Click(Member("Wait"));
  mouse.Click(Member("IY"));
  EXPECT_EQ(Sent(), DefaultPrefix + "\x1A\x05" + "\x10" + DefaultPrefix + "\x80");
  mouse.Click(Member("Wait"));
  mouse.Click(Get("bntSayIt"));
  EXPECT_EQ(Sent(), DefaultPrefix);
  EXPECT_EQ(prompts.asked.size(), 2u);
}

TEST_F(SoundPaletteTest, TheKeysMovePlayAndInsert) {
  Focus("Frame1");
  Key(Qt::Key_Space);
  EXPECT_EQ(Sent(), DefaultPrefix + "\x80");
  Key(Qt::Key_Right);
  Key(Qt::Key_Return);
  EXPECT_EQ(Sent(), DefaultPrefix + "\x8B") << "UW";
  Key(Qt::Key_Down);
  Key(Qt::Key_Insert);
  Key(Qt::Key_Down);
  Key(Qt::Key_Enter, Qt::ControlModifier);
  Focus("Frame9");
  Key(Qt::Key_Space);
  Key(Qt::Key_Insert);
  EXPECT_EQ(Sent(), "") << "neither inserting nor a click on a voice label plays anything";
  EXPECT_EQ(SayData(), "\\UH \\OW \\VOLUME \\96 |");
  Get("Command1(140)")->setFocus();
  Key(Qt::Key_Space);
  EXPECT_EQ(Sent(), DefaultPrefix + "\x1F") << "Reset";
  Click("EB");
  Sent();
  Focus("Frame5");
  Key(Qt::Key_Enter);
  EXPECT_EQ(Sent(), DefaultPrefix + "\xAC") << "starts at the member clicked last";
  Press("btnClear");
  Type("txtCall", "1 2");
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Insert, Qt::Key_Down}) {
    Key(key);
  }
  EXPECT_EQ(Box("txtCall")->Text() + Sent() + SayData(), "1 2|")
      << "the keys of a value box play and insert nothing";
}

TEST_F(SoundPaletteTest, TheKeysMarkTheCurrentMemberVisiblyAndDescribeIt) {
  const QImage plain = Picture("IY");
  Focus("Frame1");
  EXPECT_NE(Picture("IY"), plain);
  Key(Qt::Key_Right);
  EXPECT_EQ(Picture("IY"), plain);
  const QImage marked = Picture("UW");
  Focus("Frame2");
  EXPECT_NE(Picture("UW"), marked);
  const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(Member("IY"));
  EXPECT_EQ(spoken->role(), QAccessible::Button);
  EXPECT_EQ(spoken->text(QAccessible::Name), "IY");
  EXPECT_EQ(spoken->text(QAccessible::Description), "See, Even, Feed");
}

TEST_F(SoundPaletteTest, TheTabKeyStopsOnceInEachFrameFromLeftToRightAndTopToBottom) {
  EXPECT_EQ(TabOrder("txtSayData"),
            "txtSayData bntSayIt btnSaySelection btnClear btnCodes Command2 "
            "txtDict cmdLoadOver cmdLoadInsert btnNextWord chkWith chkWithout cmdSave "
            "btnShutUp btnDone Command1(128) TxtDelay Command1(0) Command1(25) Command1(16) "
            "Command1(19) Command1(37) Command1(42) Command1(66) Command1(55) Command1(196) "
            "Command1(72) Command1(156) txtCall txtPlay txtPCtrl txtPOut "
            "lblVolume txtVolume scVolume txtSpeed scSpeed txtPitch scPitch txtBend scBend "
            "chkApplyControlsBeforeSounds chkApplyControlsBeforeSayData Command1(135) txtRepeat");
}

}  // namespace
}  // namespace loquitor::testing
