// Bytes per second from the sender through the real serial port into a pseudo-terminal, which takes
// everything at once: the cost of one turn of the event loop for each byte.

#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include "link/code_sender.h"
#include "link/qt/event_turns.h"
#include "link/qt/qt_serial_port.h"
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
  void LetEventsRun() override { turns_.LetEventsRun(); }
  void WaitForEvents() override { turns_.WaitForEvents(); }
  void SetTicking(bool zIsOn) override { turns_.SetTicking(zIsOn); }

 private:
  std::string device_;
  EventTurns turns_;
};

void SendIntoAPseudoTerminal(benchmark::State& zState) {
  testing::PseudoTerminal chip;
  testing::TempFolder folder;
  const SettingsFile settings(folder.Path());
  QtSerialPort port;
  CodeSender* ticked = nullptr;
  LoopHost host(chip.Path(), [&] { ticked->Tick(); });
  CodeSender sender(port, host, settings);
  ticked = &sender;

  const std::string codes(static_cast<std::size_t>(zState.range(0)), 'x');
  std::size_t received = 0;
  for (auto _ : zState) {
    sender.SendCodesToOrvatone(codes, false);
    received += chip.Received().size();
  }
  if (received != codes.size() * static_cast<std::size_t>(zState.iterations())) {
    zState.SkipWithError("bytes were lost");
  }
  zState.SetBytesProcessed(static_cast<std::int64_t>(received));
}

BENCHMARK(SendIntoAPseudoTerminal)->Arg(10)->Arg(1000);  // a register write, a long phrase

}  // namespace
}  // namespace loquitor

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
