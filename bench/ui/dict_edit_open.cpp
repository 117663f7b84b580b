// The dictionary editor's window over a dictionary file, with the words of a list half of which it
// lacks: what its owner waits for, and how much memory the window takes at most.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <QApplication>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <algorithm>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <utility>

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
  ~Editor() { std::filesystem::current_path(folderBefore_); }

  void Open() {
    window_ = std::make_unique<frmDictEdit>(nullptr, program_.context);
    window_->Open();
    window_->repaint();
    QCoreApplication::processEvents();
  }
  void Close() { window_.reset(); }
  void Click(const char* zName) { window_->findChild<QPushButton*>(zName)->click(); }
  void Press(QKeySequence::StandardKey zKey) { QTest::keySequence(Box(), QKeySequence(zKey)); }

  void Type(Qt::Key zKey = Qt::Key_X) { QTest::keyClick(Box(), zKey); }
  TextArea* Box() { return window_->findChild<TextArea*>("txtDictionary"); }
  void Draw() {
    QCoreApplication::processEvents();
    Box()->viewport()->repaint();
  }
  std::uintmax_t FileSize() const { return std::filesystem::file_size(sample_.File()); }

  /// Makes the word list of Debian's package wamerican the one to import; false when it is missing.
  bool TakeEnglish() const {
    std::error_code missing;
    return std::filesystem::copy_file("/usr/share/dict/american-english",
                                      sample_.Folder() / "ImportWords.txt", missing);
  }
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

  std::filesystem::path folderBefore_ = std::filesystem::current_path();
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

/// A list of English words, nearly all of it new.
void BM_ImportEnglish(benchmark::State& zState) {
  Editor editor(zState.range(0));
  if (!editor.TakeEnglish()) {
    zState.SkipWithError("wamerican is not installed");
    return;
  }
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

/// What the window of `zEditor` adds to the program's memory, from its opening on: at most, in MB
/// and in times the file as it then is, and of the whole program. What a first window of any kind
/// takes is not counted.
class Memory {
 public:
  Memory(benchmark::State& zState, const Editor& zEditor) : state_(zState), editor_(zEditor) {
    OpenAnEmptyEditor();
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << 5;  // forgets the peak
    before_ = StatusMegabytes("VmRSS");
    state_.counters["0_before_MB"] = before_;
  }
  void PeakUntil(const std::string& zStep) {
    const double file = static_cast<double>(editor_.FileSize()) / 1048576;
    const double peak = StatusMegabytes("VmHWM");
    state_.counters["file_MB"] = file;
    state_.counters[zStep + "_MB"] = peak - before_;
    state_.counters[zStep + "_times"] = (peak - before_) / file;
    state_.counters["whole_program_times"] = peak / file;
  }

 private:
  benchmark::State& state_;
  const Editor& editor_;
  double before_ = 0;
};

void BM_PeakMemory(benchmark::State& zState) {
  Editor editor(zState.range(0));
  editor.WriteWordList(100'000);
  for (auto _ : zState) {
    Memory memory(zState, editor);
    editor.Open();
    memory.PeakUntil("1_opened");
    editor.Click("btnSort");
    memory.PeakUntil("2_sorted");
    editor.Click("btnEraseBlank");
    memory.PeakUntil("3_cleaned");
    editor.Click("btnReadTerms");
    memory.PeakUntil("4_imported");
    for (int i = 0; i < 3; ++i) {
      editor.Press(QKeySequence::Undo);
    }
    memory.PeakUntil("5_undone");
    editor.Close();
  }
}
BENCHMARK(BM_PeakMemory)->Arg(130'000)->Arg(1'000'000)->Iterations(1);

/// As many words again as the dictionary has, all blank: their lines are short, and each takes as
/// much memory besides its text as any other. The words of the file, which the import asks for,
/// stay in memory for the other windows.
void BM_PeakMemoryOfImportingEnglish(benchmark::State& zState) {
  Editor editor(zState.range(0));
  if (!editor.TakeEnglish()) {
    zState.SkipWithError("wamerican is not installed");
    return;
  }
  for (auto _ : zState) {
    Memory memory(zState, editor);
    editor.Open();
    editor.Click("btnReadTerms");
    memory.PeakUntil("1_imported");
    editor.Click("btnSaveChanges");
    memory.PeakUntil("2_saved");
    editor.Click("btnSort");
    memory.PeakUntil("3_sorted");
    editor.Close();
  }
}
BENCHMARK(BM_PeakMemoryOfImportingEnglish)->Arg(130'000)->Iterations(1);

/// Shows one part of the text after the other by `zStep` until that leads no further; the slowest
/// step in milliseconds of the processor.
template <typename Step>
double ShowAll(Editor& zEditor, Step zStep) {
  double slowest = 0;
  const auto place = [&] {
    return std::pair(zEditor.Box()->verticalScrollBar()->value(), zEditor.Box()->SelectionStart());
  };
  for (auto before = place();;) {
    const std::clock_t start = std::clock();
    zStep();
    zEditor.Draw();
    slowest = std::max(slowest, 1e3 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    if (place() == before) {
      return slowest;
    }
    before = place();
  }
}

/// Every line is shown in every way, and then the widest made narrower, which concerns them all.
/// Last a sort, whose peak comes on top of what is kept.
void BM_PeakMemoryOfScrolling(benchmark::State& zState) {
  Editor editor(zState.range(0));
  for (auto _ : zState) {
    Memory memory(zState, editor);
    editor.Open();
    memory.PeakUntil("1_opened");
    zState.counters["slowest_page_ms"] = ShowAll(editor, [&] { editor.Type(Qt::Key_PageDown); });
    memory.PeakUntil("2_paged");
    QScrollBar* bar = editor.Box()->verticalScrollBar();
    bar->setValue(0);
    ShowAll(editor, [&] { bar->setValue(bar->value() + bar->pageStep()); });
    memory.PeakUntil("3_dragged");
    editor.Press(QKeySequence::MoveToStartOfDocument);
    editor.Type(Qt::Key_End);
    for (int i = 0; i < 1000; ++i) {
      editor.Type();
    }
    editor.Draw();
    editor.Type(Qt::Key_Backspace);
    editor.Draw();
    memory.PeakUntil("4_erased");
    editor.Press(QKeySequence::SelectAll);
    editor.Draw();
    memory.PeakUntil("5_selected");
    editor.Click("btnSort");
    memory.PeakUntil("6_sorted");
    editor.Close();
  }
}
BENCHMARK(BM_PeakMemoryOfScrolling)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(130'000)
    ->Arg(1'000'000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

/// Sixty characters erased in the widest line that has been in view.
void BM_EraseInTheWidestLine(benchmark::State& zState) {
  Editor editor(zState.range(0));
  editor.Open();
  for (auto _ : zState) {
    zState.PauseTiming();
    for (int i = 0; i < 100; ++i) {
      editor.Type();
    }
    zState.ResumeTiming();
    for (int i = 0; i < 60; ++i) {
      editor.Type(Qt::Key_Backspace);
    }
  }
}
BENCHMARK(BM_EraseInTheWidestLine)
    ->Arg(1'000)
    ->Arg(130'000)
    ->Arg(1'000'000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace loquitor

int main(int zCount, char** zArguments) {
  loquitor::ReturnLargeBlocksAtOnce();  // as the program does
  return loquitor::bench::RunWithWindows(zCount, zArguments);
}
