// The phrase editor as its user meets it: how long it takes to open with its 183 palette members,
// and how long a press on Load & Say Next Word takes in dictionaries of the size of a language.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPushButton>
#include <memory>

#include "bench/support/sample_dictionary.h"
#include "tests/support/scripted_host.h"
#include "tests/support/scripted_port.h"
#include "tests/support/scripted_prompts.h"
#include "ui/phrase/frm_phrase.h"
#include "ui/toolkit/check_box.h"
#include "ui/toolkit/text_box.h"

namespace loquitor {
namespace {

using bench::SampleDictionary;

/// What the window needs around it, on the dictionary of a folder and a line that takes everything.
class Program {
 public:
  explicit Program(const std::filesystem::path& zFolder)
      : dictionary_(zFolder), settings_(zFolder) {
    codeTable_.BuildCodeTable();
  }
  const EditorContext& Context() const { return context_; }

 private:
  CodeTable codeTable_;
  DictionaryStore dictionary_;
  SettingsFile settings_;
  SayDataTranslator translator_{codeTable_, dictionary_};
  testing::ScriptedPort port_;
  testing::ScriptedHost host_;
  CodeSender sender_{port_, host_, settings_};
  testing::ScriptedPrompts prompts_;
  SharedState shared_;
  EditorContext context_{codeTable_, translator_, dictionary_, settings_,
                         sender_,    prompts_,    shared_};
};

void OpenTheWindow(benchmark::State& zState) {
  const SampleDictionary dictionary(0);
  const Program program(dictionary.Folder());
  for (auto _ : zState) {
    frmPhrase window(nullptr, program.Context());
    window.Open();
    benchmark::DoNotOptimize(window.grab());  // with everything painted
  }
}
BENCHMARK(OpenTheWindow)->Unit(benchmark::kMillisecond);

/// Steps through a dictionary, with data only when `zIsWithDataOnly`.
void Step(benchmark::State& zState, const SampleDictionary& zDictionary, bool zIsWithDataOnly) {
  const Program program(zDictionary.Folder());
  SampleDictionary::LetItSettle();
  frmPhrase window(nullptr, program.Context());
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

/// One word with data among so many without: a whole pass.
void NextWordWithData(benchmark::State& zState) {
  Step(zState, SampleDictionary(zState.range(0), SampleDictionary::Entries::AllEmptyButFirst),
       true);
}
BENCHMARK(NextWordWithData)->Arg(100'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace loquitor

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
