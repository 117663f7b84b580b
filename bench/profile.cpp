// Profile files of 1,000, 10,000 and 130,000 entries: the first lookup against reading the file and
// counting its lines, later lookups, a write, the next word.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <string>

#include "bench/support/sample_dictionary.h"
#include "core/dictionary_store.h"
#include "core/next_word.h"
#include "files/profile_file.h"

namespace loquitor::bench {
namespace {

/// The least that any reader of the file must do: read its bytes and find its lines.
void ReadAndCountLines(benchmark::State& zState) {
  const SampleDictionary sample(zState.range(0));
  for (auto _ : zState) {
    const auto file = LoadFile(sample.File());
    benchmark::DoNotOptimize(std::count(file->bytes.get(), file->bytes.get() + file->size, '\n'));
  }
}

void FirstLookup(benchmark::State& zState) {
  const SampleDictionary sample(zState.range(0));
  const std::string word = sample.Word(sample.Size() / 2);
  for (auto _ : zState) {
    benchmark::DoNotOptimize(ReadProfileValue("Words", word, "", 2560, sample.File()));
  }
}

void LaterLookup(benchmark::State& zState) {
  const SampleDictionary sample(zState.range(0));
  sample.LetItSettle();
  const ProfileFile file(sample.File());
  int i = 0;
  for (auto _ : zState) {
    i = (i + 7919) % sample.Size();
    benchmark::DoNotOptimize(file.Read("Words", sample.Word(i), "", 2560));
  }
}

void LookupOfMissingWord(benchmark::State& zState) {
  const SampleDictionary sample(zState.range(0));
  sample.LetItSettle();
  const ProfileFile file(sample.File());
  for (auto _ : zState) {
    benchmark::DoNotOptimize(file.Read("Words", "missing", "", 2560));
  }
}

void WriteOneWord(benchmark::State& zState) {
  const SampleDictionary sample(zState.range(0));
  const std::string word = sample.Word(sample.Size() / 2);
  int i = 0;
  for (auto _ : zState) {
    benchmark::DoNotOptimize(WriteProfileValue("Words", word, std::to_string(++i), sample.File()));
  }
}

void WriteAndReadBack(benchmark::State& zState) {
  const SampleDictionary sample(zState.range(0));
  const ProfileFile file(sample.File());
  const std::string word = sample.Word(sample.Size() / 2);
  int i = 0;
  for (auto _ : zState) {
    benchmark::DoNotOptimize(file.Write("Words", word, std::to_string(++i)));
    benchmark::DoNotOptimize(file.Read("Words", word, "", 2560));
  }
}

void NextWordOfAll(benchmark::State& zState) {
  const SampleDictionary sample(zState.range(0));
  sample.LetItSettle();
  const DictionaryStore store(sample.Folder());
  std::string word;
  for (auto _ : zState) {
    word = NextWord(store, word).value();
  }
}

/// The only word with data is right before the present one, so all words are searched.
void NextWordWithData(benchmark::State& zState) {
  const SampleDictionary sample(zState.range(0), SampleDictionary::Entries::AllEmptyButFirst);
  sample.LetItSettle();
  const DictionaryStore store(sample.Folder());
  const auto hasData = [](std::string_view zSayData) {
    return zSayData.find_first_not_of(' ') != std::string_view::npos;
  };
  for (auto _ : zState) {
    if (NextWord(store, sample.Word(0), hasData) != sample.Word(0)) {
      zState.SkipWithError("the word with data was not found");
    }
  }
}

#define LOQUITOR_SIZES Arg(1'000)->Arg(10'000)->Arg(130'000)->Unit(benchmark::kMicrosecond)
BENCHMARK(ReadAndCountLines)->LOQUITOR_SIZES;
BENCHMARK(FirstLookup)->LOQUITOR_SIZES;
BENCHMARK(LaterLookup)->LOQUITOR_SIZES;
BENCHMARK(LookupOfMissingWord)->LOQUITOR_SIZES;
BENCHMARK(WriteOneWord)->LOQUITOR_SIZES->UseRealTime();
BENCHMARK(WriteAndReadBack)->LOQUITOR_SIZES->UseRealTime();
BENCHMARK(NextWordOfAll)->LOQUITOR_SIZES;
BENCHMARK(NextWordWithData)->LOQUITOR_SIZES;

}  // namespace
}  // namespace loquitor::bench

BENCHMARK_MAIN();
