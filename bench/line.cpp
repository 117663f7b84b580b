// How busy a long write keeps the line, and how many bytes go out before a Shut Up. The line and
// its clock are simulated, so the counters are the same on every machine. The times are those of
// the simulation.
//
// busy:       part of the time of a long write in which a byte was on the line, in percent
// before_max: most bytes that went out between a Shut Up, pressed after every tenth byte, and the
//             first byte of its stop sequence

#include <benchmark/benchmark.h>

#include <algorithm>

#include "files/settings_file.h"
#include "line/code_sender.h"
#include "line/scp.h"
#include "tests/support/simulated_line.h"
#include "tests/support/temp_folder.h"

namespace loquitor {
namespace {

using testing::TempFolder;

/// An event loop on the line's clock. Each turn takes 10 us, a wait for the port 2 ms as the real
/// tick does, and every fiftieth turn `zWork` seconds more, for a window that paints itself.
class LineHost : public SenderHost {
 public:
  LineHost(SimulatedLine& zLine, double zWork) : line_(zLine), work_(zWork) {}

  std::string PortDevice() const override { return "simulated"; }
  bool IsFlowControlTicked() const override { return false; }
  void ShowPortState(PortState) override {}
  bool ConfirmLongPhrase() override { return true; }
  void StopClosingTimer() override {}
  void StartClosingTimer(int) override {}
  void LetEventsRun(UserInput) override { Turn(10e-6); }
  void WaitForEvents(UserInput) override { Turn(2e-3); }
  void SetTicking(bool) override {}

  std::function<void()> onTurn;

 private:
  void Turn(double zSeconds) {
    line_.Advance(++turns_ % 50 == 0 ? zSeconds + work_ : zSeconds);
    if (onTurn) {
      onTurn();
    }
  }

  SimulatedLine& line_;
  double work_;
  int turns_ = 0;
};

/// The largest EEPROM image, every phrase byte of it written.
std::string LongWrite() {
  std::string write;
  for (int location = 0; location < 235; ++location) {
    write += MemoryWriteGroup(location, 0xFF);
  }
  return write + std::string(scp::Test);
}

/// The settings of a line of one speed.
struct Speed {
  explicit Speed(std::int64_t zBaudRate) {
    testing::WriteBytes(folder / "Loquitor.ini",
                        "[Serial]\r\nBaudRate=" + std::to_string(zBaudRate) + "\r\n");
  }

  TempFolder folder;
  SettingsFile settings{folder.Path()};
};

/// A sender on a line of its own.
struct Bench {
  Bench(const Speed& zSpeed, double zWork)
      : host(line, zWork), sender(line, host, zSpeed.settings) {}

  SimulatedLine line;
  LineHost host;
  CodeSender sender;
};

double BusyPercent(const Speed& zSpeed, double zWork) {
  Bench bench(zSpeed, zWork);
  bench.sender.SendCodesToOrvatone(LongWrite(), false);
  return 100 * bench.line.Busy() / bench.line.Now();
}

std::size_t BytesBeforeShutUp(const Speed& zSpeed, double zWork, std::size_t zPressedAfter) {
  Bench bench(zSpeed, zWork);
  const std::string write = LongWrite();
  bool isPressed = false;
  std::size_t onTheLine = 0;
  bench.host.onTurn = [&] {
    if (!isPressed && write.size() - bench.sender.PendingOutput().size() >= zPressedAfter) {
      isPressed = true;
      onTheLine = bench.line.onTheLine.size();
      bench.sender.ShutUp();
    }
  };
  bench.sender.SendCodesToOrvatone(write, false);
  bench.line.Drain();
  return bench.line.onTheLine.size() - StopSequence().size() - onTheLine;
}

/// Baud rate, and the milliseconds of work in every fiftieth turn of the event loop.
void LongWriteOnALine(benchmark::State& zState) {
  const Speed speed(zState.range(0));
  const double work = static_cast<double>(zState.range(1)) * 1e-3;
  const std::size_t length = LongWrite().size();
  double busy = 0;
  std::size_t before = 0;
  for (auto _ : zState) {
    busy = BusyPercent(speed, work);
    for (std::size_t pressed = 10; pressed < length; pressed += 10) {
      before = std::max(before, BytesBeforeShutUp(speed, work, pressed));
    }
  }
  zState.counters["busy"] = busy;
  zState.counters["before_max"] = static_cast<double>(before);
}

BENCHMARK(LongWriteOnALine)
    ->ArgNames({"baud", "work_ms"})
    ->ArgsProduct({{2400, 4800, 9600, 19200}, {0, 5, 20}})
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace loquitor

BENCHMARK_MAIN();
