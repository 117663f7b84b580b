// The synth control window on lines that are slow, held back or gone.

#include <random>

#include "line/scp.h"
#include "tests/support/simulated_line.h"
#include "tests/support/turn_host.h"
#include "tests/synth/synth_window.h"

namespace loquitor::testing {
namespace {

/// A user whose mouse moves every 8 milliseconds, also while the line is busy.
class SlowLineHost : public ScriptedHost {
 public:
  explicit SlowLineHost(SimulatedLine& zLine) : line_(zLine) {}

  void LetEventsRun(UserInput zInput) override { MoveIfDue(zInput); }
  void WaitForEvents(UserInput zInput) override { Pass(zInput); }

  /// One millisecond on the line's clock.
  void Pass(UserInput zInput = UserInput::Now) {
    line_.Advance(0.001);
    MoveIfDue(zInput);
  }

  std::function<void()> move;  ///< the next move, when there is one
  int movesLeft = 0;
  int deepest = 0;

 private:
  void MoveIfDue(UserInput zInput) {
    if (zInput == UserInput::Later || movesLeft == 0 || line_.Now() < nextMove_) {
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

constexpr const char* LoudSound = "[Loud]\nFreq1=1\nVol1=31\nFreq2=2\nVol2=31\nVol5=31\n";

class SlowSynthTest : public SynthTest {
 protected:
  SlowSynthTest() {
    settings.SaveIniValue("Serial", "BaudRate", "2400");
    window = std::make_unique<FrmSynthCtrl>(nullptr, slowContext);
    window->Open();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    LetRun();
  }

  /// Lets the user make `zMoves` moves. At the end no mouse button is down and the line is free.
  void Play(int zMoves) {
    slowHost.movesLeft = zMoves;
    while (slowHost.movesLeft > 0) {
      slowHost.Pass();
    }
    for (ScrollBar* bar : window->findChildren<ScrollBar*>()) {
      bar->setSliderDown(false);
    }
    LetRun();
    line.Drain();
  }

  SimulatedLine line;
  SlowLineHost slowHost{line};
  CodeSender slowSender{line, slowHost, settings};
  EditorContext slowContext{codeTable,  translator, dictionary, settings,
                            slowSender, prompts,    shared};
};

TEST_F(SlowSynthTest, TheChipEndsWithWhatTheWindowShowsWhateverTheUserMoves) {
  GivenSounds("Loud", LoudSound);
  const QList<ScrollBar*> bars = window->findChildren<ScrollBar*>();
  const QList<TextBox*> boxes = Get("Frame1")->findChildren<TextBox*>();
  const char* buttons[] = {"btnShutUp",  "Command1",   "Command2",  "Command3", "btnLoad",
                           "Option1(0)", "Option1(2)", "Check2(0)", "Check2(1)"};
  std::minstd_rand random(7);  // NOLINT: the same moves each time
  const auto below = [&](auto zEnd) {
    return static_cast<int>(random() % static_cast<unsigned>(zEnd));
  };
  slowHost.move = [&] {
    ScrollBar* bar = bars[below(bars.size())];
    TextBox* box = boxes[below(boxes.size())];
    switch (below(6)) {
      case 0:
        return bar->setFocus();
      case 1:
        box->setFocus();
        return box->setText(QString::number(below(300)));
      case 2:
        return Press(buttons[below(std::size(buttons))]);
      case 3:
        return bar->setSliderDown(!bar->isSliderDown());
      default:
        return bar->setSliderPosition(below(bar->maximum() + 1));
    }
  };
  for (int round = 0; round < 200; ++round) {
    Play(1 + below(40));
    ExpectShown(line.onTheLine);
    ASSERT_FALSE(HasFailure()) << "round " << round;
  }
  EXPECT_LE(slowHost.deepest, 9);
}

TEST_F(SynthTest, TheWindowOpensWorksAndClosesOnALineThatNeverTakesAByte) {
  port.isHeldBack = true;
  window = std::make_unique<FrmSynthCtrl>(nullptr, context);
  for (int i = 1; i <= 20; ++i) {
    After(i, [this, i] { Bar("scFreq(1)")->setValue(i); });
  }
  After(30, [this] {
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(Box("txtFreq(1)")->text(), "20");
    Given("scVol", {21, 22, 21});
    EXPECT_EQ(Colour("txtVol(1)"), QColor(255, 0, 0));
    Press("btnDone");
  });
  After(40, [this] { EXPECT_FALSE(window->isVisible()); });
  window->ShowModal();
  EXPECT_TRUE(window->IsUnloaded());
  EXPECT_FALSE(sender.IsSending());
  EXPECT_EQ(Sent(), "");
}

TEST_F(OpenSynthTest, ClosingGoesOnWhenTheLineIsFreeAgain) {
  Given("scVol", {5});
  port.isHeldBack = true;
  After(0, [this] { Press("btnDone"); });
  After(50, [this] {
    EXPECT_EQ(Sent(), "");
    port.isHeldBack = false;
  });
  window->ShowModal();
  EXPECT_EQ(Sent(), Reset + Writes({{11, 0}, {8, 0}}));
}

TEST_F(SynthTest, ClosingLetsNoUserInputInBeforeItsLastByte) {
  TurnHost turns;
  CodeSender turnSender(port, turns, settings);
  const EditorContext turnContext{codeTable,  translator, dictionary, settings,
                                  turnSender, prompts,    shared};
  window = std::make_unique<FrmSynthCtrl>(nullptr, turnContext);
  window->Open();
  LetRun();
  Given("scVol", {5});
  turns.acts.push_back([&] { turnSender.SendCodesToOrvatone(ConnectionTest(), false); });
  window->close();
  EXPECT_EQ(Sent(), Reset + Writes({{11, 0}, {8, 0}}));
  turnSender.SendCodesToOrvatone("U", false);
  EXPECT_EQ(Sent(), "U" + ConnectionTest()) << "the click has waited";
}

TEST_F(OpenSynthTest, ShutUpStopsALoadUnderWay) {
  GivenSounds("Loud", LoudSound);
  // The first whole write and the beginning of the next.
  AfterBytes(12, [this] { After(0, [this] { Press("btnShutUp"); }); });
  Press("btnLoad");
  EXPECT_EQ(Sent(),
            Writes({{1, 1}}) + "\\011\\0RX" + Writes({{11, 0}, {12, 0}, {15, 0}, {1, 0}, {2, 0}}));
}

}  // namespace
}  // namespace loquitor::testing
