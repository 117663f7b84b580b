#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <numbers>
#include <span>
#include <string>
#include <vector>

#include "voice/chip_sound.h"
#include "voice/filters.h"

namespace loquitor::testing {

using Samples = std::vector<std::int16_t>;

constexpr std::size_t SamplesIn(double zMs) {
  return static_cast<std::size_t>(zMs * VoiceSampleRate / 1000);
}

inline Samples Render(ChipSound& zSound, double zMs) {
  Samples samples(SamplesIn(zMs));
  zSound.Render(samples);
  return samples;
}

/// Renders everything that is left to say, in steps of 2 ms, up to a minute.
inline Samples RenderAll(ChipSound& zSound) {
  Samples all;
  while (!zSound.IsQuiet() && all.size() < SamplesIn(60000)) {
    const Samples part = Render(zSound, 2);
    all.insert(all.end(), part.begin(), part.end());
  }
  return all;
}

/// The sound of codes that a new chip says, with `zPhrases` in its memory.
inline Samples Said(std::string_view zCodes, std::map<int, std::string> zPhrases = {}) {
  ChipSound sound([zPhrases](int zSlot) {
    const auto phrase = zPhrases.find(zSlot);
    return phrase == zPhrases.end() ? std::string() : phrase->second;
  });
  sound.Say(zCodes);
  return RenderAll(sound);
}

inline double Milliseconds(const Samples& zSamples) {
  return 1000.0 * static_cast<double>(zSamples.size()) / VoiceSampleRate;
}

inline int Peak(std::span<const std::int16_t> zSamples) {
  int peak = 0;
  for (const std::int16_t sample : zSamples) {
    peak = std::max(peak, std::abs(static_cast<int>(sample)));
  }
  return peak;
}

inline double Loudness(std::span<const std::int16_t> zSamples) {
  double sum = 0;
  for (const double sample : zSamples) {
    sum += sample * sample;
  }
  return std::sqrt(sum / static_cast<double>(std::max<std::size_t>(1, zSamples.size())));
}

/// The middle half, where a sound is steady.
inline std::span<const std::int16_t> Middle(const Samples& zSamples) {
  return std::span(zSamples).subspan(zSamples.size() / 4, zSamples.size() / 2);
}

/// The amplitude of the tone of `zHertz` in a sound.
inline double ToneHeight(std::span<const std::int16_t> zSamples, double zHertz) {
  double real = 0;
  double imaginary = 0;
  double angle = 0;
  for (const double sample : zSamples) {
    real += sample * std::cos(angle);
    imaginary += sample * std::sin(angle);
    angle += 2 * std::numbers::pi * zHertz / VoiceSampleRate;
  }
  return 2 * std::hypot(real, imaginary) / static_cast<double>(zSamples.size());
}

/// The strongest frequency from `zLow` to `zHigh`, in steps of `zStep` hertz.
inline double Strongest(std::span<const std::int16_t> zSamples, double zLow, double zHigh,
                        double zStep = 5) {
  double strongest = zLow;
  double highest = 0;
  for (double hertz = zLow; hertz <= zHigh; hertz += zStep) {
    if (const double height = ToneHeight(zSamples, hertz); height > highest) {
      highest = height;
      strongest = hertz;
    }
  }
  return strongest;
}

/// The pitch in hertz between 40 and 400, by autocorrelation.
inline double Fundamental(std::span<const std::int16_t> zSamples) {
  constexpr std::size_t shortest = VoiceSampleRate / 400;
  constexpr std::size_t longest = VoiceSampleRate / 40;
  std::vector<double> matches;
  for (std::size_t lag = 0; lag <= longest + 1; ++lag) {
    double sum = 0;
    for (std::size_t i = 0; i + longest + 1 < zSamples.size(); ++i) {
      sum += static_cast<double>(zSamples[i]) * zSamples[i + lag];
    }
    matches.push_back(sum);
  }
  const double best = *std::max_element(matches.begin() + shortest, matches.end());
  std::size_t lag = shortest;  // the first good match counts: two periods match as well as one
  while (matches[lag] < 0.9 * best || matches[lag] < matches[lag + 1]) {
    ++lag;
  }
  const double hertz = static_cast<double>(VoiceSampleRate) / static_cast<double>(lag);
  return Strongest(zSamples, 0.9 * hertz, 1.1 * hertz, 0.1);
}

}  // namespace loquitor::testing
