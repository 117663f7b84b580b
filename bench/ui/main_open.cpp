// Start to the first window: the main window against a bare window of Qt's, each created, shown and
// painted; and the codes viewer with the list of a very long phrase.

#include <benchmark/benchmark.h>

#include <QApplication>

#include "bench/support/window_main.h"
#include "tests/support/program.h"
#include "tests/support/temp_folder.h"
#include "ui/main/frm_utility.h"
#include "ui/phrase/frm_codes.h"

namespace loquitor {
namespace {

void BareWindow(benchmark::State& zState) {
  for (auto _ : zState) {
    QWidget window;
    window.resize(423, 151);
    window.show();
    QCoreApplication::processEvents();
  }
}

void MainWindow(benchmark::State& zState) {
  const testing::TempFolder folder;
  testing::Program program(folder.Path());
  for (auto _ : zState) {
    frmUtility window(program.port, program.settings, program.dictionary, program.prompts);
    window.Open();
    QCoreApplication::processEvents();
  }
}

void CodesViewer(benchmark::State& zState) {
  const testing::TempFolder folder;
  testing::Program program(folder.Path());
  frmUtility owner(program.port, program.settings, program.dictionary, program.prompts);
  owner.Context().shared.OrvatoneCodes = CodeListText(std::string(10'000, '\x80'));
  for (auto _ : zState) {
    frmCodes window(&owner, owner.Context());
    window.Open();
    QCoreApplication::processEvents();
    window.close();
  }
}

BENCHMARK(BareWindow)->Unit(benchmark::kMillisecond);
BENCHMARK(MainWindow)->Unit(benchmark::kMillisecond);
BENCHMARK(CodesViewer)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace loquitor

int main(int zCount, char** zArguments) {
  return loquitor::bench::RunWithWindows(zCount, zArguments);
}
