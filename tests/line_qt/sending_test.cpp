#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>

#include "files/settings_file.h"
#include "line/code_sender.h"
#include "line/qt/event_turns.h"
#include "line/qt/qt_serial_port.h"
#include "line/scp.h"
#include "tests/support/pseudo_terminal.h"
#include "tests/support/rows.h"
#include "tests/support/temp_folder.h"
#include "tests/support/turn_host.h"

namespace loquitor::testing {
namespace {

/// A host with a real event loop and a real closing timer.
class LoopHost : public TurnHost {
 public:
  explicit LoopHost(std::function<void()> zOnTick) : turns(std::move(zOnTick)) {}

  void StopClosingTimer() override { closingTimer.stop(); }
  void StartClosingTimer(int) override { closingTimer.start(20); }
  void LetEventsRun(UserInput zInput) override { turns.LetEventsRun(zInput); }
  void WaitForEvents(UserInput zInput) override { turns.WaitForEvents(zInput); }
  void SetTicking(bool zIsOn) override { turns.SetTicking(zIsOn); }

  EventTurns turns;
  QTimer closingTimer;
};

/// The whole way from a string to the chip's end of a pseudo-terminal.
class SendingTest : public ::testing::Test {
 protected:
  SendingTest() {
    host.device = chip.Path();
    host.closingTimer.setSingleShot(true);
    QObject::connect(&host.closingTimer, &QTimer::timeout, [this] { sender.CloseSerialPort(); });
  }

  void Send(const std::string& zCodes) { sender.SendCodesToOrvatone(zCodes, false); }

  /// Runs `zAct` once from the event loop, while a send waits for the line that is held back.
  void OnceHeldBack(std::function<void()> zAct) {
    QObject::connect(&poll, &QTimer::timeout, &poll, [this, zAct = std::move(zAct)] {
      const std::size_t pending = sender.PendingOutput().size();
      if (std::exchange(lastPending, pending) == pending && pending > 0) {
        poll.stop();
        poll.disconnect();
        zAct();
      }
    });
    poll.start(20);
  }

  PseudoTerminal chip;
  TempFolder folder;
  QtSerialPort port;
  LoopHost host{[this] { sender.Tick(); }};
  SettingsFile settings{folder.Path()};
  CodeSender sender{port, host, settings};
  QTimer poll;
  std::size_t lastPending = 0;
  const std::string tooLong = std::string(100000, 'x');  // more than a pseudo-terminal holds
};

TEST_F(SendingTest, AllBytesArriveAndThePortClosesLater) {
  Send(EveryByte() + EveryByte());
  EXPECT_EQ(chip.Received(), EveryByte() + EveryByte());
  EXPECT_EQ(host.log, "green ");
  ASSERT_TRUE(QTest::qWaitFor([this] { return !port.IsOpen(); }));
  EXPECT_EQ(host.log, "green white ");
}

TEST_F(SendingTest, AHeldBackLineIsLeftWhenTheSendIsEndedByOthers) {
  const std::pair<const char*, std::function<void()>> cases[] = {
      {"green ", [this] { sender.ClearPendingOutput(); }},
      {"green white ", [this] { sender.CloseSerialPort(); }},
      {"green red ", [this] { chip.HangUp(); }}};
  for (const auto& [log, act] : cases) {
    OnceHeldBack(act);
    Send(tooLong);
    EXPECT_EQ(host.log, log);
    EXPECT_FALSE(sender.IsSending());
    sender.CloseSerialPort();
    host.log.clear();
  }
}

TEST_F(SendingTest, ShutUpFollowsWhatHasGoneOut) {
  std::string received;
  OnceHeldBack([&] {
    received = chip.Received();
    sender.ShutUp();
  });
  Send(tooLong);
  received += chip.Received();
  EXPECT_TRUE(received.ends_with(StopSequence()));
  EXPECT_EQ(received.find_first_not_of('x'), received.size() - StopSequence().size());
}

TEST_F(SendingTest, EventsPostedAfterAHeldBackSendRunWhileItWaits) {
  chip.HoldBack();
  QTimer::singleShot(0, &poll, [this] { Send(tooLong); });
  QTimer::singleShot(0, &poll, [this] { sender.ClearPendingOutput(); });
  QTimer::singleShot(5000, &poll, [this] { chip.HangUp(); });
  QCoreApplication::processEvents();
  EXPECT_EQ(host.log, "green ") << "the send went on until the line was pulled away";
}

TEST_F(SendingTest, AHeldBackLineGoesOnInALoopOfAModalWindowAndAfterIt) {
  std::string received;
  QTimer reading;
  QObject::connect(&reading, &QTimer::timeout, [&] { received += chip.Received(); });
  OnceHeldBack([&] {
    received = chip.Received();
    const std::size_t held = received.size();
    reading.start(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return received.size() > held + 50; }));
    EXPECT_FALSE(sender.PendingOutput().empty());
  });
  Send(tooLong);
  EXPECT_EQ(received + chip.Received(), tooLong);
}

}  // namespace
}  // namespace loquitor::testing
