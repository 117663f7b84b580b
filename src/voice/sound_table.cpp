#include "voice/sound_table.h"

#include <array>

namespace loquitor {

namespace {

using enum SoundKind;
using enum NoisePlace;

// Vowels: G. E. Peterson, H. L. Barney, "Control methods used in a study of the vowels", J. Acoust.
// Soc. Am. 24 (1952), men. Consonants and diphthongs: table II of Klatt (1980). Durations: D. H.
// Klatt, "Synthesis by rule of segmental durations in English sentences" (1979). Ranks and pulls:
// J. N. Holmes, I. G. Mattingly, J. N. Shearme, "Speech synthesis by rule", Language and Speech 7
// (1964). docs/voice.md says what was changed and why.

constexpr Border VowelBorder{1, 0.5, 0.5, 35, 35};
constexpr Border LiquidBorder{4, 0.4, 0.4, 35, 45};
constexpr Border NasalBorder{6, 0.5, 0.4, 6, 45};
constexpr Border FricativeBorder{7, 0.5, 0.45, 25, 40};
constexpr Border BreathBorder{0, 1, 1, 10, 10};

constexpr VoiceSound VowelSound(std::uint8_t zCode, double zMs, Formants zFrom, Formants zTo) {
  return {.code = zCode,
          .kind = SoundKind::Vowel,
          .ms = zMs,
          .from = zFrom,
          .to = zTo,
          .border = VowelBorder};
}
constexpr VoiceSound VowelSound(std::uint8_t zCode, double zMs, Formants zAt) {
  return VowelSound(zCode, zMs, zAt, zAt);
}
constexpr VoiceSound Liquid(std::uint8_t zCode, double zMs, Formants zAt, double zDecibels) {
  return {.code = zCode,
          .kind = SoundKind::Glide,
          .ms = zMs,
          .from = zAt,
          .to = zAt,
          .border = LiquidBorder,
          .voiceDecibels = zDecibels};
}
constexpr VoiceSound NasalSound(std::uint8_t zCode, double zMs, Formants zAt) {
  return {.code = zCode,
          .kind = SoundKind::Nasal,
          .ms = zMs,
          .from = zAt,
          .to = zAt,
          .border = NasalBorder,
          .voiceDecibels = -4};
}
constexpr VoiceSound BreathSound(std::uint8_t zCode, double zMs, Formants zAt) {
  return {.code = zCode,
          .kind = SoundKind::Breath,
          .ms = zMs,
          .from = zAt,
          .to = zAt,
          .border = BreathBorder,
          .isVoiced = false,
          .noiseDecibels = -14};
}
constexpr VoiceSound Hiss(std::uint8_t zCode, double zMs, Formants zAt, NoisePlace zPlace,
                          double zDecibels) {
  return {.code = zCode,
          .kind = SoundKind::Fricative,
          .ms = zMs,
          .from = zAt,
          .to = zAt,
          .border = FricativeBorder,
          .isVoiced = false,
          .place = zPlace,
          .noiseDecibels = zDecibels};
}
constexpr VoiceSound Buzz(std::uint8_t zCode, double zMs, Formants zAt, NoisePlace zPlace,
                          double zDecibels) {
  VoiceSound sound = Hiss(zCode, zMs, zAt, zPlace, zDecibels);
  sound.isVoiced = true;
  sound.voiceDecibels = -7;
  return sound;
}

struct Release {
  double closureMs;
  double burstMs;
  double burstDecibels;
  double breathMs;
};
constexpr VoiceSound StopSound(std::uint8_t zCode, Formants zAt, double zPull, NoisePlace zPlace,
                               bool zIsVoiced, Release zRelease) {
  return {.code = zCode,
          .kind = SoundKind::Stop,
          .ms = 0,
          .from = zAt,
          .to = zAt,
          .border = {8, 0.4, zPull, 8, 45},
          .isVoiced = zIsVoiced,
          .voiceDecibels = -12,
          .place = zPlace,
          .noiseDecibels = -100,
          .closureMs = zRelease.closureMs,
          .burstMs = zRelease.burstMs,
          .burstDecibels = zRelease.burstDecibels,
          .breathMs = zRelease.breathMs};
}
constexpr VoiceSound Affricate(std::uint8_t zCode, double zMs, bool zIsVoiced, double zClosureMs,
                               double zDecibels) {
  return {.code = zCode,
          .kind = SoundKind::Stop,
          .ms = zMs,
          .from = {300, 1800, 2650},
          .to = {300, 1800, 2650},
          .border = {8, 0.4, 0.35, 8, 45},
          .isVoiced = zIsVoiced,
          .voiceDecibels = -12,
          .place = Palate,
          .noiseDecibels = zDecibels,
          .closureMs = zClosureMs,
          .burstMs = 6,
          .burstDecibels = zDecibels + 3};
}

constexpr Formants Lip{220, 1000, 2200};
constexpr Formants LipBack{220, 800, 2150};
constexpr Formants Ridge{220, 1780, 2700};
constexpr Formants RidgeBack{220, 1700, 2600};
constexpr Formants Velum{220, 2200, 2700};
constexpr Formants VelumBack{220, 1250, 2200};

constexpr std::array<VoiceSound, 72> Sounds{{
    VowelSound(128, 190, {290, 2250, 2950}),
    VowelSound(129, 150, {410, 1960, 2560}),
    VowelSound(130, 200, {480, 2000, 2600}),
    VowelSound(131, 170, {550, 1790, 2480}),
    VowelSound(132, 240, {680, 1700, 2420}),
    VowelSound(133, 150, {610, 1220, 2420}),
    VowelSound(134, 200, {320, 1150, 2250}),
    VowelSound(135, 240, {650, 960, 2450}),
    VowelSound(136, 240, {720, 1120, 2450}),
    VowelSound(137, 220, {520, 950, 2400}, {420, 850, 2350}),
    VowelSound(138, 160, {440, 1050, 2250}),
    VowelSound(139, 200, {320, 1000, 2240}),
    NasalSound(140, 80, {280, 1150, 2150}),
    NasalSound(141, 75, {280, 1650, 2550}),
    NasalSound(142, 75, {280, 1500, 2500}),
    NasalSound(143, 95, {280, 2150, 2700}),
    NasalSound(144, 95, {280, 1250, 2300}),
    Liquid(145, 75, {340, 1150, 2750}, -3),
    Liquid(146, 80, {380, 950, 2700}, -3),
    Liquid(147, 80, {290, 680, 2200}, -4),
    Liquid(148, 80, {360, 1150, 1600}, -2),
    VowelSound(149, 250, {320, 2150, 2750}, {450, 1400, 1700}),
    VowelSound(150, 250, {530, 1850, 2500}, {470, 1450, 1720}),
    VowelSound(151, 220, {480, 1340, 1680}),
    VowelSound(152, 260, {690, 1120, 2350}, {500, 1250, 1700}),
    VowelSound(153, 250, {480, 850, 2350}, {450, 1150, 1680}),
    VowelSound(154, 220, {480, 2000, 2600}, {330, 2220, 2850}),
    VowelSound(155, 240, {720, 1220, 2450}, {380, 2050, 2650}),
    VowelSound(156, 270, {520, 900, 2450}, {370, 2000, 2600}),
    VowelSound(157, 270, {730, 1200, 2450}, {410, 1950, 2600}),
    VowelSound(158, 210, {280, 2250, 3000}, {540, 1830, 2500}),
    VowelSound(159, 230, {560, 1600, 2500}, {430, 850, 2650}),
    VowelSound(160, 230, {280, 2200, 2900}, {330, 1000, 2250}),
    VowelSound(161, 260, {700, 1250, 2450}, {430, 950, 2350}),
    VowelSound(162, 210, {370, 1650, 2400}, {320, 1000, 2250}),
    VowelSound(163, 260, {720, 1350, 2450}, {430, 920, 2350}),
    VowelSound(164, 240, {520, 1050, 2400}, {380, 850, 2300}),
    Affricate(165, 55, true, 50, -14),
    Buzz(166, 60, {240, 1100, 2150}, LipsTeeth, -26),
    Buzz(167, 75, {250, 1600, 2550}, Gum, -18),
    Buzz(168, 75, {250, 1850, 2650}, Palate, -18),
    Buzz(169, 50, {260, 1350, 2550}, Teeth, -28),
    StopSound(170, Lip, 0.5, Lips, true, {65, 8, -14, 0}),
    StopSound(171, LipBack, 0.45, Lips, true, {65, 8, -14, 0}),
    StopSound(172, Lip, 0.5, Lips, true, {70, 8, -20, 0}),
    StopSound(173, LipBack, 0.45, Lips, true, {70, 8, -20, 0}),
    StopSound(174, Ridge, 0.35, Gum, true, {60, 12, -14, 0}),
    StopSound(175, RidgeBack, 0.35, Gum, true, {60, 12, -14, 0}),
    StopSound(176, Ridge, 0.35, Gum, true, {65, 12, -20, 0}),
    StopSound(177, RidgeBack, 0.35, Gum, true, {65, 12, -20, 0}),
    StopSound(178, Velum, 0.4, SoftFront, true, {60, 18, -12, 0}),
    StopSound(179, VelumBack, 0.4, SoftBack, true, {60, 18, -12, 0}),
    StopSound(180, Velum, 0.4, SoftFront, true, {65, 15, -18, 0}),
    StopSound(181, VelumBack, 0.4, SoftBack, true, {65, 15, -18, 0}),
    Affricate(182, 85, false, 60, -8),
    BreathSound(183, 65, {500, 1700, 2500}),
    BreathSound(184, 65, {500, 1000, 2400}),
    {.code = 185,
     .kind = Glide,
     .ms = 100,
     .from = {290, 680, 2200},
     .to = {290, 680, 2200},
     .border = LiquidBorder,
     .isVoiced = false,
     .voiceDecibels = -6,
     .noiseDecibels = -14},
    Hiss(186, 100, {340, 1150, 2150}, LipsTeeth, -22),
    Hiss(187, 110, {320, 1600, 2550}, Gum, -10),
    Hiss(188, 110, {320, 1450, 2450}, GumRound, -10),
    Hiss(189, 115, {300, 1850, 2650}, Palate, -8),
    Hiss(190, 95, {320, 1350, 2550}, Teeth, -24),
    StopSound(191, Ridge, 0.4, Gum, false, {70, 12, -10, 50}),
    StopSound(192, Ridge, 0.4, Gum, false, {65, 14, -8, 70}),
    {.code = 193,
     .kind = Stop,
     .ms = 90,
     .from = Ridge,
     .to = Ridge,
     .border = {8, 0.4, 0.4, 8, 45},
     .isVoiced = false,
     .place = Gum,
     .noiseDecibels = -10,
     .closureMs = 60,
     .burstMs = 8,
     .burstDecibels = -8},
    StopSound(194, Velum, 0.45, SoftFront, false, {65, 20, -8, 70}),
    StopSound(195, VelumBack, 0.45, SoftBack, false, {65, 20, -8, 70}),
    StopSound(196, Velum, 0.45, SoftFront, false, {75, 20, -11, 40}),
    StopSound(197, VelumBack, 0.45, SoftBack, false, {75, 20, -11, 40}),
    StopSound(198, Lip, 0.5, Lips, false, {75, 10, -12, 55}),
    StopSound(199, LipBack, 0.5, Lips, false, {75, 10, -12, 55}),
}};

}  // namespace

std::span<const VoiceSound> SoundTable() {
  return Sounds;
}

const VoiceSound* FindSound(std::uint8_t zCode) {
  const std::size_t index = static_cast<std::size_t>(zCode) - Sounds.front().code;
  return index < Sounds.size() ? &Sounds[index] : nullptr;
}

}  // namespace loquitor
