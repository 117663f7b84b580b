// What the player of the synthesizer waits for, on a port that takes every byte at once: until the
// window is shown and all registers are written, one step of a bar, and one step of an adjust bar,
// which moves three.

#include <benchmark/benchmark.h>

#include <QApplication>

#include "bench/support/window_main.h"
#include "tests/support/program.h"
#include "tests/support/temp_folder.h"
#include "ui/controls/scroll_bar.h"
#include "ui/synth/frm_synth_ctrl.h"

namespace loquitor {
namespace {

void OpenSynthWindow(benchmark::State& zState) {
  const testing::TempFolder folder;
  testing::Program program(folder.Path());
  for (auto _ : zState) {
    program.port.written.clear();
    FrmSynthCtrl window(nullptr, program.context);
    window.Open();
    while (!program.port.written.ends_with("\\08J 0NX")) {
      QApplication::processEvents();
    }
    zState.PauseTiming();
    window.close();
    zState.ResumeTiming();
  }
}
BENCHMARK(OpenSynthWindow)->Unit(benchmark::kMillisecond)->Iterations(30)->UseRealTime();

void MoveBar(benchmark::State& zState, const char* zBar, int zFrom, int zTo) {
  const testing::TempFolder folder;
  testing::Program program(folder.Path());
  FrmSynthCtrl window(nullptr, program.context);
  window.Open();
  QApplication::processEvents();
  for (int i = 1; i <= 3; ++i) {
    window.findChild<ScrollBar*>(Indexed("scVol", i))->setValue(10);
  }
  auto* bar = window.findChild<ScrollBar*>(zBar);
  bar->setFocus(Qt::TabFocusReason);
  bool isThere = false;
  for (auto _ : zState) {
    bar->setValue(isThere ? zFrom : zTo);
    isThere = !isThere;
  }
}
BENCHMARK_CAPTURE(MoveBar, Frequency, "scFreq(1)", 100, 3000)->Iterations(300)->UseRealTime();
BENCHMARK_CAPTURE(MoveBar, VolumeAdj, "scVolAdjTone", 100, 200)->Iterations(300)->UseRealTime();

}  // namespace
}  // namespace loquitor

int main(int zCount, char** zArguments) {
  return loquitor::bench::RunWithWindows(zCount, zArguments);
}
