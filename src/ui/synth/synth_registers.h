#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace loquitor {

/// The synthesizer as the program knows it: five oscillators (1 to 3 make tones, 4 and 5 noise), an
/// envelope, a distortion of the noise and a master volume. Their values are numbered registers of
/// the chip, which are written with RegisterWrite (line/scp.h). Nothing is read back.
namespace synth {
inline constexpr int OscillatorCount = 5;
inline constexpr int ToneCount = 3;
inline constexpr int MaxFrequency = 3999;
inline constexpr int MaxVolume = 31;
inline constexpr int MaxEnvelopeFrequency = 255;
inline constexpr int MaxDistortion = 255;
inline constexpr int MaxMasterVolume = 127;

inline constexpr int RegisterCount = 16;
inline constexpr int EnvelopeFrequencyRegister = 0;
inline constexpr int EnvelopeControlRegister = 8;

/// The register of the frequency of oscillator 1 to 5; 0 is the envelope.
constexpr int FrequencyRegister(int zOscillator) {
  return zOscillator;
}
/// The register of a level: 0 is the distortion, 1 the master volume.
constexpr int LevelRegister(int zLevel) {
  return zLevel + 6;
}
/// The register of the volume of oscillator 1 to 5.
constexpr int VolumeRegister(int zOscillator) {
  return zOscillator + 10;
}

/// One register and the value that silences it.
struct RegisterValue {
  int number;
  int value;
};

/// The quiet values of all registers except the envelope control, in the order in which they are
/// set. The envelope control is quiet at 0: Saw, nothing enveloped.
inline constexpr std::array<RegisterValue, 13> QuietState{{
    {VolumeRegister(1), 0},
    {VolumeRegister(2), 0},
    {VolumeRegister(3), 0},
    {VolumeRegister(4), 0},
    {VolumeRegister(5), 0},
    {EnvelopeFrequencyRegister, 88},
    {FrequencyRegister(1), 0},
    {FrequencyRegister(2), 0},
    {FrequencyRegister(3), 0},
    {FrequencyRegister(4), 0},
    {FrequencyRegister(5), 0},
    {LevelRegister(0), 0},
    {LevelRegister(1), 96},
}};

enum class EnvelopeType { Saw, Sine, Triangle, Square };

/// How loud the three tone generators are together: Over above ToneVolumeLimit, Near from
/// NearToneVolumeLimit up to it.
enum class VolumeBand { Within, Near, Over };
inline constexpr int ToneVolumeLimit = 63;
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
