#include "ui/synth/frm_synth_ctrl.h"

#include <QWheelEvent>

#include "tests/support/real_mouse.h"
#include "tests/synth/synth_window.h"

namespace loquitor::testing {
namespace {

using ::testing::ElementsAre;

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
      {"txtFreq(2)", "12.7", "13", Writes({{2, 13}})},
      {"txtVol(2)", "2 0 loud", "20", Writes({{12, 20}})},
      {"txtLevel(1)", "200", "127", Writes({{7, 127}})},
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

TEST_F(OpenSynthTest, ToneVolumesColourTheirBoxesReadablyAndSayWhy) {
  const QColor face = window->palette().color(QPalette::Button);
  const QColor yellow(255, 255, 0);
  const QColor red(255, 0, 0);
  const Rows<std::vector<int>, QColor, const char*> rows = {
      {{21, 21, 21}, yellow, "The three tone volumes add up to 63 of 63."},
      {{21, 22, 21}, red, "The three tone volumes add up to 64 of 63."},
      {{20, 20, 19}, face, ""},
      {{20, 20, 20}, yellow, "The three tone volumes add up to 60 of 63."},
      {{0, 0, 0, 31, 31}, face, ""},
      {{31, 31, 31}, red, "The three tone volumes add up to 93 of 63."}};
  for (const auto& [volumes, colour, reason] : rows) {
    Given("scVol", volumes);
    for (const char* box : {"txtVol(1)", "txtVol(2)", "txtVol(3)"}) {
      EXPECT_EQ(Colour(box), colour) << box;
      EXPECT_EQ(Box(box)->toolTip(), reason);
      const QPalette shown = Box(box)->palette();
      const int contrast =
          qGray(shown.color(QPalette::Base).rgb()) - qGray(shown.color(QPalette::Text).rgb());
      EXPECT_GT(std::abs(contrast), 70) << box;
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

TEST_F(OpenSynthTest, ADragThatBringsTheFocusToAnAdjustBarStartsAtTheNewBases) {
  RealMouse mouse;
  for (const auto& [adjust, button, tones] : Rows<const char*, const char*, const char*>{
           {"scFreqAdjTone", "Command3", "scFreq"}, {"scVolAdjTone", "Command2", "scVol"}}) {
    ScrollBar* bar = Bar(adjust);
    Given(tones, {20, 20, 20});
    Press(button);
    bar->setValue(150);
    EXPECT_EQ(Values(tones)[0], 30);
    Box("txtSound")->setFocus();
    // 150 of 200 is in the right half of the bar. At 100 the thumb is not there any more.
    const QPoint thumb(bar->width() * 2 / 3, bar->height() / 2);
    mouse.Press(bar, thumb);
    EXPECT_EQ(bar->value(), 100) << adjust;
    mouse.Move(bar, thumb + QPoint(1, 0));
    mouse.Move(bar, thumb - QPoint(15, 0));
    EXPECT_LT(Values(tones)[0], 30) << adjust;
    EXPECT_GT(Values(tones)[0], 5) << adjust;
    mouse.Release(bar, thumb - QPoint(15, 0));
    EXPECT_TRUE(bar->value() > 20 && bar->value() < 100) << bar->value();
  }
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

TEST_F(OpenSynthTest, AClickThatLeavesABoxActsEvenWhenItsReleaseComesDuringTheWrite) {
  Type("txtFreq(1)", "44");
  auto* box = Get<CheckBox>("Check2(1)");
  const QPoint place = box->mapTo(window.get(), box->rect().center());
  AfterBytes(1, [&] { QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, place); });
  QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, place);
  LetRun();
  EXPECT_TRUE(box->isChecked());
  EXPECT_FALSE(box->isDown());
  EXPECT_EQ(Value("scFreq(1)"), 44);
  ExpectShown(opening + Sent());
}

}  // namespace
}  // namespace loquitor::testing
