// Say Data to codes: a text of 1,000 words against dictionaries of any size. The time for a text
// must not grow with the dictionary.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include "core/say_data.h"
#include "tests/support/temp_folder.h"

namespace loquitor {
namespace {

using testing::TempFolder;
using testing::WriteBytes;

std::string WordOf(std::int64_t zNumber) {
  return "word" + std::to_string(zNumber);
}

/// A dictionary of `zCount` words, and its translator.
struct Library {
  explicit Library(std::int64_t zCount) : dictionary(folder.Path()) {
    std::string entries = "[words]\r\n";
    for (std::int64_t i = 0; i < zCount; ++i) {
      entries += WordOf(i) + "=\\WW \\AXRR \\ED \\P2\r\n";
    }
    WriteBytes(folder / "Loquitor.Dic", entries);
    table.BuildCodeTable();
  }

  TempFolder folder;
  DictionaryStore dictionary;
  CodeTable table;
  SayDataTranslator translator{table, dictionary};
};

/// 1,000 words spread over the whole dictionary.
std::string Text(std::int64_t zCount) {
  std::string text;
  for (std::int64_t i = 0; i < 1'000; ++i) {
    text += WordOf(i * 7'919 % zCount) + (i % 10 == 0 ? ", " : " ");
  }
  return text;
}

void BM_Translate1000Words(benchmark::State& zState) {
  const Library library(zState.range(0));
  const std::string text = Text(zState.range(0));
  for (auto _ : zState) {
    benchmark::DoNotOptimize(
        library.translator.MnemonicsToCodes(library.translator.ExpandSayData(text)));
  }
  zState.SetItemsProcessed(zState.iterations() * 1'000);
}
BENCHMARK(BM_Translate1000Words)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(130'000)
    ->Unit(benchmark::kMicrosecond);

void BM_CodesOf1000Tokens(benchmark::State& zState) {
  const Library library(1);
  std::string text;
  for (int i = 0; i < 250; ++i) {
    text += "\\IY\\PITCH\\100\\NTC#1";
  }
  for (auto _ : zState) {
    benchmark::DoNotOptimize(library.translator.MnemonicsToCodes(text));
  }
  zState.SetItemsProcessed(zState.iterations() * 1'000);
}
BENCHMARK(BM_CodesOf1000Tokens)->Unit(benchmark::kMicrosecond);

/// Sixty words, each of which names the next one twice. The last one has a sound, or none.
void BM_DoublingDictionary(benchmark::State& zState) {
  const Library library(1);
  std::string entries = "[words]\r\n";
  for (int level = 0; level < 60; ++level) {
    const std::string next = "a" + std::to_string(level + 1);
    entries += "a" + std::to_string(level) + "=" + next + " " + next + "\r\n";
  }
  entries += zState.range(0) == 0 ? "" : "a60=\\IY\r\n";
  WriteBytes(library.folder / "Loquitor.Dic", entries);
  for (auto _ : zState) {
    benchmark::DoNotOptimize(library.translator.ExpandSayData("a0"));
  }
}
BENCHMARK(BM_DoublingDictionary)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

/// A million words or more whose entries have only ignored characters.
void BM_EntriesThatAddNothing(benchmark::State& zState) {
  const Library library(1);
  WriteBytes(library.folder / "Loquitor.Dic", "[words]\r\nw=" + std::string(2'558, '.') + "x\r\n");
  std::string text;
  for (std::int64_t i = 0; i < zState.range(0); ++i) {
    text += "w ";
  }
  for (auto _ : zState) {
    benchmark::DoNotOptimize(library.translator.ExpandSayData(text));
  }
}
BENCHMARK(BM_EntriesThatAddNothing)->Arg(2'000'000)->Arg(10'000'000)->Unit(benchmark::kMillisecond);

/// As the phrase editor asks after every key: a phrase of 20 words.
void BM_FindSilentParts(benchmark::State& zState) {
  const Library library(zState.range(0));
  const std::string text = Text(zState.range(0)).substr(0, 200);
  for (auto _ : zState) {
    benchmark::DoNotOptimize(library.translator.FindSilentParts(text));
  }
}
BENCHMARK(BM_FindSilentParts)->Arg(1'000)->Arg(130'000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace loquitor

BENCHMARK_MAIN();
