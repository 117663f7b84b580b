// The dictionary editor's window over a dictionary file: how long its user waits, and how much
// memory the whole program takes at most.
#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string>

#include "bench/support/blank_entries_text.h"
#include "bench/support/sample_dictionary.h"
#include "bench/support/window_main.h"
#include "english/english_reader.h"
#include "tests/support/program.h"
#include "ui/controls/text_area.h"
#include "ui/dictedit/frm_dict_edit.h"

namespace loquitor {
namespace {

using bench::SampleDictionary;

/// The window for a dictionary of one size, and a list of 100,000 words. Half of them are not in
/// the dictionary.
class Editor {
 public:
  explicit Editor(std::int64_t zSize) : sample_(zSize) {
    std::filesystem::current_path(sample_.Folder());
    LengthenEntries();
    if (phones_) {
      reader_.emplace(*phones_, program_.codeTable);
      program_.context.english = &*reader_;
    }
    std::ofstream list("ImportWords.txt");
    for (int i = 0; i < 100'000; ++i) {
      list << SampleDictionary::Word(i) << (i % 2 == 0 ? "\n" : "q\n");
    }
  }
  ~Editor() { std::filesystem::current_path(folderBefore_); }

  void Open() {
    window_ = std::make_unique<frmDictEdit>(nullptr, program_.context);
    window_->Open();
    Draw();
  }
  void OpenWith(const std::string& zDictionary) {
    testing::WriteBytes(sample_.File(), zDictionary);
    Open();
  }
  void Close() { window_.reset(); }
  void Click(const char* zName) {
    window_->findChild<QPushButton*>(zName)->click();
    Draw();
  }
  void FillBlankEntries() {
    for (QAction* action : Box()->actions()) {
      if (action->text().startsWith("Fill")) {
        action->trigger();
      }
    }
    Draw();
  }
  void Press(QKeySequence::StandardKey zKey) { QTest::keySequence(Box(), QKeySequence(zKey)); }
  void Type(Qt::Key zKey) {
    QTest::keyClick(Box(), zKey);
    Draw();
  }
  TextArea* Box() { return window_->findChild<TextArea*>("txtDictionary"); }

 private:
  void Draw() {
    QCoreApplication::processEvents();
    window_->repaint();
  }

  /// Makes the lines 46 bytes long on average, as in a dictionary of a language, and adds a blank
  /// entry at the top.
  void LengthenEntries() {
    std::string text;
    for (const char character : testing::ReadBytes(sample_.File())) {
      text += character == '=' ? std::string("=\\PITCH \\60 ") : std::string(1, character);
    }
    text.insert(text.find('\n') + 1, "blank=\r\n");
    testing::WriteBytes(sample_.File(), text);
  }

  std::filesystem::path folderBefore_ = std::filesystem::current_path();
  SampleDictionary sample_;
  testing::Program program_{sample_.Folder()};
  std::unique_ptr<PhoneSource> phones_ = CreatePhoneSource();
  std::optional<EnglishReader> reader_;
  std::unique_ptr<frmDictEdit> window_;
};

/// The most memory that the program has had in use, in MB.
double PeakMegabytes() {
  std::ifstream status("/proc/self/status");
  for (std::string name; status >> name;) {
    if (name == "VmHWM:") {
      double kilobytes = 0;
      status >> kilobytes;
      return kilobytes / 1024;
    }
  }
  return 0;
}

void Sizes(benchmark::internal::Benchmark* zBenchmark) {
  zBenchmark->Arg(1'000)->Arg(130'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
  zBenchmark->MinTime(0.02);
}

void BM_OpenToFirstView(benchmark::State& zState) {
  Editor editor(zState.range(0));
  for (auto _ : zState) {
    editor.Open();
    zState.PauseTiming();
    editor.Close();
    zState.ResumeTiming();
  }
}
BENCHMARK(BM_OpenToFirstView)->Apply(Sizes);

/// A click that changes the text, which is undone each time.
void MeasureClick(benchmark::State& zState, const char* zButton) {
  Editor editor(zState.range(0));
  editor.Open();
  for (auto _ : zState) {
    editor.Click(zButton);
    zState.PauseTiming();
    editor.Press(QKeySequence::Undo);
    zState.ResumeTiming();
  }
}
BENCHMARK_CAPTURE(MeasureClick, Save, "btnSaveChanges")->Apply(Sizes);
BENCHMARK_CAPTURE(MeasureClick, SaveAndSort, "btnSort")->Apply(Sizes);
BENCHMARK_CAPTURE(MeasureClick, EraseBlankEntries, "btnEraseBlank")->Apply(Sizes);
BENCHMARK_CAPTURE(MeasureClick, Import, "btnReadTerms")->Apply(Sizes);

/// From the click to the new text, with the progress that the window shows meanwhile.
void BM_FillBlankEntries(benchmark::State& zState) {
  Editor editor(1);
  editor.OpenWith(bench::BlankEntriesText(static_cast<std::size_t>(zState.range(0))));
  for (auto _ : zState) {
    editor.FillBlankEntries();
    zState.PauseTiming();
    if (editor.Box()->Text().find("=\n") != std::string::npos) {
      zState.SkipWithError("not every entry was filled");
    }
    editor.Press(QKeySequence::Undo);
    zState.ResumeTiming();
  }
}
BENCHMARK(BM_FillBlankEntries)->Arg(100'000)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_UndoASort(benchmark::State& zState) {
  Editor editor(zState.range(0));
  editor.Open();
  for (auto _ : zState) {
    zState.PauseTiming();
    editor.Click("btnSort");
    zState.ResumeTiming();
    editor.Press(QKeySequence::Undo);
  }
}
BENCHMARK(BM_UndoASort)->Apply(Sizes);

/// One key at the start of the text, until it is drawn.
void MeasureKey(benchmark::State& zState, Qt::Key zKey) {
  Editor editor(zState.range(0));
  editor.Open();
  for (auto _ : zState) {
    editor.Type(zKey);
  }
}
BENCHMARK_CAPTURE(MeasureKey, Character, Qt::Key_X)->Apply(Sizes);
BENCHMARK_CAPTURE(MeasureKey, Return, Qt::Key_Return)->Apply(Sizes);
BENCHMARK_CAPTURE(MeasureKey, PageDown, Qt::Key_PageDown)->Apply(Sizes);

/// The peak only ever grows: run this one alone, with --benchmark_filter.
void BM_PeakMemory(benchmark::State& zState) {
  Editor editor(zState.range(0));
  for (auto _ : zState) {
    editor.Open();
    zState.counters["1_opened_MB"] = PeakMegabytes();
    editor.Click("btnSort");
    zState.counters["2_sorted_MB"] = PeakMegabytes();
    editor.Click("btnEraseBlank");
    zState.counters["3_cleaned_MB"] = PeakMegabytes();
    editor.Click("btnReadTerms");
    zState.counters["4_imported_MB"] = PeakMegabytes();
    for (int i = 0; i < 3; ++i) {
      editor.Press(QKeySequence::Undo);
    }
    zState.counters["5_undone_MB"] = PeakMegabytes();
  }
}
BENCHMARK(BM_PeakMemory)->Arg(130'000)->Arg(1'000'000)->Iterations(1);

}  // namespace
}  // namespace loquitor

int main(int zCount, char** zArguments) {
  return loquitor::bench::RunWithWindows(zCount, zArguments);
}
