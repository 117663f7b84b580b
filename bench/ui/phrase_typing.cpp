// A key in the Say Data box, until the box is painted with its underlines. The dictionary has
// 130,000 words; the argument is the length of the text in characters. It is one line.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTest>
#include <string>
#include <utility>

#include "bench/support/sample_dictionary.h"
#include "bench/support/window_main.h"
#include "tests/support/program.h"
#include "ui/controls/text_area.h"
#include "ui/phrase/frm_phrase.h"

namespace loquitor {
namespace {

using bench::SampleDictionary;

/// Every second word is silent.
std::string Words(std::int64_t zLength) {
  std::string text;
  for (int i = 0; std::cmp_less(text.size(), zLength); ++i) {
    text += (i % 2 == 0 ? SampleDictionary::Word(i) : "silent" + std::to_string(i)) + ' ';
  }
  return text;
}

void TypeAtTheEnd(benchmark::State& zState, TextArea& zArea, const std::string& zText) {
  zArea.SetText(zText);
  zArea.Select(static_cast<int>(zText.size()), 0);
  QCoreApplication::processEvents();
  for (auto _ : zState) {
    QTest::keyClick(&zArea, Qt::Key_X);
    QCoreApplication::processEvents();
    benchmark::DoNotOptimize(zArea.grab());
  }
}

void TypeIntoABareBox(benchmark::State& zState, const std::string& zText) {
  TextArea area(nullptr);
  area.resize(585, 71);
  area.show();
  TypeAtTheEnd(zState, area, zText);
}

/// The same in a box without underlines: what the toolkit takes.
void TypeAKeyIntoABareBox(benchmark::State& zState) {
  TypeIntoABareBox(zState, Words(zState.range(0)));
}
BENCHMARK(TypeAKeyIntoABareBox)->Arg(100)->Arg(10'000)->Arg(39'000)->Unit(benchmark::kMillisecond);

/// A text without a blank.
void TypeAKeyIntoALongWord(benchmark::State& zState) {
  TypeIntoABareBox(zState, std::string(static_cast<std::size_t>(zState.range(0)), 'x'));
}
BENCHMARK(TypeAKeyIntoALongWord)->Arg(9'000)->Arg(39'000)->Unit(benchmark::kMillisecond);

void TypeAKey(benchmark::State& zState) {
  const SampleDictionary dictionary(130'000);
  testing::Program program(dictionary.Folder());
  SampleDictionary::LetItSettle();
  frmPhrase window(nullptr, program.context);
  window.Open();
  auto* area = window.findChild<TextArea*>("txtSayData");
  TypeAtTheEnd(zState, *area, Words(zState.range(0)));
  zState.counters["underlined"] = static_cast<double>(area->extraSelections().size());
}
BENCHMARK(TypeAKey)->Arg(100)->Arg(10'000)->Arg(39'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace loquitor

int main(int zCount, char** zArguments) {
  return loquitor::bench::RunWithWindows(zCount, zArguments);
}
