// What the owner waits for in the chip's windows, with a dictionary of 130,000 entries: opening the
// EEPROM editor with sixteen phrases as long as the settings hold, a change of a phrase, opening
// and closing the event window.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <filesystem>

#include "bench/support/sample_dictionary.h"
#include "bench/support/window_main.h"
#include "tests/support/program.h"
#include "ui/chip/frm_buttons.h"
#include "ui/chip/frm_eeprom.h"
#include "ui/controls/text_box.h"

namespace loquitor {
namespace {

/// The program over a large dictionary, with sixteen long phrases stored.
struct FullProgram {
  FullProgram() {
    for (int slot = 0; slot < eeprom::PhraseCount; ++slot) {
      std::string phrase;
      for (int word = 0; phrase.size() < 240; ++word) {
        phrase += bench::SampleDictionary::Word(slot * 1000 + word) + ' ';
      }
      program.settings.SaveIniValue("EEPROM", "Phrase" + std::to_string(slot), phrase);
    }
    bench::SampleDictionary::LetItSettle();
  }

  bench::SampleDictionary words{130'000};
  testing::Program program{words.Folder()};
};

template <class Window>
void OpenAndClose(benchmark::State& zState, FullProgram& zProgram) {
  Window window(nullptr, zProgram.program.context);
  window.Open();
  QApplication::processEvents();
  zState.PauseTiming();
  window.close();
  zState.ResumeTiming();
}

std::filesystem::file_time_type Now() {
  return std::filesystem::file_time_type::clock::now();
}

/// The dictionary has just been saved by another program, so the first lookup reads it again.
void OpenEepromEditorFirst(benchmark::State& zState) {
  FullProgram full;
  for (auto _ : zState) {
    zState.PauseTiming();
    std::filesystem::last_write_time(full.words.File(), Now());
    bench::SampleDictionary::LetItSettle();
    zState.ResumeTiming();
    OpenAndClose<frmEEPROM>(zState, full);
  }
}
BENCHMARK(OpenEepromEditorFirst)->Unit(benchmark::kMillisecond)->Iterations(10)->UseRealTime();

void OpenEepromEditorAgain(benchmark::State& zState) {
  FullProgram full;
  for (auto _ : zState) {
    OpenAndClose<frmEEPROM>(zState, full);
  }
}
BENCHMARK(OpenEepromEditorAgain)->Unit(benchmark::kMillisecond)->Iterations(20)->UseRealTime();

void ChangeAPhrase(benchmark::State& zState) {
  FullProgram full;
  frmEEPROM window(nullptr, full.program.context);
  window.Open();
  for (auto _ : zState) {
    window.ReportUsed();
    QApplication::processEvents();
  }
}
BENCHMARK(ChangeAPhrase)->Unit(benchmark::kMillisecond)->Iterations(100)->UseRealTime();

void OpenEventWindow(benchmark::State& zState) {
  FullProgram full;
  for (auto _ : zState) {
    OpenAndClose<frmButtons>(zState, full);
  }
}
BENCHMARK(OpenEventWindow)->Unit(benchmark::kMillisecond)->Iterations(20)->UseRealTime();

/// Each time with another phrase number, so that the settings change.
void CloseEventWindow(benchmark::State& zState) {
  FullProgram full;
  for (auto _ : zState) {
    zState.PauseTiming();
    frmButtons window(nullptr, full.program.context);
    window.Open();
    auto* box = window.findChild<TextBox*>("txtPhrase(3)");
    box->SetText(box->Text() == "1" ? "2" : "1");
    zState.ResumeTiming();
    window.close();
  }
}
BENCHMARK(CloseEventWindow)->Unit(benchmark::kMillisecond)->Iterations(20)->UseRealTime();

}  // namespace
}  // namespace loquitor

int main(int zCount, char** zArguments) {
  return loquitor::bench::RunWithWindows(zCount, zArguments);
}
