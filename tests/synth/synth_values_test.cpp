// The bars and boxes of the synth control window, and what each of them sends.

#include "tests/synth/synth_test.h"

namespace loquitor::testing {
namespace {

TEST_F(SynthTest, OpeningSendsTheResetAndEveryRegisterOnce) {
  GivenOpenWindow();
  EXPECT_EQ(opening, OpeningBytes());
  EXPECT_TRUE(Box("txtLevel(1)")->hasFocus());
  EXPECT_EQ(Box("txtLevel(1)")->text(), "96");
  EXPECT_EQ(Box("txtEnvFreq")->text(), "88");
  EXPECT_EQ(Box("txtVol(5)")->text(), "0");
  EXPECT_EQ(Box("txtHFreq")->text(), "110");
  EXPECT_TRUE(The<OptionButton>("Option1(0)")->isChecked());
  EXPECT_EQ(Value("scFreqAdjTone"), 100);
  EXPECT_EQ(Bar("scVol(2)")->accessibleName(), "Oscillator #2 Volume");
  EXPECT_EQ(Box("txtFreq(5)")->accessibleName(), "Oscillator #5 Frequency");
}

TEST_F(SynthTest, ShutUpAtRestSendsOnlyTheReset) {
  GivenOpenWindow();
  Press("btnShutUp");
  EXPECT_EQ(Sent(), "\\0RX");
  Bar("scFreq(2)")->setValue(440);
  The<CheckBox>("Check2(1)")->click();
  Bar("scVolAdjTone")->setValue(120);
  static_cast<void>(Sent());
  Press("btnShutUp");
  EXPECT_EQ(Sent(), "\\0RX" + Writes({{2, 0}, {8, 0}}));
  EXPECT_EQ(Value("scVolAdjTone"), 120);
}

TEST_F(SynthTest, ClosingLeavesTheChipQuietHoweverItCame) {
  const struct {
    const char* how;
    std::function<void()> close;
  } rows[] = {
      {"Done", [&] { Press("btnDone"); }},
      {"close box", [&] { window->close(); }},
      {"twice", [&] { window->close(), window->close(); }},
  };
  for (const auto& row : rows) {
    GivenOpenWindow();
    Bar("scVol(3)")->setValue(7);
    static_cast<void>(Sent());
    row.close();
    LetRun();
    EXPECT_EQ(Sent(), "\\0RX" + Writes({{13, 0}, {8, 0}})) << row.how;
    EXPECT_TRUE(window->IsUnloaded()) << row.how;
  }
}

TEST_F(SynthTest, EveryBarShowsAndWritesItsValueOnce) {
  GivenOpenWindow();
  const struct {
    const char* bar;
    const char* box;
    int value;
    const char* sent;
  } rows[] = {
      {"scVol(2)", "txtVol(2)", 20, "\\012J 20NX"},
      {"scVol(5)", "txtVol(5)", 31, "\\015J 31NX"},
      {"scFreq(1)", "txtFreq(1)", 440, "\\01J 440NX"},
      {"scFreq(5)", "txtFreq(5)", 3999, "\\05J 3999NX"},
      {"scLevel(1)", "txtLevel(1)", 127, "\\07J 127NX"},
      {"scLevel(0)", "txtLevel(0)", 255, "\\06J 255NX"},
      {"scEnvolopeFreq", "txtEnvFreq", 255, "\\00J 255NX"},
  };
  for (const auto& row : rows) {
    Bar(row.bar)->setValue(row.value);
    EXPECT_EQ(Sent(), row.sent) << row.bar;
    EXPECT_EQ(Box(row.box)->text(), QString::number(row.value)) << row.bar;
    Bar(row.bar)->setValue(row.value);
    EXPECT_EQ(Sent(), "") << row.bar;
  }
}

TEST_F(SynthTest, ADragWritesEachScrollAndOnceMoreAtItsEnd) {
  GivenOpenWindow();
  ScrollBar* bar = Bar("scVol(4)");
  bar->setSliderDown(true);
  for (const int position : {3, 9, 9}) {
    bar->setSliderPosition(position);
  }
  EXPECT_EQ(Sent(), Writes({{14, 3}, {14, 9}}));
  bar->setSliderDown(false);
  EXPECT_EQ(Sent(), Writes({{14, 9}}));
}

TEST_F(SynthTest, KeysMoveABar) {
  GivenOpenWindow();
  QTest::keyClick(Bar("scFreq(3)"), Qt::Key_Right);
  QTest::keyClick(Bar("scFreq(3)"), Qt::Key_PageDown);
  EXPECT_EQ(Sent(), Writes({{3, 1}, {3, 23}}));
  QTest::keyClick(Bar("scLevel(0)"), Qt::Key_PageDown);
  EXPECT_EQ(Sent(), Writes({{6, 16}}));
}

TEST_F(SynthTest, EnvelopeTypesAndBoxesWriteTheControlByte) {
  GivenOpenWindow();
  The<OptionButton>("Option1(3)")->click();
  The<CheckBox>("Check2(0)")->click();
  The<CheckBox>("Check2(1)")->click();
  EXPECT_EQ(Sent(), Writes({{8, 3}, {8, 131}, {8, 195}}));
  Press("btnShutUp");
  EXPECT_EQ(Sent(), "\\0RX" + Writes({{8, 192}, {8, 64}, {8, 0}}));
}

TEST_F(SynthTest, TextIsEnteredWhenItsBoxIsLeft) {
  GivenOpenWindow();
  const struct {
    const char* box;
    const char* typed;
    const char* shown;
    std::string sent;
  } rows[] = {
      {"txtFreq(1)", "4500", "3999", Writes({{1, 3999}})},
      {"txtFreq(1)", "9999999999", "3999", ""},
      {"txtFreq(2)", "12.7", "13", Writes({{2, 13}})},
      {"txtFreq(2)", "13.2", "13.2", ""},
      {"txtFreq(2)", "-5", "0", Writes({{2, 0}})},
      {"txtFreq(2)", "-0.4", "0", ""},
      {"txtFreq(3)", "1 2 hertz", "12", Writes({{3, 12}})},
      {"txtVol(2)", "20", "20", Writes({{12, 20}})},
      {"txtVol(2)", "loud", "0", Writes({{12, 0}})},
      {"txtVol(2)", "", "", ""},
      {"txtVol(5)", "31.4", "31", Writes({{15, 31}})},
      {"txtLevel(1)", "200", "127", Writes({{7, 127}})},
      {"txtLevel(0)", "200", "200", Writes({{6, 200}})},
      {"txtLevel(0)", "255.5", "255", Writes({{6, 255}})},
      {"txtEnvFreq", "256", "255", Writes({{0, 255}})},
      {"txtEnvFreq", "1e400", "255", ""},
      {"txtEnvFreq", "&H10", "16", Writes({{0, 16}})},
  };
  for (const auto& row : rows) {
    Box(row.box)->clear();
    Enter(row.box, row.typed);
    EXPECT_EQ(Box(row.box)->text(), row.shown) << row.box << " " << row.typed;
    EXPECT_EQ(Sent(), row.sent) << row.box << " " << row.typed;
  }
}

TEST_F(SynthTest, TextLeftByAPressOnItsBarIsWrittenBeforeThePressActs) {
  GivenOpenWindow();
  Box("txtFreq(3)")->setFocus();
  QTest::keyClicks(Box("txtFreq(3)"), "300");
  const ScrollBar* bar = Bar("scFreq(3)");
  const QPoint besideThumb = bar->mapTo(window.get(), QPoint(bar->width() - 40, 8));
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, besideThumb);
  LetRun();
  EXPECT_EQ(Sent(), Writes({{3, 300}, {3, 322}}));
}

TEST_F(SynthTest, ToneVolumesColourTheirBoxesReadably) {
  GivenOpenWindow();
  const QColor face = window->palette().color(QPalette::Button);
  const QColor yellow(255, 255, 0);
  const QColor red(255, 0, 0);
  const struct {
    std::initializer_list<int> volumes;
    QColor colour;
  } rows[] = {{{21, 21, 21}, yellow}, {{21, 22, 21}, red},       {{20, 20, 19}, face},
              {{20, 20, 20}, yellow}, {{0, 0, 0, 31, 31}, face}, {{31, 31, 31}, red}};
  for (const auto& row : rows) {
    Given("scVol", row.volumes);
    for (const char* box : {"txtVol(1)", "txtVol(2)", "txtVol(3)"}) {
      EXPECT_EQ(Box(box)->Background(), row.colour) << box;
      const QPalette shown = Box(box)->palette();
      EXPECT_GT(std::abs(qGray(shown.color(QPalette::Base).rgb()) -
                         qGray(shown.color(QPalette::Text).rgb())),
                70)
          << box;
    }
    EXPECT_FALSE(Box("txtVol(4)")->Background().isValid());
  }
}

TEST_F(SynthTest, AVolumeIsShownThenWrittenThenJudged) {
  GivenOpenWindow();
  Given("scVol", {31, 31});
  std::vector<QString> shown;
  std::vector<QColor> colours;
  port.onByte = [&] {
    shown.push_back(Box("txtVol(3)")->text());
    colours.push_back(Box("txtVol(3)")->Background());
  };
  Bar("scVol(3)")->setValue(2);
  EXPECT_THAT(shown, ::testing::Each(QString("2")));
  EXPECT_THAT(colours, ::testing::Each(QColor(255, 255, 0)));
  EXPECT_EQ(Box("txtVol(3)")->Background(), QColor(255, 0, 0));
}

TEST_F(SynthTest, TabReachesTheControlsInTheirOrder) {
  GivenOpenWindow();
  const QStringList expected = {
      "txtLevel(1)", "txtEnvFreq", "txtFreq(1)",     "txtVol(1)",    "txtFreq(2)", "txtVol(2)",
      "txtFreq(3)",  "txtVol(3)",  "txtLevel(0)",    "txtFreq(4)",   "txtVol(4)",  "txtFreq(5)",
      "txtVol(5)",   "scLevel(1)", "scEnvolopeFreq", "scFreq(1)",    "scVol(1)",   "scFreq(2)",
      "scVol(2)",    "scFreq(3)",  "scVol(3)",       "scLevel(0)",   "scFreq(4)",  "scVol(4)",
      "scFreq(5)",   "scVol(5)",   "btnShutUp",      "btnDone",      "Option1(0)", "Check2(1)",
      "Check2(0)",   "txtSound",   "btnLoad",        "btnSave",      "Command2",   "scVolAdjTone",
      "Command1",    "txtHFreq",   "Command3",       "scFreqAdjTone"};
  for (const QString& name : expected) {
    EXPECT_EQ(window->focusWidget()->objectName(), name);
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(window->focusWidget()->objectName(), "txtLevel(1)");
}

}  // namespace
}  // namespace loquitor::testing
