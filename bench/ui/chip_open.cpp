// What the owner waits for in the chip's windows, with a dictionary of 130,000 entries: opening the
// EEPROM editor with sixteen phrases as long as the settings hold, a change of a phrase, opening
// and closing the event window.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <filesystem>

#include "bench/support/sample_dictionary.h"
#include "tests/support/scripted_port.h"
#include "tests/support/scripted_prompts.h"
#include "ui/chip/frm_buttons.h"
#include "ui/chip/frm_eeprom.h"

namespace loquitor {
namespace {

class SilentHost : public SenderHost {
 public:
  std::string PortDevice() const override { return {}; }
  bool IsFlowControlTicked() const override { return false; }
  void ShowPortState(PortState) override {}
  bool ConfirmLongPhrase() override { return true; }
  void StopClosingTimer() override {}
  void StartClosingTimer(int) override {}
  void LetEventsRun() override {}
  void WaitForEvents() override {}
  void SetTicking(bool) override {}
};

/// The program around the windows, its settings and dictionary in a folder of their own.
struct Program {
  Program() {
    codeTable.BuildCodeTable();
    for (int slot = 0; slot < PhraseSlotCount; ++slot) {
      std::string phrase;
      for (int word = 0; phrase.size() < 240; ++word) {
        phrase += bench::SampleDictionary::Word(slot * 1000 + word) + ' ';
      }
      static_cast<void>(settings.SaveIniValue("EEPROM", "Phrase" + std::to_string(slot), phrase));
    }
    bench::SampleDictionary::LetItSettle();
  }

  bench::SampleDictionary words{130'000};
  CodeTable codeTable;
  DictionaryStore dictionary{words.Folder()};
  SettingsFile settings{words.Folder()};
  SayDataTranslator translator{codeTable, dictionary};
  testing::ScriptedPort port;
  SilentHost host;
  CodeSender sender{port, host, settings};
  testing::ScriptedPrompts prompts;
  SharedState shared;
  EditorContext context{codeTable, translator, dictionary, settings, sender, prompts, shared};
};

template <class Window>
void OpenAndClose(benchmark::State& zState, Program& zProgram) {
  Window window(nullptr, zProgram.context);
  window.Open();
  QApplication::processEvents();
  zState.PauseTiming();
  window.close();
  zState.ResumeTiming();
}

std::filesystem::file_time_type Now() {
  return std::filesystem::file_time_type::clock::now();
}

/// The dictionary has just been saved by someone, so the first lookup reads it anew.
void OpenEepromEditorFirst(benchmark::State& zState) {
  Program program;
  for (auto _ : zState) {
    zState.PauseTiming();
    std::filesystem::last_write_time(program.words.File(), Now());
    bench::SampleDictionary::LetItSettle();
    zState.ResumeTiming();
    OpenAndClose<frmEEPROM>(zState, program);
  }
}
BENCHMARK(OpenEepromEditorFirst)->Unit(benchmark::kMillisecond)->Iterations(10)->UseRealTime();

void OpenEepromEditorAgain(benchmark::State& zState) {
  Program program;
  for (auto _ : zState) {
    OpenAndClose<frmEEPROM>(zState, program);
  }
}
BENCHMARK(OpenEepromEditorAgain)->Unit(benchmark::kMillisecond)->Iterations(20)->UseRealTime();

void ChangeAPhrase(benchmark::State& zState) {
  Program program;
  frmEEPROM window(nullptr, program.context);
  window.Open();
  for (auto _ : zState) {
    window.ReportUsed();
    QApplication::processEvents();
  }
}
BENCHMARK(ChangeAPhrase)->Unit(benchmark::kMillisecond)->Iterations(100)->UseRealTime();

void OpenEventWindow(benchmark::State& zState) {
  Program program;
  for (auto _ : zState) {
    OpenAndClose<frmButtons>(zState, program);
  }
}
BENCHMARK(OpenEventWindow)->Unit(benchmark::kMillisecond)->Iterations(20)->UseRealTime();

/// Each time with another phrase number, so that the settings change.
void CloseEventWindow(benchmark::State& zState) {
  Program program;
  for (auto _ : zState) {
    zState.PauseTiming();
    frmButtons window(nullptr, program.context);
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

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  application.setQuitOnLastWindowClosed(false);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
