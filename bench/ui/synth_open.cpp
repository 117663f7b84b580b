// What the player of the synthesizer waits for, on a port that takes every byte at once: the window
// standing on the screen with all registers written, one step of a bar, and one step of an adjust
// bar, which moves three.

#include <benchmark/benchmark.h>

#include <QApplication>

#include "tests/support/scripted_port.h"
#include "tests/support/scripted_prompts.h"
#include "tests/support/temp_folder.h"
#include "ui/synth/frm_synth_ctrl.h"
#include "ui/toolkit/scroll_bar.h"

namespace loquitor {
namespace {

class BenchHost : public SenderHost {
 public:
  std::string PortDevice() const override { return "bench"; }
  bool IsFlowControlTicked() const override { return false; }
  void ShowPortState(PortState) override {}
  bool ConfirmLongPhrase() override { return true; }
  void StopClosingTimer() override {}
  void StartClosingTimer(int) override {}
  void LetEventsRun() override { QApplication::processEvents(); }
  void WaitForEvents() override { QApplication::processEvents(); }
  void SetTicking(bool) override {}
};

/// The program around the window, its sound library in a folder of its own.
struct Program {
  testing::TempFolder folder;
  CodeTable codeTable;
  DictionaryStore dictionary{folder.Path()};
  SettingsFile settings{folder.Path()};
  SayDataTranslator translator{codeTable, dictionary};
  testing::ScriptedPort port;
  BenchHost host;
  CodeSender sender{port, host, settings};
  testing::ScriptedPrompts prompts;
  SharedState shared;
  EditorContext context{codeTable, translator, dictionary, settings, sender, prompts, shared};
};

void OpenSynthWindow(benchmark::State& zState) {
  Program program;
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
  Program program;
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

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  application.setQuitOnLastWindowClosed(false);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
