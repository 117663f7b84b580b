// Bytes per second from the sender through the real serial port into a pseudo-terminal, which takes
// everything at once: the cost of one turn of the event loop for each byte.

#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include "files/settings_file.h"
#include "line/code_sender.h"
#include "line/qt/event_turns.h"
#include "line/qt/qt_serial_port.h"
#include "tests/support/pseudo_terminal.h"
#include "tests/support/temp_folder.h"

namespace loquitor {
namespace {

class LoopHost : public SenderHost {
 public:
  LoopHost(std::string zDevice, std::function<void()> zOnTick)
      : device_(std::move(zDevice)), turns_(std::move(zOnTick)) {}

  std::string PortDevice() const override { return device_; }
  bool IsFlowControlTicked() const override { return false; }
  void ShowPortState(PortState) override {}
  bool ConfirmLongPhrase() override { return true; }
  void StopClosingTimer() override {}
  void StartClosingTimer(int) override {}
  void LetEventsRun(UserInput zInput) override { turns_.LetEventsRun(zInput); }
  void WaitForEvents(UserInput zInput) override { turns_.WaitForEvents(zInput); }
  void SetTicking(bool zIsOn) override { turns_.SetTicking(zIsOn); }

 private:
  std::string device_;
  EventTurns turns_;
};

/// A chip on a pseudo-terminal and everything between it and the sender.
struct Bench {
  testing::PseudoTerminal chip;
  testing::TempFolder folder;
  SettingsFile settings{folder.Path()};
  QtSerialPort port;
  LoopHost host{chip.Path(), [this] { sender.Tick(); }};
  CodeSender sender{port, host, settings};
};

void SendIntoAPseudoTerminal(benchmark::State& zState) {
  Bench bench;
  const std::string codes(static_cast<std::size_t>(zState.range(0)), 'x');
  std::size_t received = 0;
  for (auto _ : zState) {
    bench.sender.SendCodesToOrvatone(codes, false);
    received += bench.chip.Received().size();
  }
  if (received != codes.size() * static_cast<std::size_t>(zState.iterations())) {
    zState.SkipWithError("bytes were lost");
  }
  zState.SetBytesProcessed(static_cast<std::int64_t>(received));
}

BENCHMARK(SendIntoAPseudoTerminal)->Arg(10)->Arg(1000);  // a register write, a long phrase

/// What waiting for a line that is held back costs: the share of CPU in Time is the load.
void WaitForAHeldBackLine(benchmark::State& zState) {
  Bench bench;
  if (bench.port.Open({bench.chip.Path(), "9600", false}).error != PortError::None) {
    zState.SkipWithError("the port does not open");
  }
  while (bench.port.IsReadyForByte() && bench.port.WriteByte('x')) {
  }
  bench.host.SetTicking(true);
  for (auto _ : zState) {
    bench.host.WaitForEvents(UserInput::Now);
    benchmark::DoNotOptimize(bench.port.IsReadyForByte());
  }
}

BENCHMARK(WaitForAHeldBackLine)->UseRealTime();

}  // namespace
}  // namespace loquitor

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
