// The tools of the synth control window, its sound library, and a piece played on both.

#include <QAbstractItemView>
#include <QCompleter>
#include <QWheelEvent>
#include <filesystem>

#include "tests/synth/synth_test.h"

namespace loquitor::testing {
namespace {

using ::testing::ElementsAre;

TEST_F(SynthTest, HarmoniseMovesTheToneGeneratorsAlone) {
  GivenOpenWindow();
  Given("scFreq", {100, 170, 3999, 100, 170});
  Press("Command1");
  EXPECT_EQ(Sent(), Writes({{1, 110}, {2, 220}, {3, 3960}}));
  EXPECT_THAT(Values("scFreq"), ElementsAre(110, 220, 3960, 100, 170));
  Press("Command1");
  EXPECT_EQ(Sent(), "");
  Box("txtHFreq")->setText("1000");
  Given("scFreq", {499, 500, 3600});
  Press("Command1");
  EXPECT_EQ(Sent(), Writes({{1, 0}, {2, 1000}, {3, 3000}}));
}

TEST_F(SynthTest, AnImpossibleHarmonicBaseIsMarkedUntilItIsMended) {
  GivenOpenWindow();
  Given("scFreq", {100, 170, 3999});
  for (const char* text : {"0", "-110", "", "abc"}) {
    Box("txtHFreq")->setText(text);
    Press("Command1");
    EXPECT_TRUE(Box("txtHFreq")->Background().isValid()) << text;
    EXPECT_FALSE(Box("txtHFreq")->toolTip().isEmpty()) << text;
  }
  EXPECT_EQ(Sent(), "");
  Box("txtHFreq")->setText("x1");
  EXPECT_TRUE(Box("txtHFreq")->Background().isValid());
  Box("txtHFreq")->setText("1");
  EXPECT_FALSE(Box("txtHFreq")->Background().isValid());
  EXPECT_TRUE(Box("txtHFreq")->toolTip().isEmpty());
  EXPECT_EQ(Sent(), "");
}

TEST_F(SynthTest, TheAdjustToolsScaleFromTheirBases) {
  GivenOpenWindow();
  Given("scVol", {10, 20, 31, 9, 9});
  Given("scFreq", {2000, 3999, 3, 9, 9});
  Press("Command2");
  Press("Command3");
  EXPECT_EQ(Sent(), "");
  Bar("scVolAdjTone")->setValue(150);
  Bar("scFreqAdjTone")->setValue(150);
  EXPECT_EQ(Sent(), Writes({{11, 15}, {12, 30}, {1, 3000}, {3, 4}}));
  Bar("scVolAdjTone")->setValue(0);
  Bar("scFreqAdjTone")->setValue(200);
  EXPECT_EQ(Sent(), Writes({{11, 0}, {12, 0}, {13, 0}, {1, 3999}, {3, 6}}));
  Bar("scVolAdjTone")->setValue(100);
  Bar("scFreqAdjTone")->setValue(100);
  EXPECT_THAT(Values("scVol"), ElementsAre(10, 20, 31, 9, 9));
  EXPECT_THAT(Values("scFreq"), ElementsAre(2000, 3999, 3, 9, 9));
}

TEST_F(SynthTest, AnAdjustBarRebasesBeforeThePressThatBringsTheFocusMovesIt) {
  for (const auto& [bar, stem] :
       {std::pair{"scVolAdjTone", "scVol"}, std::pair{"scFreqAdjTone", "scFreq"}}) {
    GivenOpenWindow();
    Bar(bar)->setValue(170);
    Given(stem, {16, 16});
    QTest::mouseClick(Bar(bar), Qt::LeftButton, {}, {3, 5});
    EXPECT_EQ(Value(bar), 99) << bar;
    Bar(bar)->setValue(150);
    EXPECT_EQ(Value(Indexed(stem, 2)), 24) << bar;
  }
}

TEST_F(SynthTest, ASecondTurnOfTheWheelDoesNotComeBeforeTheRebaseOfTheFirst) {
  GivenOpenWindow();
  Given("scFreq", {1000, 2000, 3000});
  Box("txtVol(4)")->setFocus();
  QTest::keyClicks(Box("txtVol(4)"), "9");
  const auto turnWheel = [this] {
    ScrollBar* bar = Bar("scFreqAdjTone");
    const QPointF middle = bar->rect().center();
    QWheelEvent event(middle, bar->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(bar, &event);
  };
  bool hasTurned = false;
  port.onByte = [&] {
    if (!std::exchange(hasTurned, true)) {
      turnWheel();
    }
  };
  turnWheel();
  LetRun();
  EXPECT_THAT(Values("scFreq"), ElementsAre(1020, 2040, 3060, 0, 0));
  EXPECT_EQ(Value("scVol(4)"), 9);
}

TEST_F(SynthTest, ASoundIsSavedUnderItsNameAndNothingIsSent) {
  GivenOpenWindow();
  WriteBytes(folder / "OTSounds.txt", "; mine\r\n[Other]\r\nFreq1=5\r\n");
  Given("scFreq", {440, 0, 3999});
  Given("scVol", {20, 31});
  Box("txtSound")->setText("Bell");
  Press("btnSave");
  const std::string first =
      "; mine\r\n[Other]\r\nFreq1=5\r\n[Bell]\r\nFreq1=440\r\nVol1=20\r\nFreq2=0\r\nVol2=31\r\n"
      "Freq3=3999\r\nVol3=0\r\nFreq4=0\r\nVol4=0\r\nFreq5=0\r\nVol5=0\r\n";
  EXPECT_EQ(ReadBytes(folder / "OTSounds.txt"), first);
  Given("scFreq", {441});
  Box("txtSound")->setText("BELL");
  Press("btnSave");
  EXPECT_EQ(ReadBytes(folder / "OTSounds.txt").size(), first.size());
  EXPECT_EQ(Sent(), "");
}

TEST_F(SynthTest, LoadingWritesOnlyWhatDiffersOscillatorByOscillator) {
  GivenOpenWindow();
  WriteBytes(folder / "OTSounds.txt",
             "[Bell]\nFreq1=440\nVol1=20\nFreq2=9999\nVol2=-3\nFreq3=2.5\nVol3=x\nVol4=1e9\n");
  Given("scVol", {20, 5, 5});
  Box("txtSound")->setText("bell");
  Press("btnLoad");
  EXPECT_EQ(Sent(), Writes({{1, 440}, {2, 3999}, {12, 0}, {3, 2}, {13, 0}, {14, 31}}));
  Box("txtSound")->setText("no such sound");
  Press("btnLoad");
  EXPECT_EQ(Sent(), Writes({{1, 0}, {11, 0}, {2, 0}, {3, 0}, {14, 0}}));
  EXPECT_TRUE(prompts.asked.empty());
}

TEST_F(SynthTest, ANameThatCannotBeHeldIsRefusedBeforeAnythingHappens) {
  GivenOpenWindow();
  Given("scFreq", {440});
  for (const char* name : {"", "  ", " Bell", "Bell ", "a]b"}) {
    Box("txtSound")->setText(name);
    for (const char* button : {"btnSave", "btnLoad"}) {
      prompts.asked.clear();
      Press(button);
      ASSERT_EQ(prompts.asked.size(), 1U) << name << button;
      EXPECT_EQ(prompts.asked[0].title, "Loquitor");
    }
  }
  EXPECT_EQ(Sent(), "");
  EXPECT_FALSE(std::filesystem::exists(folder / "OTSounds.txt"));
  EXPECT_EQ(Value("scFreq(1)"), 440);
}

TEST_F(SynthTest, ALibraryThatCannotBeReadOrWrittenIsPassedOverInSilence) {
  GivenOpenWindow();
  std::filesystem::create_directory(folder / "OTSounds.txt");
  Given("scFreq", {440});
  Box("txtSound")->setText("Bell");
  Press("btnSave");
  EXPECT_EQ(Value("scFreq(1)"), 440);
  Press("btnLoad");
  EXPECT_EQ(Sent(), Writes({{1, 0}}));
  EXPECT_TRUE(prompts.asked.empty());
}

TEST_F(SynthTest, TheSoundBoxOffersTheNamesThatAreThereNow) {
  GivenOpenWindow();
  const auto offered = [this](const char* zPrefix) {
    Box("txtFreq(1)")->setFocus();
    Box("txtSound")->setFocus();
    QCompleter* completer = Box("txtSound")->completer();
    completer->setCompletionPrefix(zPrefix);
    QStringList names;
    for (int row = 0; completer->setCurrentRow(row); ++row) {
      names.push_back(completer->currentCompletion());
    }
    return names;
  };
  EXPECT_EQ(offered("b"), QStringList());
  WriteBytes(folder / "OTSounds.txt", "[Bell]\nFreq1=1\n[Siren]\n[bird \xE9]\n");
  EXPECT_EQ(offered("b"), QStringList({"Bell", QStringLiteral("bird é")}));
}

TEST_F(SynthTest, TheListOfNamesIsWorkedByKeysAndSwallowsNoClick) {
  WriteBytes(folder / "OTSounds.txt", "[Bell]\nFreq1=1\n[Bird]\nFreq1=2\n");
  GivenOpenWindow();
  TextBox* box = Box("txtSound");
  QAbstractItemView* list = box->completer()->popup();
  const auto type = [&](const QString& zText) {
    box->setFocus();
    box->clear();
    QTest::keyClicks(box, zText);
    EXPECT_TRUE(list->isVisible());
  };
  const struct {
    std::vector<Qt::Key> keys;
    const char* text;
  } rows[] = {{{Qt::Key_Down, Qt::Key_Return}, "Bell"},
              {{Qt::Key_Down, Qt::Key_Down, Qt::Key_Enter}, "Bird"},
              {{Qt::Key_Escape}, "b"},
              {{Qt::Key_Return}, "b"},
              {{Qt::Key_Tab}, "b"}};
  for (const auto& row : rows) {
    type("b");
    for (const Qt::Key key : row.keys) {
      QTest::keyClick(box, key);
    }
    EXPECT_EQ(box->text(), row.text);
    EXPECT_FALSE(list->isVisible()) << row.text;
    EXPECT_TRUE(window->isVisible());
  }
  type("b");
  window->move(window->pos() + QPoint(40, 40));
  LetRun();
  EXPECT_FALSE(list->isVisible());
  type("Bird");
  auto* load = The<QAbstractButton>("btnLoad");
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, load->geometry().center());
  LetRun();
  EXPECT_EQ(Sent(), Writes({{1, 2}}));
  EXPECT_FALSE(list->isVisible());
}

TEST_F(SynthTest, APieceIsPlayedByteForByte) {
  VirtualChip chip;
  const auto expectSent = [&](const std::string& zBytes) {
    const std::string sent = Sent();
    EXPECT_EQ(sent, zBytes);
    chip.Receive(sent);
    ExpectShown(chip);
  };
  window = std::make_unique<FrmSynthCtrl>(nullptr, context);
  window->Open();
  LetRun();
  expectSent(OpeningBytes());
  Enter("txtFreq(1)", "100");
  Enter("txtFreq(2)", "170");
  Enter("txtFreq(3)", "3999");
  Enter("txtVol(1)", "10");
  Enter("txtVol(2)", "20");
  Enter("txtVol(3)", "31");
  expectSent(Writes({{1, 100}, {2, 170}, {3, 3999}, {11, 10}, {12, 20}, {13, 31}}));
  Press("Command1");
  expectSent(Writes({{1, 110}, {2, 220}, {3, 3960}}));
  Bar("scFreqAdjTone")->setFocus(Qt::TabFocusReason);
  Bar("scFreqAdjTone")->setValue(150);
  expectSent(Writes({{1, 165}, {2, 330}, {3, 3999}}));
  Bar("scVolAdjTone")->setFocus(Qt::TabFocusReason);
  Bar("scVolAdjTone")->setValue(50);
  expectSent(Writes({{11, 5}, {12, 10}, {13, 16}}));
  Box("txtSound")->setText("Bell");
  Press("btnSave");
  expectSent("");
  Bar("scFreq(2)")->setValue(7);
  Bar("scVol(5)")->setValue(31);
  The<OptionButton>("Option1(2)")->click();
  expectSent(Writes({{2, 7}, {15, 31}, {8, 2}}));
  Press("btnLoad");
  expectSent(Writes({{2, 330}, {15, 0}}));
  Press("btnShutUp");
  expectSent("\\0RX" + Writes({{11, 0}, {12, 0}, {13, 0}, {1, 0}, {2, 0}, {3, 0}, {8, 0}}));
  Bar("scLevel(1)")->setValue(127);
  expectSent(Writes({{7, 127}}));
  Press("btnDone");
  expectSent("\\0RX" + Writes({{7, 96}, {8, 0}}));
}

}  // namespace
}  // namespace loquitor::testing
