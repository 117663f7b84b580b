#pragma once

#include <cstdint>
#include <string_view>

#include "core/synth_registers.h"

namespace loquitor {

namespace synth {
/// How loud the three tone generators are together: Over above ToneVolumeLimit, Near from
/// NearToneVolumeLimit up to it.
enum class VolumeBand { Within, Near, Over };
inline constexpr int NearToneVolumeLimit = 60;
}  // namespace synth

/// The envelope control byte: the type in bits 0 and 1, 64 when the tone generators are enveloped,
/// 128 when half of the noise generators is.
std::uint8_t EnvelopeControlByte(synth::EnvelopeType zType, bool zIsOneHalfEnveloped,
                                 bool zIsEnveloped);

/// The band of `zSum`, the sum of the three tone volumes (0 to 93).
synth::VolumeBand BandOfToneVolumes(int zSum);

/// The smaller of the two: `zValue`, but no more than `zMax`.
std::int16_t max(std::int16_t zValue, std::int16_t zMax);

/// The multiple of `zBase` (above 0) that is nearest to `zFrequency` (0 to 3999), as a whole number
/// (halves to the even neighbour). Of two that are equally near, the upper one. When that is above
/// 3999, the highest multiple that is not.
int HarmonisedFrequency(int zFrequency, double zBase);

/// `zPercent` (0 to 200) per cent of a base, which is a frequency or a volume. A whole number
/// (halves to the even neighbour), at most the highest frequency or volume.
int AdjustedFrequency(std::int32_t zBase, int zPercent);
int AdjustedVolume(std::int16_t zBase, int zPercent);

/// The number at the start of `zText` (text/number_text.h), brought into the range 0 to `zMaximum`
/// and then made whole (halves to the even neighbour). 0 when there is no number.
int WholeNumberInRange(std::string_view zText, int zMaximum);

}  // namespace loquitor
