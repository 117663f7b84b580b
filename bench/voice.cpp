// How fast the sound of the chip is made.
//
// real_time: seconds of sound made per second

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "voice/chip_sound.h"
#include "voice/filters.h"

namespace loquitor {
namespace {

/// Every sound of the voice, then every effect.
std::string EverySound() {
  std::string codes;
  for (int code = 128; code < 255; ++code) {
    codes += static_cast<char>(code);
  }
  return codes;
}

void Run(benchmark::State& zState, bool zHasOscillators) {
  const std::string codes = EverySound();
  std::vector<std::int16_t> samples(VoiceSampleRate / 100);
  std::int64_t made = 0;
  for (auto _ : zState) {
    ChipSound sound([](int) { return std::string(); });
    for (int i = 1; zHasOscillators && i <= 5; ++i) {
      sound.SetRegister(i, 300 * i);
      sound.SetRegister(10 + i, 12);
    }
    sound.Say(codes);
    while (sound.IsSpeaking()) {
      sound.Render(samples);
      benchmark::DoNotOptimize(samples.data());
      made += static_cast<std::int64_t>(samples.size());
    }
  }
  zState.counters["real_time"] =
      benchmark::Counter(static_cast<double>(made) / VoiceSampleRate, benchmark::Counter::kIsRate);
}

void BM_Voice(benchmark::State& zState) {
  Run(zState, false);
}
BENCHMARK(BM_Voice)->Unit(benchmark::kMillisecond);

void BM_VoiceAndOscillators(benchmark::State& zState) {
  Run(zState, true);
}
BENCHMARK(BM_VoiceAndOscillators)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace loquitor

BENCHMARK_MAIN();
