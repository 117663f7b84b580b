// The phrase editor as its user meets it: how long it takes to open with its 183 palette members,
// and how long a press on Load & Say Next Word takes in dictionaries of the size of a language.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPushButton>

#include "bench/support/sample_dictionary.h"
#include "bench/support/window_main.h"
#include "tests/support/program.h"
#include "ui/controls/check_box.h"
#include "ui/controls/text_box.h"
#include "ui/phrase/frm_phrase.h"

namespace loquitor {
namespace {

using bench::SampleDictionary;

void OpenTheWindow(benchmark::State& zState) {
  const SampleDictionary dictionary(0);
  testing::Program program(dictionary.Folder());
  for (auto _ : zState) {
    frmPhrase window(nullptr, program.context);
    window.Open();
    benchmark::DoNotOptimize(window.grab());  // with everything painted
  }
}
BENCHMARK(OpenTheWindow)->Unit(benchmark::kMillisecond);

/// Steps through a dictionary, with data only when `zIsWithDataOnly`.
void Step(benchmark::State& zState, const SampleDictionary& zDictionary, bool zIsWithDataOnly) {
  testing::Program program(zDictionary.Folder());
  SampleDictionary::LetItSettle();
  frmPhrase window(nullptr, program.context);
  window.Open();
  window.findChild<CheckBox*>("chkWithout")->SetValue(zIsWithDataOnly ? 0 : 1);
  auto* button = window.findChild<QPushButton*>("btnNextWord");
  button->click();
  for (auto _ : zState) {
    button->click();
  }
  if (window.findChild<TextBox*>("txtDict")->Text().empty()) {
    zState.SkipWithError("no word was found");
  }
}

void NextWord(benchmark::State& zState) {
  Step(zState, SampleDictionary(zState.range(0)), false);
}
BENCHMARK(NextWord)->Arg(1'000)->Arg(130'000)->Unit(benchmark::kMillisecond);

/// Only one word has data, so a search makes a whole pass.
void NextWordWithData(benchmark::State& zState) {
  Step(zState, SampleDictionary(zState.range(0), SampleDictionary::Entries::AllEmptyButFirst),
       true);
}
BENCHMARK(NextWordWithData)->Arg(100'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace loquitor

int main(int zCount, char** zArguments) {
  return loquitor::bench::RunWithWindows(zCount, zArguments);
}
