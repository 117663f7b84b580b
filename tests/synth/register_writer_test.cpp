#include "ui/synth/register_writer.h"

#include "tests/support/turn_host.h"
#include "tests/synth/synth_window.h"

namespace loquitor::testing {
namespace {

TEST_F(SynthTest, AWriterThatGivesUpWaitsForNoByteInThePortsQueue) {
  RegisterWriter writer(sender, [](int) { return 0; });
  port.unsentBytes = 4;
  bool isStuck = false;
  After(200, [&] { writer.GiveUp(); });  // when all bytes are in the queue
  After(2'000, [&] {
    isStuck = true;
    port.unsentBytes = 0;
  });
  writer.Write(1, 5);
  writer.Write(1, 6);
  EXPECT_FALSE(isStuck);
  EXPECT_EQ(Sent(), Writes({{1, 5}}));
}

/// The sends of closed windows may still wait, nested as deep as sends can be.
TEST_F(SynthTest, AWriterWhoseBytesAreLeftToAnotherSendWritesEachRegisterOnceMore) {
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

TEST_F(SynthTest, AWriterThatGivesUpLeavesTheSendOfAnotherWindowAlone) {
  RegisterWriter writer(sender, [](int) { return 0; });
  port.isHeldBack = true;
  After(10, [&] { sender.SendCodesToOrvatone("\x1f", true); });
  After(20, [&] { writer.GiveUp(); });
  After(30, [&] { port.isHeldBack = false; });
  writer.Write(1, 5);
  EXPECT_EQ(Sent(), "\x1f");
}

}  // namespace
}  // namespace loquitor::testing
