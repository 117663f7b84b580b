#include "voice/effects.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace loquitor {

namespace {

using enum Wave;

constexpr double ToneMs = 200;

/// A telephone key: two sines (ITU-T Q.23).
constexpr Effect TouchTone(std::uint8_t zCode, double zLowHz, double zHighHz) {
  return {.code = zCode,
          .wave = Sine,
          .startHz = zLowHz,
          .endHz = zLowHz,
          .strokeMs = ToneMs,
          .ms = ToneMs,
          .secondHz = zHighHz};
}

constexpr std::array<Effect, 55> Effects{{
    // Robot
    {.code = 200,
     .wave = Square,
     .startHz = 180,
     .endHz = 900,
     .strokeMs = 90,
     .ms = 540,
     .ringHz = 60},
    {.code = 201,
     .wave = Square,
     .startHz = 900,
     .endHz = 180,
     .strokeMs = 90,
     .ms = 540,
     .ringHz = 60},
    {.code = 202,
     .wave = Saw,
     .startHz = 110,
     .endHz = 110,
     .strokeMs = 160,
     .ms = 640,
     .soundingShare = 0.6,
     .filterStartHz = 400,
     .filterEndHz = 2400},
    {.code = 203,
     .wave = Square,
     .startHz = 70,
     .endHz = 140,
     .strokeMs = 700,
     .ms = 700,
     .ringHz = 35},
    {.code = 204,
     .wave = Square,
     .startHz = 140,
     .endHz = 70,
     .strokeMs = 700,
     .ms = 700,
     .ringHz = 35},
    {.code = 205,
     .wave = Triangle,
     .startHz = 400,
     .endHz = 1600,
     .strokeMs = 60,
     .ms = 600,
     .soundingShare = 0.7},
    {.code = 206,
     .wave = Noise,
     .startHz = 100,
     .endHz = 100,
     .strokeMs = 120,
     .ms = 600,
     .soundingShare = 0.5,
     .filterStartHz = 900,
     .filterEndHz = 2200},
    {.code = 207,
     .wave = Saw,
     .startHz = 90,
     .endHz = 90,
     .strokeMs = 500,
     .ms = 1000,
     .ringHz = 13,
     .filterStartHz = 2500,
     .filterEndHz = 300},
    {.code = 208,
     .wave = Square,
     .startHz = 520,
     .endHz = 520,
     .strokeMs = 80,
     .ms = 800,
     .soundingShare = 0.4,
     .wobbleHz = 7,
     .wobbleShare = 0.5},
    {.code = 209,
     .wave = Saw,
     .startHz = 60,
     .endHz = 240,
     .strokeMs = 1000,
     .ms = 1000,
     .wobbleHz = 18,
     .wobbleShare = 0.1,
     .filterStartHz = 300,
     .filterEndHz = 1800},
    // Alarms
    {.code = 210, .wave = Square, .startHz = 500, .endHz = 1200, .strokeMs = 800, .ms = 1600},
    {.code = 211, .wave = Square, .startHz = 1200, .endHz = 500, .strokeMs = 400, .ms = 1600},
    {.code = 212,
     .wave = Square,
     .startHz = 900,
     .endHz = 900,
     .strokeMs = 250,
     .ms = 1500,
     .soundingShare = 0.5},
    {.code = 213,
     .wave = Square,
     .startHz = 800,
     .endHz = 800,
     .strokeMs = 1600,
     .ms = 1600,
     .wobbleHz = 1.25,
     .wobbleShare = 0.25},
    {.code = 214,
     .wave = Sine,
     .startHz = 2000,
     .endHz = 2000,
     .strokeMs = 125,
     .ms = 1500,
     .soundingShare = 0.6},
    {.code = 215, .wave = Saw, .startHz = 400, .endHz = 1600, .strokeMs = 150, .ms = 1500},
    {.code = 216,
     .wave = Triangle,
     .startHz = 960,
     .endHz = 960,
     .strokeMs = 1600,
     .ms = 1600,
     .wobbleHz = 2.5,
     .wobbleShare = 0.15},
    {.code = 217,
     .wave = Saw,
     .startHz = 220,
     .endHz = 220,
     .strokeMs = 500,
     .ms = 1500,
     .soundingShare = 0.7},
    {.code = 218, .wave = Sine, .startHz = 1500, .endHz = 3000, .strokeMs = 100, .ms = 1000},
    {.code = 219,
     .wave = Square,
     .startHz = 1400,
     .endHz = 1400,
     .strokeMs = 60,
     .ms = 1200,
     .soundingShare = 0.5},
    // Beeps
    {.code = 220, .wave = Sine, .startHz = 500, .endHz = 500, .strokeMs = 150, .ms = 150},
    {.code = 221, .wave = Sine, .startHz = 1000, .endHz = 1000, .strokeMs = 150, .ms = 150},
    {.code = 222, .wave = Sine, .startHz = 2000, .endHz = 2000, .strokeMs = 150, .ms = 150},
    {.code = 223, .wave = Sine, .startHz = 3000, .endHz = 3000, .strokeMs = 150, .ms = 150},
    {.code = 224, .wave = Square, .startHz = 440, .endHz = 440, .strokeMs = 150, .ms = 150},
    {.code = 225, .wave = Square, .startHz = 880, .endHz = 880, .strokeMs = 150, .ms = 150},
    {.code = 226,
     .wave = Sine,
     .startHz = 1000,
     .endHz = 1000,
     .strokeMs = 150,
     .ms = 300,
     .soundingShare = 0.5},
    {.code = 227, .wave = Sine, .startHz = 600, .endHz = 1200, .strokeMs = 200, .ms = 200},
    {.code = 228, .wave = Sine, .startHz = 1200, .endHz = 600, .strokeMs = 200, .ms = 200},
    {.code = 229,
     .wave = Sine,
     .startHz = 1500,
     .endHz = 1500,
     .strokeMs = 600,
     .ms = 600,
     .fadeMs = 150},
    // Living sounds: chirp, bird, frog, cat, cow, dog, heart, breath, mosquito, owl
    {.code = 230,
     .wave = Sine,
     .startHz = 4400,
     .endHz = 4600,
     .strokeMs = 40,
     .ms = 480,
     .soundingShare = 0.6},
    {.code = 231,
     .wave = Sine,
     .startHz = 2600,
     .endHz = 4800,
     .strokeMs = 120,
     .ms = 720,
     .soundingShare = 0.8},
    {.code = 232,
     .wave = Saw,
     .startHz = 95,
     .endHz = 120,
     .strokeMs = 250,
     .ms = 750,
     .soundingShare = 0.7,
     .ringHz = 28,
     .filterStartHz = 500,
     .filterEndHz = 900},
    {.code = 233,
     .wave = Saw,
     .startHz = 550,
     .endHz = 420,
     .strokeMs = 700,
     .ms = 700,
     .wobbleHz = 6,
     .wobbleShare = 0.03,
     .filterStartHz = 2200,
     .filterEndHz = 900},
    {.code = 234,
     .wave = Saw,
     .startHz = 130,
     .endHz = 105,
     .strokeMs = 1100,
     .ms = 1100,
     .filterStartHz = 300,
     .filterEndHz = 700},
    {.code = 235,
     .wave = Saw,
     .startHz = 320,
     .endHz = 180,
     .strokeMs = 300,
     .ms = 600,
     .soundingShare = 0.5,
     .filterStartHz = 1100,
     .filterEndHz = 600},
    {.code = 236,
     .wave = Sine,
     .startHz = 70,
     .endHz = 45,
     .strokeMs = 420,
     .ms = 1680,
     .fadeMs = 60},
    {.code = 237,
     .wave = Noise,
     .startHz = 100,
     .endHz = 100,
     .strokeMs = 1200,
     .ms = 2400,
     .soundingShare = 0.8,
     .filterStartHz = 500,
     .filterEndHz = 1500},
    {.code = 238,
     .wave = Saw,
     .startHz = 620,
     .endHz = 700,
     .strokeMs = 1200,
     .ms = 1200,
     .wobbleHz = 9,
     .wobbleShare = 0.05,
     .filterStartHz = 2400,
     .filterEndHz = 3200},
    {.code = 239,
     .wave = Sine,
     .startHz = 420,
     .endHz = 360,
     .strokeMs = 500,
     .ms = 1000,
     .soundingShare = 0.7},
    // Touch tones 0 to 9, *, #
    TouchTone(240, 941, 1336),
    TouchTone(241, 697, 1209),
    TouchTone(242, 697, 1336),
    TouchTone(243, 697, 1477),
    TouchTone(244, 770, 1209),
    TouchTone(245, 770, 1336),
    TouchTone(246, 770, 1477),
    TouchTone(247, 852, 1209),
    TouchTone(248, 852, 1336),
    TouchTone(249, 852, 1477),
    TouchTone(250, 941, 1209),
    TouchTone(251, 941, 1477),
    // Sonar ping, pistol shot, wow
    {.code = 252,
     .wave = Sine,
     .startHz = 1300,
     .endHz = 1250,
     .strokeMs = 1200,
     .ms = 1200,
     .fadeMs = 250},
    {.code = 253,
     .wave = Noise,
     .startHz = 100,
     .endHz = 100,
     .strokeMs = 500,
     .ms = 500,
     .fadeMs = 70,
     .filterStartHz = 2800,
     .filterEndHz = 200},
    {.code = 254,
     .wave = Saw,
     .startHz = 110,
     .endHz = 160,
     .strokeMs = 800,
     .ms = 800,
     .filterStartHz = 250,
     .filterEndHz = 1500},
}};

constexpr double EdgeMs = 3;  // every stroke fades in and out, so that it does not click

double Between(double zStart, double zEnd, double zShare) {
  return zStart * std::pow(zEnd / zStart, zShare);
}

/// The amplitude of a stroke, `zMs` after its start.
double Height(const Effect& zEffect, double zMs) {
  const double left = zEffect.strokeMs * zEffect.soundingShare - zMs;
  const double edge = std::clamp(std::min(zMs, left) / EdgeMs, 0.0, 1.0);
  return zEffect.fadeMs > 0 ? edge * std::exp(-zMs / zEffect.fadeMs) : edge;
}

double SineAt(double zHertz, double zMs) {
  return std::sin(2 * std::numbers::pi * zHertz * zMs / 1000);
}

}  // namespace

double WaveAt(Wave zWave, double zPhase) {
  switch (zWave) {
    case Sine:
      return std::sin(2 * std::numbers::pi * zPhase);
    case Square:
      return zPhase < 0.5 ? 1 : -1;
    case Saw:
      return 2 * zPhase - 1;
    case Triangle:
      return 1 - 4 * std::abs(zPhase - 0.5);
    case Noise:
      break;
  }
  return 0;
}

const Effect* FindEffect(std::uint8_t zCode) {
  const std::size_t index = static_cast<std::size_t>(zCode) - Effects.front().code;
  return index < Effects.size() ? &Effects[index] : nullptr;
}

void EffectPlayer::Start(const Effect& zEffect, double zTempo, double zLoudness) {
  *this = EffectPlayer();
  effect_ = zEffect;
  tempo_ = zTempo;
  loudness_ = zLoudness;
  length_ = std::llround(zEffect.ms / zTempo * VoiceSampleRate / 1000);
}

double EffectPlayer::Filter(double zSound, double zStrokeShare) {
  constexpr int retuneSamples = 16;
  constexpr double sharpness = 5;
  const double hertz = Between(effect_.filterStartHz, effect_.filterEndHz, zStrokeShare);
  if (at_ % retuneSamples == 0) {
    filter_.Tune(hertz, hertz / sharpness);
  }
  return 0.35 * filter_.Next(zSound);
}

double EffectPlayer::Next() {
  const double ms = 1000.0 * static_cast<double>(at_) / VoiceSampleRate * tempo_;
  const double strokeMs = std::fmod(ms, effect_.strokeMs);
  const double share = strokeMs / effect_.strokeMs;
  const double wobble = 1 + effect_.wobbleShare * SineAt(effect_.wobbleHz, ms);
  phase_ += Between(effect_.startHz, effect_.endHz, share) * wobble / VoiceSampleRate;
  phase_ -= std::floor(phase_);
  double sound = effect_.wave == Noise ? noise_.Next() : WaveAt(effect_.wave, phase_);
  if (effect_.filterStartHz > 0) {
    sound = Filter(sound, share);
  }
  if (effect_.ringHz > 0) {
    sound *= SineAt(effect_.ringHz, ms);
  }
  if (effect_.secondHz > 0) {
    sound = 0.5 * (sound + SineAt(effect_.secondHz, ms));
  }
  ++at_;
  return loudness_ * std::clamp(sound * Height(effect_, strokeMs), -1.0, 1.0);
}

}  // namespace loquitor
