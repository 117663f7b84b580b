// The tools of the synth control window and its sound library.

#include <sys/resource.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QWheelEvent>
#include <csignal>
#include <limits>

#include "tests/synth/synth_test.h"
#include "ui/synth/sound_name.h"
#include "ui/synth/synth_registers.h"

namespace loquitor::testing {
namespace {

using ::testing::ElementsAre;

TEST(SynthRegisters, HarmoniseFindsTheNearestMultipleThatFits) {
  const double infinity = std::numeric_limits<double>::infinity();
  const Rows<int, double, int> rows = {{54, 110, 0},       {55, 110, 110},    {3999, 110, 3960},
                                       {0, 110, 0},        {3999, 1, 3999},   {7, 2.5, 8},
                                       {6, 2.5, 5},        {9, 2.5, 10},      {3600, 1000, 3000},
                                       {2500, 4000, 0},    {1999, 3999, 0},   {2000, 3999, 3999},
                                       {3999, 3999.5, 0},  {3999, 0.3, 3999}, {440, 1e-300, 440},
                                       {440, 5e-324, 440}, {3999, 1e300, 0},  {3999, infinity, 0}};
  for (const auto& [frequency, base, expected] : rows) {
    EXPECT_EQ(HarmonisedFrequency(frequency, base), expected) << frequency << " by " << base;
  }
}

TEST(SoundName, SaysWhichNamesASectionCannotHold) {
  for (const char* good : {"Bell", "Big Ben", "[", "a[b", ";x", "a=b", "\xC4ol", "\"q\"", "'"}) {
    EXPECT_EQ(FaultOfSoundName(good), "") << good;
  }
  for (const char* bad : {"", " ", "\t ", " Bell", "Bell ", "a]b", "]", "a\nb", "a\rb", "a\tb"}) {
    EXPECT_NE(FaultOfSoundName(bad), "") << bad;
  }
  EXPECT_NE(FaultOfSoundName(std::string_view("a\0b", 3)), "");
}

TEST_F(OpenSynthTest, HarmoniseMovesTheToneGeneratorsAlone) {
  Given("scFreq", {100, 170, 3999, 100, 170});
  Click("Command1");
  EXPECT_EQ(Sent(), Writes({{1, 110}, {2, 220}, {3, 3960}}));
  EXPECT_THAT(Values("scFreq"), ElementsAre(110, 220, 3960, 100, 170));
  for (const char* text : {"0", "-110", "", "abc"}) {
    Box("txtHFreq")->setText(text);
    Click("Command1");
    EXPECT_TRUE(Colour("txtHFreq").isValid()) << text;
    EXPECT_FALSE(Box("txtHFreq")->toolTip().isEmpty()) << text;
  }
  Box("txtHFreq")->setText("1000");
  EXPECT_FALSE(Colour("txtHFreq").isValid());
  EXPECT_TRUE(Box("txtHFreq")->toolTip().isEmpty());
  EXPECT_EQ(Sent(), "");
  Click("Command1");
  EXPECT_EQ(Sent(), Writes({{1, 0}, {2, 0}, {3, 3000}}));
}

TEST_F(OpenSynthTest, TheAdjustToolsScaleFromTheirBases) {
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

TEST_F(OpenSynthTest, AnAdjustBarRebasesBeforeThePressThatBringsTheFocusMovesIt) {
  for (const auto& [bar, stem] :
       {std::pair{"scVolAdjTone", "scVol"}, std::pair{"scFreqAdjTone", "scFreq"}}) {
    Bar(bar)->setValue(170);
    Given(stem, {16, 16});
    QTest::mouseClick(Bar(bar), Qt::LeftButton, {}, {3, 5});
    EXPECT_EQ(Value(bar), 99) << bar;
    Bar(bar)->setValue(150);
    EXPECT_EQ(Value(Indexed(stem, 2)), 24) << bar;
  }
}

TEST_F(OpenSynthTest, ASoundIsSavedUnderItsNameAndNothingIsSent) {
  Given("scFreq", {440, 0, 3999});
  Given("scVol", {20, 31});
  GivenSounds("Bell", "; mine\r\n[Other]\r\nFreq1=5\r\n");
  Click("btnSave");
  const std::string first =
      "; mine\r\n[Other]\r\nFreq1=5\r\n[Bell]\r\nFreq1=440\r\nVol1=20\r\nFreq2=0\r\nVol2=31\r\n"
      "Freq3=3999\r\nVol3=0\r\nFreq4=0\r\nVol4=0\r\nFreq5=0\r\nVol5=0\r\n";
  EXPECT_EQ(ReadBytes(Library()), first);
  EXPECT_EQ(Sent(), "");

  static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const rlimit full{first.size() + 40, before.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &full), 0);
  Box("txtSound")->setText("Drum");
  Click("btnSave");
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
  EXPECT_EQ(ReadBytes(Library()), first) << "no half of a sound on a full disk";
}

TEST_F(OpenSynthTest, LoadingWritesOnlyWhatDiffersOscillatorByOscillator) {
  Given("scVol", {20, 5, 5});
  GivenSounds("bell",
              "[Bell]\nFreq1=440\nVol1=20\nFreq2=9999\nVol2=-3\nFreq3=2.5\nVol3=x\nVol4=1e9\n");
  Click("btnLoad");
  EXPECT_EQ(Sent(), Writes({{1, 440}, {2, 3999}, {12, 0}, {3, 2}, {13, 0}, {14, 31}}));
  Box("txtSound")->setText("no such sound");
  Click("btnLoad");
  EXPECT_EQ(Sent(), Writes({{1, 0}, {11, 0}, {2, 0}, {3, 0}, {14, 0}}));
  EXPECT_TRUE(prompts.asked.empty());
}

TEST_F(OpenSynthTest, AWrongNameIsRefusedAndALibraryThatCannotBeUsedIsPassedOver) {
  Given("scFreq", {440});
  for (const char* button : {"btnSave", "btnLoad"}) {
    prompts.asked.clear();
    Box("txtSound")->setText("a]b");
    Click(button);
    ASSERT_EQ(prompts.asked.size(), 1U) << button;
    EXPECT_EQ(prompts.asked[0].title, "Loquitor");
    EXPECT_EQ(Value("scFreq(1)"), 440);
  }
  EXPECT_FALSE(std::filesystem::exists(Library()));
  std::filesystem::create_directory(Library());
  prompts.asked.clear();
  Box("txtSound")->setText("Bell");
  Click("btnSave");
  Click("btnLoad");
  EXPECT_EQ(Sent(), Writes({{1, 0}}));
  EXPECT_TRUE(prompts.asked.empty());
}

TEST_F(OpenSynthTest, TheSoundBoxOffersTheNamesThatAreThereNow) {
  GivenSounds("", "[Bell]\nFreq1=1\n[Siren]\n[bird \xE9]\nFreq1=2\n");
  TextBox* box = Box("txtSound");
  QAbstractItemView* list = box->completer()->popup();
  const struct {
    const char* typed;
    std::vector<Qt::Key> keys;
    QString text;
  } rows[] = {{"b", {Qt::Key_Down, Qt::Key_Return}, "Bell"},
              {"b", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Enter}, QStringLiteral("bird é")},
              {"b", {Qt::Key_Escape}, "b"},
              {"S", {Qt::Key_Return}, "S"},
              {"b", {Qt::Key_Tab}, "b"}};
  for (const auto& row : rows) {
    Type("txtSound", row.typed);
    EXPECT_TRUE(list->isVisible());
    for (const Qt::Key key : row.keys) {
      QTest::keyClick(box, key);
    }
    EXPECT_EQ(box->text(), row.text);
    EXPECT_FALSE(list->isVisible()) << row.typed;
    EXPECT_TRUE(window->isVisible());
  }
  Type("txtSound", "b");
  window->move(window->pos() + QPoint(40, 40));
  LetRun();
  EXPECT_FALSE(list->isVisible());
  Type("txtSound", "Bell");  // the list swallows no click
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {},
                    Get("btnLoad")->geometry().center());
  EXPECT_EQ(Sent(), Writes({{1, 1}}));
  EXPECT_FALSE(list->isVisible());
}

TEST_F(SynthTest, APieceIsPlayedByteForByte) {
  std::string received;
  const auto expectSent = [&](const std::string& zBytes) {
    const std::string sent = Sent();
    EXPECT_EQ(sent, zBytes);
    received += sent;
    ExpectShown(received);
  };
  GivenOpenWindow();
  received = opening;
  int oscillator = 1;
  for (const auto& [frequency, volume] : {std::pair{100, 10}, {170, 20}, {3999, 31}}) {
    Bar(Indexed("scFreq", oscillator))->setValue(frequency);
    Bar(Indexed("scVol", oscillator++))->setValue(volume);
  }
  expectSent(Writes({{1, 100}, {11, 10}, {2, 170}, {12, 20}, {3, 3999}, {13, 31}}));
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
  Press("Option1(2)");
  expectSent(Writes({{2, 7}, {15, 31}, {8, 2}}));
  Press("btnLoad");
  expectSent(Writes({{2, 330}, {15, 0}}));
  Press("btnShutUp");
  expectSent(Reset + Writes({{11, 0}, {12, 0}, {13, 0}, {1, 0}, {2, 0}, {3, 0}, {8, 0}}));
  Press("btnDone");
  expectSent(Reset + Writes({{8, 0}}));
}

TEST_F(OpenSynthTest, TheWheelRebasesBeforeItTurns) {
  Given("scFreq", {1000, 2000, 3000});
  Box("txtVol(4)")->setFocus();
  QTest::keyClicks(Box("txtVol(4)"), "9");
  ScrollBar* bar = Bar("scFreqAdjTone");
  const auto turnWheel = [bar] {
    const QPointF middle = bar->rect().center();
    QWheelEvent event(middle, bar->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(bar, &event);
  };
  AfterBytes(1, turnWheel);
  turnWheel();
  LetRun();
  EXPECT_THAT(Values("scFreq"), ElementsAre(1020, 2040, 3060, 0, 0));
  EXPECT_EQ(Value("scVol(4)"), 9);
}

}  // namespace
}  // namespace loquitor::testing
