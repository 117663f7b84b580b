#include "link/code_sender.h"

#include <gtest/gtest.h>

#include <functional>
#include <iterator>
#include <map>
#include <random>
#include <utility>
#include <vector>

#include "link/scp.h"
#include "tests/support/scripted_port.h"
#include "tests/support/temp_folder.h"
#include "tests/support/turn_host.h"

namespace loquitor {
namespace {

using testing::ScriptedPort;
using testing::TempFolder;
using testing::TurnHost;
using testing::WriteBytes;

class CodeSenderTest : public ::testing::Test {
 protected:
  void Send(std::string_view zCodes) { sender.SendCodesToOrvatone(zCodes, false); }
  void Speak(std::string_view zCodes) { sender.SendCodesToOrvatone(zCodes, true); }
  void ShutUp() {
    sender.ClearPendingOutput();
    Send(StopSequence());
  }
  /// In the turn after byte `zCount`.
  void AfterTurns(std::size_t zCount, std::function<void()> zAct) {
    host.acts.resize(zCount - 1, [] {});
    host.acts.push_back(std::move(zAct));
  }
  void Do(const std::vector<const char*>& zActs) {
    for (const char* act : zActs) {
      acts.at(act)();
    }
  }
  std::string TakeLog() { return std::exchange(host.log, {}); }

  TempFolder folder;
  ScriptedPort port;
  TurnHost host;
  SettingsFile settings{folder.Path()};
  CodeSender sender{port, host, settings};

  /// What can happen while a send runs.
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
      {"shut up", [this] { ShutUp(); }},
      {"empty", [this] { sender.ClearPendingOutput(); }},
      {"close", [this] { sender.CloseSerialPort(); }},
      {"tick", [this] { sender.Tick(); }},
      {"vanish", [this] { port.Vanish(); }},
      {"fail soon", [this] { port.bytesUntilFailure = 5; }},
      {"refuse", [this] { port.refusesToOpen = true; }},
      {"accept", [this] { port.refusesToOpen = false; }},
      {"answer", [this] { host.answer = !host.answer; }},
      {"flow control", [this] { host.isFlowControlTicked = !host.isFlowControlTicked; }}};
};

TEST_F(CodeSenderTest, EveryByteGoesOutAsGivenAndTheClosingTimerStarts) {
  std::string all;
  for (int code = 0; code < 256; ++code) {
    all.push_back(static_cast<char>(code));
  }
  port.onByte = [this] {
    EXPECT_TRUE(sender.IsSending() && host.isTicking && !host.isClosingSoon);
  };
  host.isClosingSoon = true;
  Send(all);
  EXPECT_EQ(port.TakeWritten(), all);
  EXPECT_EQ(TakeLog(), "green ");
  EXPECT_EQ(port.discardCount, 1);
  EXPECT_TRUE(host.isClosingSoon);
  EXPECT_EQ(host.closingDelay, 1000);
  EXPECT_FALSE(sender.IsSending() || host.isTicking || sender.HasFailed());
}

TEST_F(CodeSenderTest, OnlyLongPhrasesWithoutFlowControlAsk) {
  const struct {
    std::size_t length;
    bool isPhrase, isTicked, answer;
    const char* log;
    std::size_t sent;
  } cases[] = {
      {0, true, false, false, "green ", 0},     {64, true, false, false, "green ", 64},
      {65, true, false, false, "question ", 0}, {65, true, false, true, "question green ", 65},
      {200, true, true, false, "green ", 200},  {5000, false, false, false, "green ", 5000},
      {65, true, false, false, "question ", 0},
  };
  for (const auto& one : cases) {
    host.isFlowControlTicked = one.isTicked;
    host.answer = one.answer;
    sender.SendCodesToOrvatone(std::string(one.length, 'x'), one.isPhrase);
    EXPECT_EQ(port.TakeWritten().size(), one.sent) << one.length;
    const std::string log = TakeLog();
    EXPECT_EQ(log, one.log) << one.length;
    EXPECT_TRUE(port.IsOpen());  // after No as well, and then for good
    EXPECT_EQ(host.isClosingSoon, log.ends_with("green ")) << one.length;
  }
}

TEST_F(CodeSenderTest, TheSendThatOpensDecidesSpeedAndHandshaking) {
  const struct {
    const char* stored;
    bool isPhrase, isTicked;
    const char* baudRate;
    bool handshaking;
  } cases[] = {
      {"", true, true, "9600", true},
      {"[serial]\r\nbaudrate=2400\r\n", true, false, "2400", false},
      {"[Serial]\r\nBaudRate= fast \r\n", false, true, "fast", false},
  };
  for (const auto& one : cases) {
    WriteBytes(folder / "Loquitor.ini", one.stored);
    host.isFlowControlTicked = one.isTicked;
    sender.SendCodesToOrvatone("a", one.isPhrase);
    host.isFlowControlTicked = !one.isTicked;
    sender.SendCodesToOrvatone("b", !one.isPhrase);  // finds it open
    ASSERT_EQ(port.opened.size(), 1u);
    EXPECT_EQ(port.opened[0].baudRate, one.baudRate);
    EXPECT_EQ(port.opened[0].hardwareHandshaking, one.handshaking);
    port.opened.clear();
    sender.CloseSerialPort();
  }
  EXPECT_EQ(port.closeCount, 3);
}

TEST_F(CodeSenderTest, ABaudRateIsAPlainPositiveNumber) {
  const struct {
    const char* text;
    std::optional<std::int32_t> rate;
  } cases[] = {{"9600", 9600},     {"2147483647", 2147483647},
               {"2147483648", {}}, {"0", {}},
               {"", {}},           {"-1", {}},
               {"+9600", {}},      {"9600.0", {}},
               {" 9600", {}},      {"9600 ", {}}};
  for (const auto& one : cases) {
    EXPECT_EQ(BaudRateOf(one.text), one.rate) << one.text;
  }
}

TEST_F(CodeSenderTest, APortThatDoesNotOpenShowsRedAndTheNextSendTriesAgain) {
  port.refusesToOpen = true;
  for (const char* device : {"refusing", ""}) {  // where there is no device nothing is opened
    host.device = device;
    Send("abc");
    sender.CloseSerialPort();  // the red stays
    EXPECT_EQ(TakeLog(), "red ");
    EXPECT_TRUE(host.isClosingSoon && sender.HasFailed());
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
    port.Vanish();  // told late, or gone only now
    EXPECT_EQ(port.TakeWritten(), std::string_view("abc").substr(0, static_cast<size_t>(bytes)));
    sender.CloseSerialPort();  // the closing timer
    EXPECT_EQ(TakeLog(), "green red ");
    EXPECT_TRUE(sender.HasFailed() && sender.PendingOutput().empty() && host.isClosingSoon);
    port.bytesUntilFailure = -1;
    Send("again");
    EXPECT_EQ(port.TakeWritten(), "again");
    sender.CloseSerialPort();
    EXPECT_EQ(TakeLog(), "green white ");
  }
}

/// What ends the wait for a line that takes no byte, or does not let the last ones go.
TEST_F(CodeSenderTest, TheWaitForTheLineEnds) {
  const struct {
    std::vector<const char*> acts;
    const char *heldBack, *unsent, *log;
  } cases[] = {
      {{"release"}, "abc", "abc", "green "},
      {{"empty"}, "", "abc", "green "},
      {{"release", "send x"}, "x", "abcx", "green green "},
      {{"close"}, "", "abc", "green white "},
      {{"vanish"}, "", "abc", "green red "},
      {{"close", "release", "send x"}, "x", "abcx", "green white green "},
      {{"close", "refuse", "send x"}, "", "abc", "green white red "},
  };
  for (const auto& one : cases) {
    for (const bool isHeldBack : {true, false}) {
      SCOPED_TRACE(one.log);
      port.isHeldBack = isHeldBack;
      port.unsentBytes = 3;
      port.refusesToOpen = false;
      AfterTurns(30, [&] {
        EXPECT_TRUE(sender.IsSending() && !host.isClosingSoon);
        Do(one.acts);
      });
      Send("abc");
      EXPECT_EQ(std::exchange(host.waits, 0), isHeldBack ? 30 : 27);
      EXPECT_EQ(port.TakeWritten(), isHeldBack ? one.heldBack : one.unsent);
      EXPECT_TRUE(sender.PendingOutput().empty() && host.isClosingSoon && !sender.IsSending());
      EXPECT_EQ(TakeLog(), one.log);
      sender.CloseSerialPort();
      TakeLog();
    }
  }
}

TEST_F(CodeSenderTest, ANestedSendReplacesTheRestUnlessItIsRefused) {
  const struct {
    std::vector<const char*> acts;
    const char* written;
  } cases[] = {{{"send x"}, "abx"},
               {{"answer", "speak at length"}, "abcdef"},
               {{"answer", "speak at length"}, "ab"}};
  host.isFlowControlTicked = false;
  for (const auto& one : cases) {
    AfterTurns(2, [&] { Do(one.acts); });
    Send("abcdef");
    std::string written = port.TakeWritten();
    std::erase(written, 's');
    EXPECT_EQ(written, one.written);
    EXPECT_TRUE(host.isClosingSoon);
  }
}

TEST_F(CodeSenderTest, TicksCarryOnWhileAModalWindowHoldsUpTheLoop) {
  AfterTurns(2, [this] {
    Do({"hold back", "tick"});
    EXPECT_EQ(port.written, "ab");
    Do({"release", "tick", "tick", "tick", "tick"});
    EXPECT_EQ(port.written, "abcde");
  });
  Send("abcde");
  EXPECT_EQ(port.TakeWritten(), "abcde");
}

TEST_F(CodeSenderTest, ShutUpCutsALongWriteAtEveryTenthByte) {
  std::string write;
  for (int location = 0; location < 234; ++location) {
    write += MemoryWriteGroup(location, 0xFF);
  }
  for (std::size_t cut = 10; cut < write.size(); cut += 10) {
    host.acts.clear();
    AfterTurns(cut, [this] { ShutUp(); });
    Send(write);
    ASSERT_EQ(port.TakeWritten(), write.substr(0, cut) + StopSequence()) << cut;
  }
}

TEST_F(CodeSenderTest, AMillionBytesCostNoMoreEachThanAFew) {
  const std::string codes(1 << 20, 'x');
  Send(codes);  // minutes, were each byte to move all those behind it
  EXPECT_EQ(port.TakeWritten().size(), codes.size());
}

/// Beyond the depth bytes go out whole before the user may act again; where the line is too slow
/// for that, the innermost send writes what is left to it.
TEST_F(CodeSenderTest, BeyondTheDepthTheUserWaitsWhileTheBytesGoOutUnlessTheLineIsSlow) {
  const struct {
    std::vector<std::vector<const char*>> turns;  // '~' speaks, '!' empties PendingOutput
    const char *written, *writtenSlowly;
  } cases[] = {
      {{{"abc", "def"}}, "abcdef", "abcdef"},
      {{{"1", "!", "abc"}}, "1abc", "abc"},
      {{{"abc"}, {"1", "2"}, {"def"}}, "abc1def2", "abcdef"},
      {{{"abc"}, {}, {}, {"def"}, {"ghi"}}, "abcdghi", "abcdefghi"},
      {{{"~speech"}, {}, {"abc"}}, "speechabc", "spabc"},
      {{{"abc"}, {"~1"}, {"~de"}, {}, {"~fg"}}, "abc1defg", "abcdfg"},
      {{{"abc"}, {"!"}}, "abc", "a"},
  };
  for (const bool isSlow : {false, true}) {
    for (const auto& one : cases) {
      for (int i = 0; i < 7; ++i) {
        host.acts.push_back([this] { Send("-"); });
      }
      for (const auto& turn : one.turns) {
        host.acts.push_back([this, &turn, isSlow] {
          port.isHeldBack = isSlow;
          for (const std::string_view codes : turn) {
            codes == "!"
                ? sender.ClearPendingOutput()
                : sender.SendCodesToOrvatone(codes.substr(codes[0] == '~'), codes[0] == '~');
            EXPECT_TRUE(!isSlow || !host.isClosingSoon);
          }
          port.isHeldBack = false;
        });
      }
      Send("outermost");
      while (!host.acts.empty()) {  // a quick line is done before he acts
        host.LetEventsRun(UserInput::Now);
      }
      EXPECT_EQ(port.TakeWritten(),
                std::string("o-------") + (isSlow ? one.writtenSlowly : one.written));
      EXPECT_EQ(host.deepest, 9);
      EXPECT_LE(std::exchange(host.waits, 0), isSlow ? 100 * std::ssize(one.turns) : 0);
      EXPECT_TRUE(host.isClosingSoon);
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
    ASSERT_TRUE(host.isClosingSoon && port.IsOpen() && TakeLog().ends_with("green ")) << story;
    ASSERT_LE(host.deepest, 10) << story;  // eight sends, the loop around them and one more wait
  }
}

}  // namespace
}  // namespace loquitor
