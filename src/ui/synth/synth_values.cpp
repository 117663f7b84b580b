#include "ui/synth/synth_values.h"

#include <algorithm>
#include <cmath>

#include "text/number_text.h"

namespace loquitor {

namespace {

/// Every number that gets here is well within 32 bits.
int Whole(double zNumber) {
  return RoundToWhole(zNumber).value_or(0);
}

}  // namespace

std::uint8_t EnvelopeControlByte(synth::EnvelopeType zType, bool zIsOneHalfEnveloped,
                                 bool zIsEnveloped) {
  return static_cast<std::uint8_t>(static_cast<int>(zType) + (zIsOneHalfEnveloped ? 128 : 0) +
                                   (zIsEnveloped ? 64 : 0));
}

synth::VolumeBand BandOfToneVolumes(int zSum) {
  if (zSum > synth::ToneVolumeLimit) {
    return synth::VolumeBand::Over;
  }
  return zSum >= synth::NearToneVolumeLimit ? synth::VolumeBand::Near : synth::VolumeBand::Within;
}

std::int16_t max(std::int16_t zValue, std::int16_t zMax) {
  return zValue <= zMax ? zValue : zMax;
}

int HarmonisedFrequency(int zFrequency, double zBase) {
  if (std::isinf(zBase)) {
    return 0;
  }
  const double count = std::floor((zFrequency + zBase / 2) / zBase);
  if (!std::isfinite(count)) {
    return zFrequency;  // the multiples of so small a base are closer together than whole numbers
  }
  // The multiple below the nearest one is never above the frequency.
  const double nearest = std::nearbyint(count * zBase);
  return Whole(nearest > synth::MaxFrequency ? (count - 1) * zBase : nearest);
}

int AdjustedFrequency(std::int32_t zBase, int zPercent) {
  const std::int32_t product = zBase * zPercent;
  return max(static_cast<std::int16_t>(Whole(product / 100.0)), synth::MaxFrequency);
}

int AdjustedVolume(std::int16_t zBase, int zPercent) {
  const auto product = static_cast<std::int16_t>(zBase * zPercent);
  return max(static_cast<std::int16_t>(Whole(product / 100.0)), synth::MaxVolume);
}

int WholeNumberInRange(std::string_view zText, int zMaximum) {
  return Whole(std::clamp(NumberAtStart(zText), 0.0, static_cast<double>(zMaximum)));
}

}  // namespace loquitor
