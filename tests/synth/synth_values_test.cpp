// The bars and boxes of the synth control window, and what each of them sends.

#include "tests/synth/synth_test.h"

namespace loquitor::testing {
namespace {

TEST_F(OpenSynthTest, OpeningSendsTheResetAndEveryRegisterOnce) {
  EXPECT_EQ(opening, Reset +
                         Writes({{11, 0}, {12, 0}, {13, 0}, {14, 0}, {15, 0}, {0, 88}, {1, 0}}) +
                         Writes({{2, 0}, {3, 0}, {4, 0}, {5, 0}, {6, 0}, {7, 96}, {8, 0}}));
  EXPECT_TRUE(Box("txtLevel(1)")->hasFocus());
  EXPECT_EQ(Box("txtLevel(1)")->text(), "96");
  EXPECT_EQ(Box("txtVol(5)")->text(), "0");
  EXPECT_EQ(Value("scFreqAdjTone"), 100);
  EXPECT_EQ(Bar("scVol(2)")->accessibleName(), "Oscillator #2 Volume");
  EXPECT_EQ(TabOrder("txtLevel(1)"),
            "txtLevel(1) txtEnvFreq txtFreq(1) txtVol(1) txtFreq(2) txtVol(2) txtFreq(3) txtVol(3) "
            "txtLevel(0) txtFreq(4) txtVol(4) txtFreq(5) txtVol(5) scLevel(1) scEnvolopeFreq "
            "scFreq(1) scVol(1) scFreq(2) scVol(2) scFreq(3) scVol(3) scLevel(0) scFreq(4) "
            "scVol(4) scFreq(5) scVol(5) btnShutUp btnDone Option1(0) Check2(1) Check2(0) txtSound "
            "btnLoad btnSave Command2 scVolAdjTone Command1 txtHFreq Command3 scFreqAdjTone");
}

TEST_F(OpenSynthTest, EveryBarShowsAndWritesItsValue) {
  using Bars = Rows<const char*, const char*, int, int, int>;
  for (const auto& [name, box, number, maximum, page] :
       Bars{{"scVol(1)", "txtVol(1)", 11, 31, 4},
            {"scVol(5)", "txtVol(5)", 15, 31, 4},
            {"scFreq(1)", "txtFreq(1)", 1, 3999, 22},
            {"scFreq(5)", "txtFreq(5)", 5, 3999, 22},
            {"scLevel(1)", "txtLevel(1)", 7, 127, 4},
            {"scLevel(0)", "txtLevel(0)", 6, 255, 16},
            {"scEnvolopeFreq", "txtEnvFreq", 0, 255, 22}}) {
    ScrollBar* bar = Bar(name);
    bar->setValue(maximum + 1);
    bar->setValue(maximum);
    EXPECT_EQ(Sent(), Writes({{number, maximum}})) << name;
    EXPECT_EQ(Box(box)->text(), QString::number(maximum)) << name;
    QTest::keyClick(bar, Qt::Key_PageUp);
    EXPECT_EQ(Sent(), Writes({{number, maximum - page}})) << name;
    bar->setSliderDown(true);
    for (const int position : {3, 9, 9}) {
      bar->setSliderPosition(position);
    }
    EXPECT_EQ(Sent(), Writes({{number, 3}, {number, 9}})) << name;
    EXPECT_EQ(Box(box)->text(), "9") << name;
    bar->setSliderDown(false);
    EXPECT_EQ(Sent(), Writes({{number, 9}})) << name;
  }
}

TEST_F(OpenSynthTest, EnvelopeTypesAndBoxesWriteTheControlByte) {
  for (const char* button : {"Option1(3)", "Check2(0)", "Check2(1)", "Option1(1)", "Option1(2)"}) {
    Click(button);
  }
  EXPECT_EQ(Sent(), Writes({{8, 3}, {8, 131}, {8, 195}, {8, 193}, {8, 194}}));
  Click("btnShutUp");
  EXPECT_EQ(Sent(), Reset + Writes({{8, 192}, {8, 64}, {8, 0}}));
}

TEST_F(SynthTest, ShutUpAndClosingWriteTheResetAndWhatMoves) {
  const Rows<const char*, std::function<void()>, std::string> rows = {
      {"Shut Up", [&] { Click("btnShutUp"); }, ""},
      {"Done", [&] { Click("btnDone"); }, Writes({{8, 0}})},
      {"close box", [&] { window->close(), window->close(); }, Writes({{8, 0}})}};
  for (const auto& [how, act, envelope] : rows) {
    GivenOpenWindow();
    Bar("scVolAdjTone")->setValue(120);
    Given("scVol", {0, 0, 7});
    Given("scFreq", {0, 440});
    act();
    EXPECT_EQ(Sent(), Reset + Writes({{13, 0}, {2, 0}}) + envelope) << how;
    EXPECT_EQ(window->IsUnloaded(), !envelope.empty()) << how;
    EXPECT_EQ(Value("scVolAdjTone"), 120);
  }
}

TEST_F(OpenSynthTest, TextIsEnteredWhenItsBoxIsLeft) {
  const Rows<const char*, const char*, const char*, std::string> rows = {
      {"txtFreq(1)", "4500", "3999", Writes({{1, 3999}})},
      {"txtFreq(1)", "1e400", "3999", ""},
      {"txtFreq(2)", "12.7", "13", Writes({{2, 13}})},
      {"txtFreq(2)", "13.2", "13.2", ""},
      {"txtFreq(2)", "-5", "0", Writes({{2, 0}})},
      {"txtFreq(2)", "-0.4", "0", ""},
      {"txtVol(2)", "2 0 loud", "20", Writes({{12, 20}})},
      {"txtVol(2)", "loud", "0", Writes({{12, 0}})},
      {"txtVol(2)", "", "", ""},
      {"txtVol(5)", "31.4", "31", Writes({{15, 31}})},
      {"txtLevel(1)", "200", "127", Writes({{7, 127}})},
      {"txtLevel(0)", "200", "200", Writes({{6, 200}})},
      {"txtEnvFreq", "256", "255", Writes({{0, 255}})}};
  for (const auto& [box, typed, shown, sent] : rows) {
    Type(box, typed);
    QTest::keyClick(Box(box), Qt::Key_Tab);
    LetRun();
    EXPECT_EQ(Box(box)->Text(), shown) << box << " " << typed;
    EXPECT_EQ(Sent(), sent) << box << " " << typed;
  }
}

TEST_F(OpenSynthTest, TextLeftByAPressOnItsBarIsWrittenBeforeThePressActs) {
  Type("txtFreq(3)", "300");
  const ScrollBar* bar = Bar("scFreq(3)");
  const QPoint besideThumb = bar->mapTo(window.get(), QPoint(bar->width() - 40, 8));
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, besideThumb);
  LetRun();
  EXPECT_EQ(Sent(), Writes({{3, 300}, {3, 322}}));
}

TEST_F(OpenSynthTest, ToneVolumesColourTheirBoxesReadably) {
  const QColor face = window->palette().color(QPalette::Button);
  const QColor yellow(255, 255, 0);
  const QColor red(255, 0, 0);
  const Rows<std::vector<int>, QColor> rows = {{{21, 21, 21}, yellow},    {{21, 22, 21}, red},
                                               {{20, 20, 19}, face},      {{20, 20, 20}, yellow},
                                               {{0, 0, 0, 31, 31}, face}, {{31, 31, 31}, red}};
  for (const auto& [volumes, colour] : rows) {
    Given("scVol", volumes);
    for (const char* box : {"txtVol(1)", "txtVol(2)", "txtVol(3)"}) {
      EXPECT_EQ(Colour(box), colour) << box;
      const QPalette shown = Box(box)->palette();
      EXPECT_GT(std::abs(qGray(shown.color(QPalette::Base).rgb()) -
                         qGray(shown.color(QPalette::Text).rgb())),
                70)
          << box;
    }
    EXPECT_FALSE(Colour("txtVol(4)").isValid());
  }
  port.onByte = [&] {  // shown, then written, then judged
    EXPECT_EQ(Box("txtVol(3)")->text(), "1");
    EXPECT_EQ(Colour("txtVol(3)"), red);
  };
  Bar("scVol(3)")->setValue(1);
  EXPECT_EQ(Colour("txtVol(3)"), yellow);
}

}  // namespace
}  // namespace loquitor::testing
