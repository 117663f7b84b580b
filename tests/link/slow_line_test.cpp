#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <utility>

#include "link/code_sender.h"
#include "link/scp.h"
#include "tests/support/simulated_line.h"
#include "tests/support/temp_folder.h"
#include "tests/support/turn_host.h"

namespace loquitor {
namespace {

using testing::SimulatedLine;
using testing::TempFolder;
using testing::TurnHost;
using testing::WriteBytes;

/// A slow line and a hand on a bar: the mouse moves by the line's clock, and where it has moved
/// several times since the last turn the window system tells its last place.
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
}  // namespace loquitor
