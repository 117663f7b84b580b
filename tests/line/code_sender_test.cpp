#include "line/code_sender.h"

#include <gtest/gtest.h>

#include <functional>
#include <iterator>
#include <map>
#include <random>
#include <utility>
#include <vector>

#include "files/settings_file.h"
#include "line/scp.h"
#include "tests/support/rows.h"
#include "tests/support/scripted_port.h"
#include "tests/support/simulated_line.h"
#include "tests/support/temp_folder.h"
#include "tests/support/turn_host.h"

namespace loquitor::testing {
namespace {

using namespace std::string_literals;
using Text = std::string_view;

/// Names of what can happen while a send runs.
using Acts = std::vector<const char*>;

class CodeSenderTest : public ::testing::Test {
 protected:
  void Send(Text zCodes) { sender.SendCodesToOrvatone(zCodes, false); }
  void Speak(Text zCodes) { sender.SendCodesToOrvatone(zCodes, true); }
  void Do(const Acts& zActs) {
    for (const char* act : zActs) {
      acts.at(act)();
    }
  }
  /// Lets all `zActs` happen in the turn of the event loop after byte `zCount`, during the send.
  void AfterTurns(std::size_t zCount, const Acts& zActs) {
    host.acts.assign(zCount - 1, [] {});
    host.acts.push_back([this, zActs] {
      EXPECT_TRUE(sender.IsSending() && !host.isTimerRunning);
      Do(zActs);
    });
  }
  std::string TakeLog() { return std::exchange(host.log, {}); }

  TempFolder folder;
  ScriptedPort port;
  TurnHost host;
  SettingsFile settings{folder.Path()};
  CodeSender sender{port, host, settings};

  const std::map<std::string, std::function<void()>> acts{
      {"nothing", [] {}},
      {"release",
       [this] {
         port.isHeldBack = false;
         port.unsentBytes = 0;
       }},
      {"hold back", [this] { port.isHeldBack = true; }},
      {"send x", [this] { Send("x"); }},
      {"speak", [this] { Speak(""); }},
      {"speak at length", [this] { Speak(std::string(65, 's')); }},
      {"shut up", [this] { sender.ShutUp(); }},
      {"empty", [this] { sender.ClearPendingOutput(); }},
      {"close", [this] { sender.CloseSerialPort(); }},
      {"tick", [this] { sender.Tick(); }},
      {"vanish", [this] { port.Vanish(); }},
      {"fail soon", [this] { port.bytesUntilFailure = 5; }},
      {"refuse", [this] { port.refusesToOpen = true; }},
      {"accept", [this] { port.refusesToOpen = false; }},
      {"answer", [this] { host.sendsLongPhrases = !host.sendsLongPhrases; }},
      {"flow control", [this] { host.isFlowControlTicked = !host.isFlowControlTicked; }}};
};

TEST_F(CodeSenderTest, EveryByteGoesOutAsGivenAndTheClosingTimerStarts) {
  port.onByte = [this] {
    EXPECT_TRUE(sender.IsSending() && host.isTicking && !host.isTimerRunning);
  };
  host.isTimerRunning = true;
  Send(EveryByte());
  EXPECT_EQ(port.TakeWritten(), EveryByte());
  EXPECT_EQ(TakeLog(), "green ");
  EXPECT_EQ(port.discardCount, 1);
  EXPECT_TRUE(host.isTimerRunning);
  EXPECT_EQ(host.closingDelay, 1000);
  EXPECT_FALSE(sender.IsSending() || host.isTicking || sender.HasFailed());
}

TEST_F(CodeSenderTest, OnlyLongPhrasesWithoutFlowControlAsk) {
  const Rows<std::size_t, bool, bool, bool, Text, std::size_t> rows{
      {0, true, false, false, "green ", 0},     {64, true, false, false, "green ", 64},
      {65, true, false, false, "question ", 0}, {65, true, false, true, "question green ", 65},
      {200, true, true, false, "green ", 200},  {5000, false, false, false, "green ", 5000},
      {65, true, false, false, "question ", 0}};
  for (const auto& [length, isPhrase, isTicked, answer, log, sent] : rows) {
    host.isFlowControlTicked = isTicked;
    host.sendsLongPhrases = answer;
    sender.SendCodesToOrvatone(std::string(length, 'x'), isPhrase);
    EXPECT_EQ(port.TakeWritten().size(), sent) << length;
    EXPECT_EQ(TakeLog(), log) << length;
    EXPECT_TRUE(port.IsOpen());  // after No as well, and then for good
    EXPECT_EQ(host.isTimerRunning, log.ends_with("green ")) << length;
  }
}

TEST_F(CodeSenderTest, TheSendThatOpensDecidesSpeedAndHandshaking) {
  for (const auto& [stored, isPhrase, isTicked, baudRate, handshaking] :
       Rows<Text, bool, bool, Text, bool>{
           {"", true, true, "9600", true},
           {"[serial]\r\nbaudrate=2400\r\n", true, false, "2400", false},
           {"[Serial]\r\nBaudRate= fast \r\n", false, true, "fast", false}}) {
    WriteBytes(folder / "Loquitor.ini", stored);
    host.isFlowControlTicked = isTicked;
    sender.SendCodesToOrvatone("a", isPhrase);
    host.isFlowControlTicked = !isTicked;
    sender.SendCodesToOrvatone("b", !isPhrase);  // finds it open
    ASSERT_EQ(port.opened.size(), 1u);
    EXPECT_EQ(port.opened[0].baudRate, baudRate);
    EXPECT_EQ(port.opened[0].hardwareHandshaking, handshaking);
    port.opened.clear();
    sender.CloseSerialPort();
  }
  EXPECT_EQ(port.closeCount, 3);
}

TEST_F(CodeSenderTest, APortThatDoesNotOpenShowsRedAndTheNextSendTriesAgain) {
  port.refusesToOpen = true;
  for (const char* device : {"refusing", ""}) {  // where there is no device nothing is opened
    host.device = device;
    Send("abc");
    sender.CloseSerialPort();  // the red stays
    EXPECT_EQ(TakeLog(), "red ");
    EXPECT_TRUE(host.isTimerRunning && sender.HasFailed());
    const bool isThere = !host.device.empty();
    EXPECT_EQ(sender.Failure().error, isThere ? PortError::InUse : PortError::NoDevice);
    EXPECT_EQ(sender.Failure().device, host.device);
    EXPECT_EQ(port.opened.size(), 1u);
  }
  host.device = "another";
  port.refusesToOpen = false;
  Send("abc");
  EXPECT_EQ(port.opened.back().device, "another");
  EXPECT_EQ(port.TakeWritten(), "abc");
  EXPECT_FALSE(sender.HasFailed());
  sender.CloseSerialPort();
  sender.CloseSerialPort();
  EXPECT_EQ(TakeLog(), "green white ");
}

TEST_F(CodeSenderTest, APortThatFailsInMidSendOrIdleIsShownRedOnce) {
  for (const int bytes : {0, 1, 2, 3}) {
    port.bytesUntilFailure = bytes;
    Send("abc");
    port.Vanish();  // reported late, or only now
    EXPECT_EQ(port.TakeWritten(), "abc"s.substr(0, static_cast<std::size_t>(bytes)));
    sender.CloseSerialPort();  // the closing timer
    EXPECT_EQ(TakeLog(), "green red ");
    EXPECT_TRUE(sender.PendingOutput().empty() && host.isTimerRunning);
    EXPECT_EQ(sender.Failure().error, PortError::Lost);
    EXPECT_EQ(sender.Failure().device, "scripted");
    port.bytesUntilFailure = -1;
    Send("again");
    EXPECT_EQ(port.TakeWritten(), "again");
    sender.CloseSerialPort();
    EXPECT_EQ(TakeLog(), "green white ");
  }
}

TEST_F(CodeSenderTest, APortThatOutlivesTheSenderTellsItNothingMore) {
  {
    const CodeSender another(port, host, settings);
    EXPECT_TRUE(port.failureHandler);
  }
  EXPECT_FALSE(port.failureHandler);
}

/// What ends the wait for a line that takes no byte, or does not let the last ones go.
TEST_F(CodeSenderTest, TheWaitForTheLineEnds) {
  for (const auto& [happens, heldBack, unsent, log] : Rows<Acts, Text, Text, Text>{
           {{"release"}, "abc", "abc", "green "},
           {{"empty"}, "", "abc", "green "},
           {{"release", "send x"}, "x", "abcx", "green green "},
           {{"close"}, "", "abc", "green white "},
           {{"vanish"}, "", "abc", "green red "},
           {{"close", "release", "send x"}, "x", "abcx", "green white green "},
           {{"close", "refuse", "send x"}, "", "abc", "green white red "}}) {
    for (const bool isHeldBack : {true, false}) {
      SCOPED_TRACE(log);
      port.isHeldBack = isHeldBack;
      port.unsentBytes = 3;
      port.refusesToOpen = false;
      AfterTurns(30, happens);
      Send("abc");
      EXPECT_EQ(std::exchange(host.waits, 0), isHeldBack ? 30 : 27);
      EXPECT_EQ(port.TakeWritten(), isHeldBack ? heldBack : unsent);
      EXPECT_TRUE(sender.PendingOutput().empty() && host.isTimerRunning && !sender.IsSending());
      EXPECT_EQ(TakeLog(), log);
      sender.CloseSerialPort();
      TakeLog();
    }
  }
}

TEST_F(CodeSenderTest, ANestedSendReplacesTheRestUnlessItIsRefused) {
  host.isFlowControlTicked = false;
  for (const auto& [happens, written] : Rows<Acts, Text>{{{"send x"}, "abx"},
                                                         {{"answer", "speak at length"}, "abcdef"},
                                                         {{"answer", "speak at length"}, "ab"}}) {
    AfterTurns(2, happens);
    Send("abcdef");
    std::string withoutSpeech = port.TakeWritten();
    std::erase(withoutSpeech, 's');
    EXPECT_EQ(withoutSpeech, written);
    EXPECT_TRUE(host.isTimerRunning);
  }
}

/// A window asks this before it touches a send that may be another window's now.
TEST_F(CodeSenderTest, ATicketNamesASendWhileItIsTheLatest) {
  SendTicket outer;
  SendTicket inner;
  EXPECT_FALSE(sender.IsUnderWay(outer));
  host.acts.push_back([&] {
    EXPECT_TRUE(sender.IsUnderWay(outer));
    host.acts.push_back([&] {
      EXPECT_TRUE(sender.IsUnderWay(inner));
      EXPECT_FALSE(sender.IsUnderWay(outer));
    });
    sender.SendCodesToOrvatone("b", false, &inner);
    EXPECT_FALSE(sender.IsUnderWay(inner) || sender.IsUnderWay(outer));
  });
  sender.SendCodesToOrvatone("ab", false, &outer);
  EXPECT_TRUE(host.acts.empty());
  EXPECT_FALSE(sender.IsUnderWay(outer) || sender.IsUnderWay(inner));

  host.isFlowControlTicked = host.sendsLongPhrases = false;
  AfterTurns(1, {"speak at length"});  // declined, so it is no send
  host.acts.push_back([&] { EXPECT_TRUE(sender.IsUnderWay(outer)); });
  sender.SendCodesToOrvatone("abc", false, &outer);
  EXPECT_TRUE(host.acts.empty());
}

TEST_F(CodeSenderTest, TicksCarryOnWhileAModalWindowHoldsUpTheLoop) {
  host.acts.assign(1, [] {});
  host.acts.push_back([this] {
    Do({"hold back", "tick"});
    EXPECT_EQ(port.written, "ab");
    Do({"release", "tick", "tick", "tick", "tick"});
    EXPECT_EQ(port.written, "abcde");
  });
  Send("abcde");
  EXPECT_EQ(port.TakeWritten(), "abcde");
}

TEST_F(CodeSenderTest, ThePortClosesAfterASendWhoseLoopIsHeldUp) {
  port.unsentBytes = 1;
  host.acts.push_back([this] {
    Do({"tick", "tick"});
    EXPECT_FALSE(host.isTimerRunning) << "the port still holds a byte";
    Do({"release", "tick"});
    EXPECT_TRUE(host.isTimerRunning);
    sender.CloseSerialPort();  // as the timer does
    Speak("x");
    EXPECT_TRUE(port.opened.back().hardwareHandshaking);
  });
  Send("ab");
  EXPECT_EQ(port.TakeWritten(), "abx");
  EXPECT_EQ(TakeLog(), "green white green ");
}

TEST_F(CodeSenderTest, ShutUpCutsALongWriteAtEveryTenthByte) {
  std::string write;
  for (int location = 0; location < 234; ++location) {
    write += MemoryWriteGroup(location, 0xFF);
  }
  for (std::size_t cut = 10; cut < write.size(); cut += 10) {
    AfterTurns(cut, {"shut up"});
    Send(write);
    ASSERT_EQ(port.TakeWritten(), write.substr(0, cut) + StopSequence()) << cut;
  }
}

TEST_F(CodeSenderTest, AMillionBytesCostNoMoreEachThanAFew) {
  const std::string codes(1 << 20, 'x');
  Send(codes);  // takes minutes if each byte moves all those after it
  EXPECT_EQ(port.TakeWritten().size(), codes.size());
}

/// Beyond the depth all bytes go out before the user may act again. Where the line is too slow for
/// that, the innermost send writes them.
TEST_F(CodeSenderTest, BeyondTheDepthTheUserWaitsWhileTheBytesGoOutUnlessTheLineIsSlow) {
  const Rows<std::vector<Acts>, Text, Text> rows{
      // '~' speaks, '!' empties PendingOutput
      {{{"abc", "def"}}, "abcdef", "abcdef"},
      {{{"1", "!", "abc"}}, "1abc", "abc"},
      {{{"abc"}, {"1", "2"}, {"def"}}, "abc1def2", "abcdef"},
      {{{"abc"}, {}, {}, {"def"}, {"ghi"}}, "abcdghi", "abcdefghi"},
      {{{"~speech"}, {}, {"abc"}}, "speechabc", "spabc"},
      {{{"abc"}, {"~1"}, {"~de"}, {}, {"~fg"}}, "abc1defg", "abcdfg"},
      {{{"abc"}, {"!"}}, "abc", "a"},
  };
  for (const bool isSlow : {false, true}) {
    for (const auto& [turns, written, writtenSlowly] : rows) {
      for (int i = 0; i < 7; ++i) {
        host.acts.push_back([this] { Send("-"); });
      }
      for (const auto& turn : turns) {
        host.acts.push_back([this, &turn, isSlow] {
          port.isHeldBack = isSlow;
          for (const Text codes : turn) {
            codes == "!"
                ? sender.ClearPendingOutput()
                : sender.SendCodesToOrvatone(codes.substr(codes[0] == '~'), codes[0] == '~');
            EXPECT_TRUE(!isSlow || !host.isTimerRunning);
          }
          port.isHeldBack = false;
        });
      }
      Send("outermost");
      while (!host.acts.empty()) {  // a quick line is done before the user acts
        host.LetEventsRun(UserInput::Now);
      }
      EXPECT_EQ(port.TakeWritten(), "o-------"s.append(isSlow ? writtenSlowly : written));
      EXPECT_EQ(host.deepest, 9);
      EXPECT_LE(std::exchange(host.waits, 0), isSlow ? 100 * std::ssize(turns) : 0);
      EXPECT_TRUE(host.isTimerRunning);
    }
  }
}

TEST_F(CodeSenderTest, WhateverHappensInMidSendEverySendEndsAndTheBoxTellsTheState) {
  std::mt19937 random(1);
  for (int story = 0; story < 3000; ++story) {
    host.acts.clear();
    for (int i = 0; i < 40; ++i) {
      host.acts.push_back(
          std::next(acts.begin(), static_cast<int>(random() % acts.size()))->second);
    }
    host.acts.push_back([this] {
      port.bytesUntilFailure = -1;
      Do({"release", "accept", "shut up"});
    });
    port.isHeldBack = false;
    Send(std::string(50, 'x'));
    while (!host.acts.empty()) {  // the send ended early
      host.LetEventsRun(UserInput::Now);
    }
    ASSERT_TRUE(port.TakeWritten().ends_with(StopSequence())) << story;
    ASSERT_TRUE(sender.PendingOutput().empty() && !sender.IsSending() && !host.isTicking) << story;
    ASSERT_TRUE(host.isTimerRunning && port.IsOpen() && TakeLog().ends_with("green ")) << story;
    ASSERT_LE(host.deepest, 10) << story;  // eight sends, the loop around them and one more wait
  }
}

/// A user who drags a bar while the line is slow. The mouse moves by the line's clock. If it has
/// moved several times since the last turn, the window system reports only its last place.
class DraggingHost : public TurnHost {
 public:
  DraggingHost(SimulatedLine& zLine, std::function<void(int)> zOnMove)
      : line_(zLine), onMove_(std::move(zOnMove)) {}
  void LetEventsRun(UserInput zInput) override { Turn(0.0001, zInput); }
  void WaitForEvents(UserInput zInput) override { Turn(0.002, zInput); }

  int position = 0;

 private:
  void Turn(double zSeconds, UserInput zInput) {
    deepest = std::max(deepest, ++turnsWithinEachOther);
    line_.Advance(zSeconds);
    const int place = std::min(10000, static_cast<int>(line_.Now() / 0.008));
    if (zInput == UserInput::Now && place > position) {
      onMove_(position = place);
    }
    --turnsWithinEachOther;
  }

  SimulatedLine& line_;
  std::function<void(int)> onMove_;
};

TEST(DragOnASlowLine, StaysShallowAndPromptAndEndsInTheFinalValue) {
  TempFolder folder;
  WriteBytes(folder / "Loquitor.ini", "[Serial]\r\nBaudRate=2400\r\n");
  SettingsFile settings(folder.Path());
  SimulatedLine line;
  std::function<void(int)> onMove;
  DraggingHost host(line, [&](int zPosition) { onMove(zPosition); });
  CodeSender sender(line, host, settings);
  double lastMove = 0;
  onMove = [&](int zPosition) {
    EXPECT_LT(line.Now() - lastMove, 0.07);  // the bar follows the mouse
    lastMove = line.Now();
    sender.SendCodesToOrvatone(RegisterWrite(7, zPosition), false);
  };
  while (host.position < 10000) {
    host.WaitForEvents(UserInput::Now);
  }
  line.Drain();
  EXPECT_LE(host.deepest, 10);  // the event loop, eight sends and one that keeps the user waiting
  // A write that the next one cuts has no X; 80 seconds carry some 1,700 whole ones.
  EXPECT_GT(std::count(line.onTheLine.begin(), line.onTheLine.end(), 'X'), 1000);
  EXPECT_TRUE(line.onTheLine.ends_with(RegisterWrite(7, 10000)));
  EXPECT_LT(line.Now() - 80, 0.2);  // nothing had piled up when the mouse rested
}

}  // namespace
}  // namespace loquitor::testing
