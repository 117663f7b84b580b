#include "link/code_sender.h"

#include <gtest/gtest.h>

#include <functional>
#include <iterator>
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
  /// In the turn after byte `zCount`, or so many turns from now.
  void AfterTurns(std::size_t zCount, std::function<void()> zAct) {
    host.acts.resize(zCount - 1, [] {});
    host.acts.push_back(std::move(zAct));
  }
  std::string TakeLog() { return std::exchange(host.log, {}); }

  TempFolder folder;
  ScriptedPort port;
  TurnHost host;
  SettingsFile settings{folder.Path()};
  CodeSender sender{port, host, settings};
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

TEST_F(CodeSenderTest, AnEmptyStringOpensThePortAndStartsTheClosingTimer) {
  Speak("");
  EXPECT_EQ(TakeLog(), "green ");
  EXPECT_TRUE(port.IsOpen() && host.isClosingSoon);
}

TEST_F(CodeSenderTest, OnlyLongPhrasesWithoutFlowControlAsk) {
  const struct {
    std::size_t length;
    bool isPhrase, isTicked, answer;
    const char* log;
    std::size_t sent;
  } cases[] = {
      {64, true, false, false, "green ", 64},      {65, true, false, true, "question green ", 65},
      {65, true, false, false, "question ", 0},    {200, true, true, false, "green ", 200},
      {5000, false, false, false, "green ", 5000},
  };
  for (const auto& one : cases) {
    host.isFlowControlTicked = one.isTicked;
    host.answer = one.answer;
    sender.SendCodesToOrvatone(std::string(one.length, 'x'), one.isPhrase);
    EXPECT_EQ(TakeLog(), one.log) << one.length;
    EXPECT_EQ(port.TakeWritten().size(), one.sent) << one.length;
    EXPECT_EQ(host.isClosingSoon, one.sent > 0) << one.length;
  }
}

TEST_F(CodeSenderTest, AfterNoAnOpenPortStaysOpenWithoutATimer) {
  Send("a");
  host.isFlowControlTicked = host.answer = false;
  Speak(std::string(65, 'x'));
  EXPECT_TRUE(port.IsOpen());
  EXPECT_FALSE(host.isClosingSoon);
  EXPECT_EQ(port.TakeWritten(), "a");
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
      {"[Serial]\r\nBaudRate=\r\n", false, true, "9600", false},
      {"[Serial]\r\nBaudRate= fast \r\n", false, false, "fast", false},
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
  EXPECT_EQ(port.closeCount, 4);
}

TEST_F(CodeSenderTest, ABaudRateIsAPlainPositiveNumber) {
  const struct {
    const char* text;
    std::optional<std::int32_t> rate;
  } cases[] = {{"9600", 9600},      {"1", 1},       {"2147483647", 2147483647},
               {"0", {}},           {"", {}},       {"-1", {}},
               {"+9600", {}},       {"9600.0", {}}, {" 9600", {}},
               {"9600 ", {}},       {"0x10", {}},   {"2147483648", {}},
               {"99999999999", {}}, {"9600,n", {}}};
  for (const auto& one : cases) {
    EXPECT_EQ(BaudRateOf(one.text), one.rate) << one.text;
  }
}

TEST_F(CodeSenderTest, APortThatDoesNotOpenShowsRedAndTheNextSendTriesAgain) {
  port.refusesToOpen = true;
  Send("abc");
  EXPECT_EQ(TakeLog(), "red ");
  EXPECT_TRUE(host.isClosingSoon && sender.HasFailed());
  sender.CloseSerialPort();
  EXPECT_EQ(TakeLog(), "");  // the red stays

  host.device.clear();  // no such number: there is nothing to open
  Send("abc");
  EXPECT_EQ(TakeLog(), "red ");
  EXPECT_EQ(port.opened.size(), 1u);

  host.device = "another";
  port.refusesToOpen = false;
  Send("abc");
  EXPECT_EQ(TakeLog(), "green ");
  EXPECT_EQ(port.opened.back().device, "another");
  EXPECT_EQ(port.TakeWritten(), "abc");
  EXPECT_FALSE(sender.HasFailed());
  sender.CloseSerialPort();
  sender.CloseSerialPort();
  EXPECT_EQ(TakeLog(), "white ");
}

TEST_F(CodeSenderTest, APortThatFailsInMidSendIsClosedAndShownRedOnce) {
  for (int bytes = 0; bytes < 3; ++bytes) {
    port.bytesUntilFailure = bytes;
    Send("abc");
    port.failureHandler();  // told late
    EXPECT_EQ(port.TakeWritten(), std::string_view("abc").substr(0, static_cast<size_t>(bytes)));
    EXPECT_EQ(TakeLog(), "green red ");
    EXPECT_TRUE(sender.HasFailed() && sender.PendingOutput().empty() && host.isClosingSoon);
    port.bytesUntilFailure = -1;
    Send("again");
    EXPECT_EQ(port.TakeWritten(), "again");
    EXPECT_EQ(TakeLog(), "green ");
    sender.CloseSerialPort();
    TakeLog();
  }
}

TEST_F(CodeSenderTest, APortThatVanishesWhileIdleShowsRed) {
  Send("abc");
  port.Vanish();
  EXPECT_TRUE(sender.HasFailed());
  sender.CloseSerialPort();  // the closing timer
  EXPECT_EQ(TakeLog(), "green red ");
}

TEST_F(CodeSenderTest, TheWaitForAHeldBackLineEnds) {
  const struct {
    const char* why;
    std::function<void()> act;
    const char* written;
    const char* log;
  } cases[] = {
      {"released", [this] { port.isHeldBack = false; }, "abc", "green "},
      {"emptied", [this] { sender.ClearPendingOutput(); }, "", "green "},
      {"replaced",
       [this] {
         port.isHeldBack = false;
         ShutUp();
       },
       "\\0RX\x1f", "green green "},
      {"closed", [this] { sender.CloseSerialPort(); }, "", "green white "},
      {"vanished", [this] { port.Vanish(); }, "", "green red "},
      {"closed and another opened",
       [this] {
         sender.CloseSerialPort();
         port.isHeldBack = false;
         Send("x");
       },
       "x", "green white green "},
      {"closed and no other opened",
       [this] {
         sender.CloseSerialPort();
         port.refusesToOpen = true;
         Send("x");
       },
       "", "green white red "},
  };
  for (const auto& one : cases) {
    port.isHeldBack = true;
    AfterTurns(30, one.act);
    host.waits = 0;
    Send("abc");
    EXPECT_EQ(host.waits, 30) << one.why;
    std::string written = port.TakeWritten();
    std::erase(written, '\0');
    EXPECT_EQ(written, one.written) << one.why;
    EXPECT_EQ(TakeLog(), one.log) << one.why;
    EXPECT_TRUE(sender.PendingOutput().empty() && host.isClosingSoon && !sender.IsSending());
    port.refusesToOpen = false;
    sender.CloseSerialPort();
    TakeLog();
  }
}

TEST_F(CodeSenderTest, TheLastBytesLeaveForTheLineBeforeTheClosingTimerStarts) {
  const struct {
    const char* why;
    std::function<void()> act;
    const char* written;
  } cases[] = {
      {"sent", [this] { port.unsentBytes = 0; }, "abc"},
      {"emptied", [this] { sender.ClearPendingOutput(); }, "abc"},
      {"closed", [this] { sender.CloseSerialPort(); }, "abc"},
      {"vanished", [this] { port.Vanish(); }, "abc"},
      {"replaced",
       [this] {
         port.unsentBytes = 0;
         Send("x");
       },
       "abcx"},
  };
  for (const auto& one : cases) {
    port.unsentBytes = 3;
    AfterTurns(30, [&] {
      EXPECT_TRUE(sender.IsSending() && !host.isClosingSoon) << one.why;
      one.act();
    });
    host.waits = 0;
    Send("abc");
    EXPECT_EQ(host.waits, 27) << one.why;
    EXPECT_EQ(port.TakeWritten(), one.written) << one.why;
    EXPECT_TRUE(host.isClosingSoon) << one.why;
  }
}

TEST_F(CodeSenderTest, ANestedSendReplacesTheRestOfTheOuterOne) {
  AfterTurns(2, [this] { Send("xyz"); });
  Send("abcdef");
  EXPECT_EQ(port.TakeWritten(), "abxyz");
}

TEST_F(CodeSenderTest, ARefusedPhraseLeavesTheOuterSendGoingOn) {
  host.isFlowControlTicked = host.answer = false;
  AfterTurns(2, [this] { Speak(std::string(65, 'x')); });
  Send("abcdef");
  EXPECT_EQ(port.TakeWritten(), "abcdef");
  EXPECT_TRUE(host.isClosingSoon);
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

TEST_F(CodeSenderTest, SendsNestOnlySoDeepAndTheLastGoesOutWhole) {
  for (int i = 0; i < 1000; ++i) {
    host.acts.push_back([this, i] {
      Send(RegisterWrite(7, i));
      EXPECT_FALSE(sender.IsSending() && host.isClosingSoon && host.turnsWithinEachOther > 8);
    });
  }
  Send(RegisterWrite(7, 2000));
  EXPECT_LE(host.deepest, 8);
  EXPECT_TRUE(port.written.ends_with(RegisterWrite(7, 999)));
  EXPECT_TRUE(host.isClosingSoon);
}

TEST_F(CodeSenderTest, BeyondTheDepthTheInnermostSendWritesWhatIsLeftToIt) {
  const struct {
    std::vector<std::vector<const char*>> turns;  // '~' speaks, '!' empties PendingOutput
    const char* written;
  } cases[] = {
      {{{"abc", "def"}}, "abcdef"},
      {{{"lost", "!", "abc"}}, "abc"},
      {{{"abc"}, {"lost", "lost"}, {"def"}}, "abcdef"},
      {{{"abc"}, {}, {}, {"def"}, {"ghi"}}, "abcdefghi"},
      {{{"~speech"}, {}, {"abc"}}, "spabc"},
      {{{"abc"}, {"~lost"}, {"~de"}, {}, {"~fg"}}, "abcdfg"},
      {{{"abc"}, {"!"}}, "a"},
  };
  for (const auto& one : cases) {
    host.acts.clear();
    for (int i = 0; i < 7; ++i) {
      host.acts.push_back([this] { Send("-"); });
    }
    for (const auto& turn : one.turns) {
      host.acts.push_back([this, &turn] {
        for (const std::string_view codes : turn) {
          codes == "!" ? sender.ClearPendingOutput()
                       : sender.SendCodesToOrvatone(codes.substr(codes[0] == '~'), codes[0] == '~');
          EXPECT_FALSE(host.isClosingSoon);
        }
      });
    }
    Send("outermost");
    EXPECT_EQ(port.TakeWritten(), std::string("o-------") + one.written);
    EXPECT_EQ(host.deepest, 8);
    EXPECT_TRUE(host.isClosingSoon);
  }
}

TEST_F(CodeSenderTest, TicksCarryOnWhileAModalWindowHoldsUpTheLoop) {
  AfterTurns(2, [this] {
    for (int i = 0; i < 3; ++i) {
      sender.Tick();
    }
    EXPECT_EQ(port.written, "abcde");
    port.isHeldBack = true;
    sender.Tick();
    EXPECT_EQ(port.written, "abcde");
    port.isHeldBack = false;
    for (int i = 0; i < 9; ++i) {
      sender.Tick();
    }
  });
  Send("abcdefg");
  EXPECT_EQ(port.TakeWritten(), "abcdefg");
}

TEST_F(CodeSenderTest, WhateverHappensInMidSendEverySendEndsAndTheBoxTellsTheState) {
  std::mt19937 random(1);
  const std::function<void()> acts[] = {
      [] {},
      [] {},
      [this] { port.isHeldBack = false; },
      [this] { port.isHeldBack = true; },
      [this] { Send("command"); },
      [this] { Speak(std::string(70, 's')); },
      [this] { Speak(""); },
      [this] { ShutUp(); },
      [this] { sender.ClearPendingOutput(); },
      [this] { sender.CloseSerialPort(); },
      [this] { sender.Tick(); },
      [this] { port.Vanish(); },
      [this] { port.refusesToOpen = !port.refusesToOpen; },
      [this] { port.bytesUntilFailure = 5; },
      [this] { host.answer = !host.answer; },
      [this] { host.isFlowControlTicked = !host.isFlowControlTicked; }};
  for (int story = 0; story < 3000; ++story) {
    host.acts.clear();
    for (int i = 0; i < 40; ++i) {
      host.acts.push_back(acts[random() % std::size(acts)]);
    }
    host.acts.push_back([this] {
      port.isHeldBack = port.refusesToOpen = false;
      port.bytesUntilFailure = -1;
      ShutUp();
    });
    port.isHeldBack = false;
    Send(std::string(50, 'x'));
    while (!host.acts.empty()) {  // the send ended early
      host.LetEventsRun();
    }
    ASSERT_TRUE(port.TakeWritten().ends_with(StopSequence())) << story;
    ASSERT_TRUE(sender.PendingOutput().empty() && !sender.IsSending() && !host.isTicking) << story;
    ASSERT_TRUE(host.isClosingSoon && port.IsOpen() && TakeLog().ends_with("green ")) << story;
    ASSERT_LE(host.deepest, 9) << story;  // eight sends and the loop around them
  }
}

}  // namespace
}  // namespace loquitor
