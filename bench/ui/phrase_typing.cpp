// A key in the Say Data box, until the box is painted with its underlines. The dictionary has
// 130,000 words; the argument is the length of the text in characters.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTest>

#include "bench/support/sample_dictionary.h"
#include "bench/support/window_main.h"
#include "tests/support/program.h"
#include "ui/controls/text_area.h"
#include "ui/phrase/frm_phrase.h"

namespace loquitor {
namespace {

using bench::SampleDictionary;

/// The same in a box without underlines: what the toolkit takes.
void TypeAKeyIntoABareBox(benchmark::State& zState) {
  TextArea area(nullptr);
  area.resize(585, 71);
  area.show();
  std::string text;
  while (text.size() < static_cast<std::size_t>(zState.range(0))) {
    text += "silent word ";
  }
  area.SetText(text);
  area.Select(static_cast<int>(text.size()), 0);
  QCoreApplication::processEvents();
  for (auto _ : zState) {
    QTest::keyClick(&area, Qt::Key_X);
    QCoreApplication::processEvents();
    benchmark::DoNotOptimize(area.grab());
  }
}
BENCHMARK(TypeAKeyIntoABareBox)->Arg(100)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

/// Types into a text of which every second word is silent.
void TypeAKey(benchmark::State& zState) {
  const SampleDictionary dictionary(130'000);
  testing::Program program(dictionary.Folder());
  SampleDictionary::LetItSettle();
  frmPhrase window(nullptr, program.context);
  window.Open();
  auto* area = window.findChild<TextArea*>("txtSayData");
  std::string text;
  for (int i = 0; text.size() < static_cast<std::size_t>(zState.range(0)); ++i) {
    text += (i % 2 == 0 ? SampleDictionary::Word(i) : "silent" + std::to_string(i)) + ' ';
  }
  area->SetText(text);
  area->Select(static_cast<int>(text.size()), 0);
  QCoreApplication::processEvents();
  for (auto _ : zState) {
    QTest::keyClick(area, Qt::Key_X);
    QCoreApplication::processEvents();
    benchmark::DoNotOptimize(area->grab());
  }
  zState.counters["underlined"] = static_cast<double>(area->extraSelections().size());
}
BENCHMARK(TypeAKey)->Arg(100)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace loquitor

int main(int zCount, char** zArguments) {
  return loquitor::bench::RunWithWindows(zCount, zArguments);
}
