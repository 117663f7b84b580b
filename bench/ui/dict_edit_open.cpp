// The dictionary editor's window over a dictionary file, with the words of a list half of which it
// lacks: what its owner waits for, and how much memory the window takes at most.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "bench/support/sample_dictionary.h"
#include "bench/support/window_main.h"
#include "tests/support/program.h"
#include "ui/dictedit/frm_dict_edit.h"
#include "ui/toolkit/large_blocks.h"

namespace loquitor {
namespace {

using bench::SampleDictionary;

/// Everything but the main window, over the dictionary of one size.
class Editor {
 public:
  explicit Editor(std::int64_t zSize) : sample_(zSize) {
    std::filesystem::current_path(sample_.Folder());
    LengthenEntries();
  }
  ~Editor() { std::filesystem::current_path("/"); }

  void Open() {
    window_ = std::make_unique<frmDictEdit>(nullptr, program_.context);
    window_->Open();
    window_->repaint();
    QCoreApplication::processEvents();
  }
  void Close() { window_.reset(); }
  void Click(const char* zName) { window_->findChild<QPushButton*>(zName)->click(); }
  void Press(QKeySequence::StandardKey zKey) {
    QTest::keySequence(window_->findChild<TextArea*>("txtDictionary"), QKeySequence(zKey));
  }

  void Type() { QTest::keyClick(window_->findChild<TextArea*>("txtDictionary"), Qt::Key_X); }
  std::uintmax_t FileSize() const { return std::filesystem::file_size(sample_.File()); }

  void WriteWordList(int zWords) {
    std::ofstream list(sample_.Folder() / "ImportWords.txt");
    for (int i = 0; i < zWords; ++i) {
      list << SampleDictionary::Word(i) << (i % 2 == 0 ? "\n" : "q\n");
    }
  }

 private:
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

  SampleDictionary sample_;
  testing::Program program_{sample_.Folder()};
  std::unique_ptr<frmDictEdit> window_;
};

/// A line of /proc/self/status in MB, such as VmHWM, the most that was ever in memory.
double StatusMegabytes(const std::string& zName) {
  std::ifstream status("/proc/self/status");
  for (std::string name; status >> name;) {
    if (name == zName + ":") {
      double kilobytes = 0;
      status >> kilobytes;
      return kilobytes / 1024;
    }
  }
  return 0;
}

void ForgetPeak() {
  malloc_trim(0);
  std::ofstream("/proc/self/clear_refs") << 5;
}

void Sizes(benchmark::internal::Benchmark* zBenchmark) {
  zBenchmark->Arg(1'000)->Arg(10'000)->Arg(130'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
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

/// The click on a text that it changes; taken back each time.
void MeasureClick(benchmark::State& zState, const char* zButton) {
  Editor editor(zState.range(0));
  editor.Open();
  for (auto _ : zState) {
    editor.Click(zButton);
    QCoreApplication::processEvents();
    zState.PauseTiming();
    editor.Press(QKeySequence::Undo);
    zState.ResumeTiming();
  }
}
BENCHMARK_CAPTURE(MeasureClick, Save, "btnSaveChanges")->Apply(Sizes);
BENCHMARK_CAPTURE(MeasureClick, SaveAndSort, "btnSort")->Apply(Sizes);
BENCHMARK_CAPTURE(MeasureClick, EraseBlankEntries, "btnEraseBlank")->Apply(Sizes);

/// The text is in order already.
void BM_SaveAndSortAgain(benchmark::State& zState) {
  Editor editor(zState.range(0));
  editor.Open();
  editor.Click("btnSort");
  for (auto _ : zState) {
    editor.Click("btnSort");
    QCoreApplication::processEvents();
  }
}
BENCHMARK(BM_SaveAndSortAgain)->Apply(Sizes);

void BM_UndoAndRedoASort(benchmark::State& zState) {
  Editor editor(zState.range(0));
  editor.Open();
  editor.Click("btnSort");
  for (auto _ : zState) {
    editor.Press(QKeySequence::Undo);
    editor.Press(QKeySequence::Redo);
  }
}
BENCHMARK(BM_UndoAndRedoASort)->Apply(Sizes);

void ImportWordList(benchmark::State& zState, Editor& zEditor) {
  for (auto _ : zState) {
    zState.PauseTiming();
    zEditor.Open();
    zState.ResumeTiming();
    zEditor.Click("btnReadTerms");
    zState.PauseTiming();
    zEditor.Close();
    zState.ResumeTiming();
  }
}

/// A hundred thousand words, half of them new, the dictionary not read before.
void BM_Import100000Words(benchmark::State& zState) {
  Editor editor(zState.range(0));
  editor.WriteWordList(100'000);
  ImportWordList(zState, editor);
}
BENCHMARK(BM_Import100000Words)->Apply(Sizes);

/// The word list of Debian's package wamerican, nearly all of it new.
void BM_ImportEnglish(benchmark::State& zState) {
  const std::filesystem::path list = "/usr/share/dict/american-english";
  if (!std::filesystem::exists(list)) {
    zState.SkipWithError("wamerican is not installed");
    return;
  }
  Editor editor(zState.range(0));
  std::filesystem::copy_file(list, "ImportWords.txt");
  ImportWordList(zState, editor);
}
BENCHMARK(BM_ImportEnglish)->Apply(Sizes);

/// One character typed at the start of the text.
void BM_TypeACharacter(benchmark::State& zState) {
  Editor editor(zState.range(0));
  editor.Open();
  for (auto _ : zState) {
    editor.Type();
  }
}
BENCHMARK(BM_TypeACharacter)
    ->Arg(1'000)
    ->Arg(130'000)
    ->Arg(1'000'000)
    ->Unit(benchmark::kMicrosecond);

void OpenAnEmptyEditor() {
  Editor empty(1);
  empty.Open();
}

/// What opening the window, and then one action after the other, adds to the program's memory at
/// most, in MB and in times the file. What a first window of any kind takes is not counted.
void BM_PeakMemory(benchmark::State& zState) {
  Editor editor(zState.range(0));
  editor.WriteWordList(100'000);
  OpenAnEmptyEditor();
  for (auto _ : zState) {
    ForgetPeak();
    const double before = StatusMegabytes("VmRSS");
    const auto count = [&](const char* zStep) {
      zState.counters[zStep] = StatusMegabytes("VmHWM") - before;
    };
    editor.Open();
    count("1_opened_MB");
    editor.Click("btnSort");
    count("2_sorted_MB");
    editor.Click("btnEraseBlank");
    count("3_cleaned_MB");
    editor.Click("btnReadTerms");
    count("4_imported_MB");
    for (int i = 0; i < 3; ++i) {
      editor.Press(QKeySequence::Undo);
    }
    count("5_undone_MB");
    zState.counters["file_MB"] = static_cast<double>(editor.FileSize()) / 1048576;
    editor.Close();
  }
}
BENCHMARK(BM_PeakMemory)->Arg(130'000)->Arg(1'000'000)->Iterations(1);

}  // namespace
}  // namespace loquitor

int main(int zCount, char** zArguments) {
  loquitor::ReturnLargeBlocksAtOnce();  // as the program does
  return loquitor::bench::RunWithWindows(zCount, zArguments);
}
