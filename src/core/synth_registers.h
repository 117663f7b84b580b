#pragma once

#include <array>

namespace loquitor {

/// The chip's synthesizer: five oscillators (1 to 3 make tones, 4 and 5 noise), an envelope, a
/// distortion of the noise and a master volume. Their values are numbered registers, which are
/// written with RegisterWrite (line/scp.h) and cannot be read back (docs/wire-format.md).
namespace synth {
inline constexpr int OscillatorCount = 5;
inline constexpr int ToneCount = 3;
inline constexpr int MaxFrequency = 3999;
inline constexpr int MaxVolume = 31;
inline constexpr int MaxEnvelopeFrequency = 255;
inline constexpr int MaxDistortion = 255;
inline constexpr int MaxMasterVolume = 127;
inline constexpr int ToneVolumeLimit = 63;  ///< what the volumes of the tones may add up to

inline constexpr int RegisterCount = 16;
inline constexpr int EnvelopeFrequencyRegister = 0;
inline constexpr int DistortionRegister = 6;
inline constexpr int MasterVolumeRegister = 7;
inline constexpr int EnvelopeControlRegister = 8;

/// The register of the frequency of oscillator 1 to 5; 0 is the envelope.
constexpr int FrequencyRegister(int zOscillator) {
  return zOscillator;
}
/// The register of a level: 0 is the distortion, 1 the master volume.
constexpr int LevelRegister(int zLevel) {
  return DistortionRegister + zLevel;
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
    {DistortionRegister, 0},
    {MasterVolumeRegister, 96},
}};

enum class EnvelopeType { Saw, Sine, Triangle, Square };
}  // namespace synth

}  // namespace loquitor
