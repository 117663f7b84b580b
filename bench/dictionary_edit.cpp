// The dictionary editor's work on text alone, from a thousand lines to a million: what the box
// shows for a file, what a save writes, sort, clean, search and import.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_set>

#include "core/dictionary_text.h"
#include "core/word_import.h"

namespace loquitor {
namespace {

/// A word of letters that differs for every number.
std::string WordOf(std::uint64_t zNumber) {
  std::string word = "w";
  for (zNumber = zNumber * 2654435761U % 4294967291U; zNumber > 0; zNumber /= 26) {
    word += static_cast<char>('a' + zNumber % 26);
  }
  return word;
}

/// A dictionary of `zLines` unordered entries of about 46 bytes.
std::string Dictionary(std::int64_t zLines) {
  std::string bytes = "[words]\r\n";
  for (std::int64_t i = 0; i < zLines; ++i) {
    bytes += WordOf(static_cast<std::uint64_t>(i)) + "=\\KE \\AX \\TT \\IY \\PITCH \\60 \\OW\r\n";
  }
  return bytes;
}

void Lines(benchmark::internal::Benchmark* zBenchmark) {
  zBenchmark->RangeMultiplier(10)
      ->Range(1'000, 1'000'000)
      ->Arg(130'000)
      ->Unit(benchmark::kMillisecond);
}

void CountBytes(benchmark::State& zState, std::size_t zBytes) {
  zState.SetBytesProcessed(zState.iterations() * static_cast<std::int64_t>(zBytes));
}

template <class Work>
void Measure(benchmark::State& zState, Work zWork) {
  const std::string bytes = Dictionary(zState.range(0));
  for (auto _ : zState) {
    benchmark::DoNotOptimize(zWork(bytes));
  }
  CountBytes(zState, bytes.size());
}

void BM_BoxTextFromFile(benchmark::State& zState) {
  Measure(zState, BoxTextFromFile);
}
BENCHMARK(BM_BoxTextFromFile)->Apply(Lines);

void BM_FileBytesFromBox(benchmark::State& zState) {
  Measure(zState, [](const std::string& zBytes) { return FileBytesFromBox(zBytes); });
}
BENCHMARK(BM_FileBytesFromBox)->Apply(Lines);

void BM_SortedText(benchmark::State& zState) {
  Measure(zState, SortedText);
}
BENCHMARK(BM_SortedText)->Apply(Lines);

void BM_SortedTextInOrder(benchmark::State& zState) {
  const std::string bytes = SortedText(Dictionary(zState.range(0)));
  for (auto _ : zState) {
    benchmark::DoNotOptimize(SortedText(bytes));
  }
  CountBytes(zState, bytes.size());
}
BENCHMARK(BM_SortedTextInOrder)->Apply(Lines);

void BM_CleanedText(benchmark::State& zState) {
  Measure(zState, CleanedText);
}
BENCHMARK(BM_CleanedText)->Apply(Lines);

/// The worst case of a search: a text that is nowhere.
void BM_FindNothing(benchmark::State& zState) {
  const std::string_view sought = zState.range(1) == 1 ? "#" : "\\pitch \\61 \\ow";
  const std::string bytes = Dictionary(zState.range(0));
  for (auto _ : zState) {
    benchmark::DoNotOptimize(FindText(bytes, sought, bytes.size() / 2));
  }
  CountBytes(zState, bytes.size());
}
BENCHMARK(BM_FindNothing)
    ->ArgsProduct({{1'000, 130'000, 1'000'000}, {1, 14}})
    ->Unit(benchmark::kMillisecond);

/// Words against a set in memory, half of them known: what the reading of the list itself costs.
void BM_WordImport(benchmark::State& zState) {
  std::string list;
  std::unordered_set<std::string> known;
  for (std::int64_t i = 0; i < zState.range(0); ++i) {
    const std::string word = WordOf(static_cast<std::uint64_t>(i));
    list += word + "\n";
    if (i % 2 == 0) {
      known.insert(word);
    }
  }
  for (auto _ : zState) {
    WordImport import(
        [&known](std::string_view zWord) { return known.count(std::string(zWord)) == 0; });
    import.Feed(list);
    import.Finish();
    benchmark::DoNotOptimize(import.Count());
  }
  CountBytes(zState, list.size());
}
BENCHMARK(BM_WordImport)->Apply(Lines);

}  // namespace
}  // namespace loquitor

BENCHMARK_MAIN();
