// The synth control window on lines that are slow, held back or gone.

#include <QTimer>
#include <random>

#include "link/scp.h"
#include "tests/support/simulated_line.h"
#include "tests/support/turn_host.h"
#include "tests/synth/synth_test.h"

namespace loquitor::testing {
namespace {

/// A user whose mouse moves every 8 milliseconds, whatever the line is busy with.
class SlowLineHost : public ScriptedHost {
 public:
  explicit SlowLineHost(SimulatedLine& zLine) : line_(zLine) {}

  void LetEventsRun() override { MoveIfDue(); }
  void WaitForEvents() override { Pass(); }

  /// One millisecond on the line's clock.
  void Pass() {
    line_.Advance(0.001);
    MoveIfDue();
  }

  std::function<void()> move;  ///< the next move, when there is one
  int movesLeft = 0;
  int deepest = 0;

 private:
  void MoveIfDue() {
    if (movesLeft == 0 || line_.Now() < nextMove_) {
      return;
    }
    nextMove_ = line_.Now() + 0.008;
    --movesLeft;
    deepest = std::max(deepest, ++depth_);
    move();
    --depth_;
  }

  SimulatedLine& line_;
  double nextMove_ = 0;
  int depth_ = 0;
};

class SlowSynthTest : public SynthTest {
 protected:
  static constexpr int Positions = 10'000;

  SlowSynthTest() {
    settings.SaveIniValue("Serial", "BaudRate", "2400");
    window = std::make_unique<FrmSynthCtrl>(nullptr, slowContext);
    window->Open();
    LetRun();
  }

  /// Drags the bar through ten thousand positions and lets it rest at `zEnd`.
  void Drag(const QString& zBar, int zEnd) {
    ScrollBar* bar = Bar(zBar);
    bar->setSliderDown(true);
    slowHost.movesLeft = Positions;
    slowHost.move = [&, bar] {
      const int step = slowHost.movesLeft;
      bar->setSliderPosition(step == 0 ? zEnd : (step * 37) % (bar->maximum() + 1));
    };
    while (slowHost.movesLeft > 0) {
      slowHost.Pass();
    }
    bar->setSliderDown(false);
    line.Drain();
  }

  VirtualChip ChipAfterIt() const {
    VirtualChip chip;
    chip.Receive(line.onTheLine);
    EXPECT_FALSE(chip.Pending().has_value());
    return chip;
  }

  SimulatedLine line;
  SlowLineHost slowHost{line};
  CodeSender slowSender{line, slowHost, settings};
  EditorContext slowContext{codeTable,  translator, dictionary, settings,
                            slowSender, prompts,    shared};
};

TEST_F(SlowSynthTest, ALongDragEndsWithTheFinalValueOnTheChip) {
  Drag("scFreq(2)", 1234);
  EXPECT_LE(slowHost.deepest, 9);
  EXPECT_TRUE(line.onTheLine.ends_with(Writes({{2, 1234}})));
  ExpectShown(ChipAfterIt());
}

TEST_F(SlowSynthTest, ALongDragOfAnAdjustBarLeavesNoToneBehind) {
  Bar("scVol(1)")->setValue(1);
  Bar("scVol(2)")->setValue(13);
  Bar("scVol(3)")->setValue(30);
  Bar("scVolAdjTone")->setFocus(Qt::TabFocusReason);
  Drag("scVolAdjTone", 150);
  EXPECT_LE(slowHost.deepest, 9);
  ExpectShown(ChipAfterIt());
}

TEST_F(SlowSynthTest, AWriteCutByAnotherControlIsWrittenAgain) {
  Bar("scFreq(1)")->setValue(1000);
  Bar("scFreq(2)")->setValue(2000);
  line.Drain();
  slowHost.movesLeft = 1;
  slowHost.move = [&] { Bar("scVol(4)")->setValue(9); };
  Bar("scFreq(3)")->setValue(3000);
  line.Drain();
  EXPECT_TRUE(line.onTheLine.ends_with("\\" + Writes({{14, 9}, {3, 3000}})));
  ExpectShown(ChipAfterIt());
}

TEST_F(SlowSynthTest, WhateverIsMovedMeanwhileTheChipEndsWithWhatTheWindowShows) {
  WriteBytes(folder / "OTSounds.txt", "[Loud]\nFreq1=1\nVol1=31\nFreq2=2\nVol2=31\nVol5=31\n");
  Box("txtSound")->setText("Loud");
  const QList<ScrollBar*> bars = window->findChildren<ScrollBar*>();
  const QList<QAbstractButton*> buttons{
      The<QAbstractButton>("Command1"),   The<QAbstractButton>("Command2"),
      The<QAbstractButton>("Command3"),   The<QAbstractButton>("btnLoad"),
      The<QAbstractButton>("Option1(0)"), The<QAbstractButton>("Option1(2)"),
      The<QAbstractButton>("Check2(0)"),  The<QAbstractButton>("Check2(1)")};
  std::minstd_rand random(7);  // NOLINT: the same moves each time
  const auto below = [&](qsizetype zEnd) {
    return static_cast<int>(random() % static_cast<unsigned>(zEnd));
  };
  slowHost.move = [&] {
    if (below(4) == 0) {
      buttons[below(buttons.size())]->click();
    } else {
      ScrollBar* bar = bars[below(bars.size())];
      bar->setValue(below(bar->maximum() + 1));
    }
  };
  for (int round = 0; round < 200; ++round) {
    slowHost.movesLeft = 1 + below(40);
    while (slowHost.movesLeft > 0) {
      slowHost.Pass();
    }
    line.Drain();
    ExpectShown(ChipAfterIt());
    ASSERT_FALSE(HasFailure()) << "round " << round;
  }
}

/// Runs a script of steps while the window waits for its line.
class HeldBackSynthTest : public SynthTest {
 protected:
  void After(int zMilliseconds, std::function<void()> zStep) {
    QTimer::singleShot(zMilliseconds, &steps_, std::move(zStep));
  }

 private:
  QObject steps_;  // those that are still to come end with the test
};

TEST_F(HeldBackSynthTest, TheWindowOpensWorksAndClosesOnALineThatNeverTakesAByte) {
  port.isHeldBack = true;
  window = std::make_unique<FrmSynthCtrl>(nullptr, context);
  for (int i = 1; i <= 20; ++i) {
    After(i, [this, i] { Bar("scFreq(1)")->setValue(i); });
  }
  After(30, [this] {
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(Box("txtFreq(1)")->text(), "20");
    Given("scVol", {21, 22, 21});
    EXPECT_EQ(Box("txtVol(1)")->Background(), QColor(255, 0, 0));
    The<QAbstractButton>("btnDone")->click();
  });
  After(40, [this] { EXPECT_FALSE(window->isVisible()); });
  window->ShowModal();
  EXPECT_TRUE(window->IsUnloaded());
  EXPECT_FALSE(sender.IsSending());
  EXPECT_EQ(Sent(), "");
}

TEST_F(HeldBackSynthTest, ClosingGoesOnWhenTheLineIsFreeAgain) {
  GivenOpenWindow();
  Given("scVol", {5});
  port.isHeldBack = true;
  After(0, [this] { The<QAbstractButton>("btnDone")->click(); });
  After(50, [this] {
    EXPECT_EQ(Sent(), "");
    port.isHeldBack = false;
  });
  window->ShowModal();
  EXPECT_EQ(Sent(), "\\0RX" + Writes({{11, 0}, {8, 0}}));
}

TEST_F(HeldBackSynthTest, AWriterThatGivesUpWaitsForNoByteInThePortsQueue) {
  RegisterWriter writer(sender, [](int) { return 0; });
  port.unsentBytes = 4;
  bool isStuck = false;
  After(10, [&] { writer.GiveUp(); });
  After(2'000, [&] {
    isStuck = true;
    port.unsentBytes = 0;
  });
  writer.Write(1, 5);
  writer.Write(1, 6);
  EXPECT_FALSE(isStuck);
  EXPECT_EQ(Sent(), Writes({{1, 5}}));
}

/// The sends of windows closed since may still wait, as deep in each other as sends go.
TEST_F(HeldBackSynthTest, AWriterWhoseBytesAreLeftToAnotherSendWritesEachRegisterOnceMore) {
  TurnHost turns;
  CodeSender deep(port, turns, settings);
  RegisterWriter writer(deep, [](int zNumber) { return zNumber; });
  port.isHeldBack = true;
  turns.acts.assign(7, [&] { deep.SendCodesToOrvatone("x", false); });
  turns.acts.push_back([&] {
    writer.Write(11, 11);
    writer.Write(12, 12);
    port.isHeldBack = false;
  });
  Sent();
  deep.SendCodesToOrvatone("x", false);
  const std::string written = Sent();
  EXPECT_NE(written.find(RegisterWrite(11, 11)), std::string::npos);
  EXPECT_TRUE(written.ends_with(RegisterWrite(12, 12)));
  EXPECT_LT(written.size(), 60U);
}

TEST_F(HeldBackSynthTest, AWriterThatGivesUpLeavesTheSendOfAnotherWindowAlone) {
  RegisterWriter writer(sender, [](int) { return 0; });
  port.isHeldBack = true;
  After(10, [&] { sender.SendCodesToOrvatone("\x1f", true); });
  After(20, [&] { writer.GiveUp(); });
  After(30, [&] { port.isHeldBack = false; });
  writer.Write(1, 5);
  EXPECT_EQ(Sent(), "\x1f");
}

TEST_F(HeldBackSynthTest, AValueThatComesWhileAPostponedOneGoesOutStaysTheLast) {
  RegisterWriter writer(sender, [](int zNumber) { return zNumber == 1 ? 5 : 9; });
  writer.Postpone(1, 5);
  bool hasCome = false;
  port.onByte = [&] {
    if (!std::exchange(hasCome, true)) {
      writer.Write(2, 9);
    }
  };
  writer.Write(2, 7);
  EXPECT_EQ(Sent(), "\\" + Writes({{2, 9}, {1, 5}, {2, 9}}));
}

TEST_F(SynthTest, ShutUpStopsALoadUnderWay) {
  GivenOpenWindow();
  WriteBytes(folder / "OTSounds.txt", "[Loud]\nFreq1=1\nVol1=31\nFreq2=2\nVol2=31\nVol5=31\n");
  Box("txtSound")->setText("Loud");
  port.onByte = [this] {
    if (port.written.size() == 12) {  // the first whole write and the beginning of the next
      QTimer::singleShot(0, window.get(), [this] { The<QAbstractButton>("btnShutUp")->click(); });
    }
  };
  Press("btnLoad");
  EXPECT_EQ(Sent(), Writes({{1, 1}}) + "\\011\\0RX" + Writes({{11, 0}, {1, 0}}));
  EXPECT_EQ(Value("scVol(5)"), 0);
}

TEST_F(SynthTest, APortThatVanishesOrDoesNotOpenLeavesTheWindowWorking) {
  port.refusesToOpen = true;
  GivenOpenWindow();
  EXPECT_EQ(opening, "");
  EXPECT_EQ(Box("txtLevel(1)")->text(), "96");
  port.refusesToOpen = false;
  Bar("scFreq(1)")->setValue(5);
  EXPECT_EQ(Sent(), Writes({{1, 5}}));
  port.bytesUntilFailure = 3;
  Bar("scFreq(1)")->setValue(6);
  EXPECT_EQ(Sent(), "\\01");
  EXPECT_EQ(host.portState, PortState::Failed);
  port.bytesUntilFailure = -1;
  Press("btnDone");
  EXPECT_EQ(Sent(), "\\0RX" + Writes({{1, 0}, {8, 0}}));
}

TEST_F(SynthTest, AClickAwayFromABoxArrivesThoughItsWriteLetsTheReleaseIn) {
  GivenOpenWindow();
  Box("txtFreq(1)")->setFocus();
  QTest::keyClicks(Box("txtFreq(1)"), "44");
  auto* box = The<CheckBox>("Check2(1)");
  const QPoint place = box->mapTo(window.get(), box->rect().center());
  bool isReleased = false;
  port.onByte = [&] {
    if (!std::exchange(isReleased, true)) {
      QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, place);
    }
  };
  QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, place);
  LetRun();
  EXPECT_TRUE(isReleased);
  EXPECT_TRUE(box->isChecked());
  EXPECT_FALSE(box->isDown());
  EXPECT_EQ(Value("scFreq(1)"), 44);
  VirtualChip chip;
  chip.Receive(opening + Sent());
  ExpectShown(chip);
}

}  // namespace
}  // namespace loquitor::testing
