// English text to Say Data: plain text and hostile text. The time per character must not grow with
// the length of the text.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>

#include "bench/support/blank_entries_text.h"
#include "english/blank_entries.h"
#include "english/english_reader.h"
#include "tests/support/temp_folder.h"

namespace loquitor {
namespace {

constexpr std::string_view Story =
    "The thermostat in the old greenhouse had been wrong since Tuesday, so Maria climbed the "
    "ladder at 6:45 a.m. and looked for herself. \"It says 31 degrees,\" she called down, \"but "
    "there's frost on every window!\" Nobody answered. Her brother was asleep beside the robot "
    "that they'd built from a vacuum cleaner, 2 bicycle lamps and a $12.50 loudspeaker; it "
    "blinked, turned its head, and politely announced breakfast. We've all heard stranger "
    "machines, but this one remembered names, counted spoons, and refused to enter the kitchen "
    "without permission. On the 3rd of March it learned to whistle. ";

struct Reader {
  Reader() { table.BuildCodeTable(); }

  testing::TempFolder folder;
  DictionaryStore dictionary{folder.Path()};
  CodeTable table;
  SayDataTranslator translator{table, dictionary};
  SayDataWords words = WordsOf(dictionary, translator);
  std::unique_ptr<PhoneSource> source = CreatePhoneSource();
};

std::size_t CountWords(std::string_view zText) {
  return static_cast<std::size_t>(std::count(zText.begin(), zText.end(), ' '));
}

std::string Repeated(std::string_view zPart, std::size_t zSize) {
  std::string text;
  while (text.size() < zSize) {
    text += zPart;
  }
  return text;
}

void BM_Read22000Words(benchmark::State& zState) {
  const Reader reader;
  if (reader.source == nullptr) {
    zState.SkipWithError("this build does not read English");
    return;
  }
  const std::string text = Repeated(Story, Story.size() * 22'000 / CountWords(Story));
  const EnglishReader english(*reader.source, reader.table);
  for (auto _ : zState) {
    benchmark::DoNotOptimize(english.ReadText(text, reader.words));
  }
  zState.SetItemsProcessed(zState.iterations() * static_cast<std::int64_t>(CountWords(text)));
}
BENCHMARK(BM_Read22000Words)->Unit(benchmark::kMillisecond);

void BM_FillBlankEntries(benchmark::State& zState) {
  const Reader reader;
  if (reader.source == nullptr) {
    zState.SkipWithError("this build does not read English");
    return;
  }
  const std::string text = bench::BlankEntriesText(100'000);
  const EnglishReader english(*reader.source, reader.table);
  for (auto _ : zState) {
    benchmark::DoNotOptimize(FillBlankEntries(text, english, [](std::size_t) { return true; }));
  }
}
BENCHMARK(BM_FillBlankEntries)->Unit(benchmark::kMillisecond);

/// Without phones. The argument is the size of the text in kilobytes.
void BM_Normalize(benchmark::State& zState, std::string_view zPart) {
  const Reader reader;
  const std::string text = Repeated(zPart, static_cast<std::size_t>(zState.range(0)) << 10);
  for (auto _ : zState) {
    benchmark::DoNotOptimize(NormalizeEnglish(text, reader.words));
  }
  zState.SetBytesProcessed(zState.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK_CAPTURE(BM_Normalize, story, Story)->Arg(10)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Normalize, digits, "7")->Arg(10)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Normalize, dashes, "-")->Arg(10)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Normalize, letters, "a")->Arg(10)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Normalize, numbers, "1,234.5:6-7/8 ")
    ->Arg(10)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Normalize, unread, "\xF0\x9F\x98\x80 ")
    ->Arg(10)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace loquitor

BENCHMARK_MAIN();
