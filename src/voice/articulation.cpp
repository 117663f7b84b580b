#include "voice/articulation.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace loquitor {

namespace {

constexpr double FrameMs = VocalTract::FrameMs;

/// Within a phrase the breath never stops.
constexpr double RestingBreath = 0.002;

/// A part of a sound in which its sources have constant amplitudes, which are factors.
struct Phase {
  double ms;
  double voice;
  double breath;
  double noise;
  NoisePlace place = NoisePlace::None;
};

/// The time from the start of a sound to the middle of its frame `zFrame`.
double MiddleMs(std::size_t zFrame) {
  return FrameMs * (static_cast<double>(zFrame) + 0.5);
}

double DurationMs(const std::vector<TractFrame>& zFrames) {
  return FrameMs * static_cast<double>(zFrames.size());
}

bool IsObstruent(const VoiceSound* zSound) {
  return zSound != nullptr &&
         (zSound->kind == SoundKind::Stop || zSound->kind == SoundKind::Fricative);
}

bool IsVoiceless(const VoiceSound* zSound) {
  return zSound != nullptr && !zSound->isVoiced;
}

bool IsHissing(const VoiceSound* zSound) {
  return zSound != nullptr && zSound->kind == SoundKind::Fricative && !zSound->isVoiced;
}

/// A liquid or nasal that carries a syllable of its own: "over", "button".
bool IsSyllabic(const VoiceSound& zSound, const SoundContext& zContext) {
  const bool mayCarry =
      (zSound.kind == SoundKind::Glide || zSound.kind == SoundKind::Nasal) && zSound.isVoiced;
  const bool isAfterConsonant = zContext.before != nullptr && !IsVowel(*zContext.before) &&
                                zContext.before->kind != SoundKind::Nasal;
  const bool isBeforeVowel = zContext.after != nullptr && IsVowel(*zContext.after);
  return mayCarry && isAfterConsonant && !isBeforeVowel;
}

/// The duration of a vowel, which depends on what follows it. Source: Klatt (1979), see
/// sound_table.cpp.
double VowelMs(const VoiceSound& zSound, const SoundContext& zContext) {
  double ms = 0.8 * zSound.ms;
  if (!zContext.isLastVowel) {
    ms *= 0.7;
  }
  if (zContext.after == nullptr) {
    return ms * 1.2;
  }
  if (IsVowel(*zContext.after)) {
    return ms * 0.75;
  }
  if (IsObstruent(zContext.after)) {
    return ms * (IsVoiceless(zContext.after) ? 0.75 : 1.05);
  }
  return ms * 0.9;
}

double SonorantMs(const VoiceSound& zSound, const SoundContext& zContext) {
  if (IsSyllabic(zSound, zContext)) {
    return 170 * (zContext.after == nullptr ? 1.2 : 0.8);
  }
  double ms = zSound.ms;
  if (zContext.after == nullptr) {
    ms *= 1.5;
  } else if (IsObstruent(zContext.after) || IsObstruent(zContext.before)) {
    ms *= 0.85;
  }
  return ms;
}

double FricativeMs(const VoiceSound& zSound, const SoundContext& zContext) {
  double ms = zSound.ms;
  if (zContext.after == nullptr) {
    ms *= 1.4;
  } else if (IsObstruent(zContext.after) || IsObstruent(zContext.before)) {
    ms *= 0.8;
  }
  return ms;
}

/// The parts of a stop, which depend on its neighbours.
struct StopParts {
  double closureMs;
  double burst;
  double breathMs;
  double breath;
};

StopParts PartsOf(const VoiceSound& zSound, const SoundContext& zContext) {
  StopParts parts{zSound.closureMs, FromDecibels(zSound.burstDecibels), zSound.breathMs,
                  FromDecibels(-21)};
  if (zContext.before == nullptr) {
    parts.closureMs = zSound.isVoiced ? 30 : 4;  // after silence a closure cannot be heard
  } else if (IsObstruent(zContext.before)) {
    parts.closureMs *= 0.75;
  }
  if (IsHissing(zContext.before)) {
    parts.breathMs *= 0.25;  // "speak"
  }
  if (zContext.after == nullptr) {
    parts.breath *= 0.5;
    parts.burst *= 0.8;
  } else if (IsObstruent(zContext.after)) {
    parts.breathMs *= 0.3;
    parts.burst *= 0.5;
  } else if (zContext.after->kind == SoundKind::Glide) {
    parts.breathMs *= 1.2;
  }
  return parts;
}

std::vector<Phase> StopPhases(const VoiceSound& zSound, const SoundContext& zContext) {
  const double voice = zSound.isVoiced ? FromDecibels(zSound.voiceDecibels) : 0;
  const StopParts parts = PartsOf(zSound, zContext);
  std::vector<Phase> phases{{parts.closureMs, voice, 0, 0},
                            {zSound.burstMs, voice, 0, parts.burst, zSound.place}};
  if (parts.breathMs > 0) {
    phases.push_back({parts.breathMs, 0, parts.breath, parts.burst * 0.1, zSound.place});
  }
  if (zSound.ms > 0) {
    phases.push_back({FricativeMs(zSound, zContext), voice, 0, FromDecibels(zSound.noiseDecibels),
                      zSound.place});
  }
  return phases;
}

std::vector<Phase> PhasesOf(const VoiceSound& zSound, const SoundContext& zContext) {
  const double voice = FromDecibels(zSound.voiceDecibels);
  const double noise = FromDecibels(zSound.noiseDecibels);
  switch (zSound.kind) {
    case SoundKind::Vowel:
      return {{VowelMs(zSound, zContext), voice, 0, 0}};
    case SoundKind::Nasal:
      return {{SonorantMs(zSound, zContext), voice, 0, 0}};
    case SoundKind::Glide: {
      const double ms = SonorantMs(zSound, zContext);
      if (zSound.isVoiced) {
        return {{ms, IsSyllabic(zSound, zContext) ? 1 : voice, 0, 0}};
      }
      return {{ms * 0.6, 0, noise, 0}, {ms * 0.4, voice, noise * 0.3, 0}};
    }
    case SoundKind::Breath:
      return {
          {zSound.ms, zContext.before != nullptr && IsVowel(*zContext.before) ? 0.1 : 0, noise, 0}};
    case SoundKind::Fricative:
      return {{FricativeMs(zSound, zContext), zSound.isVoiced ? voice : 0, 0, noise, zSound.place}};
    case SoundKind::Stop:
      return StopPhases(zSound, zContext);
  }
  return {};
}

std::array<double, 3> AsArray(const Formants& zFormants) {
  return {zFormants.f1, zFormants.f2, zFormants.f3};
}

/// Rises from 0 to 1 without a corner at either end.
double Ease(double zShare) {
  const double share = std::clamp(zShare, 0.0, 1.0);
  return share * share * (3 - 2 * share);
}

/// The formants at the border of two sounds, and the durations of the transitions to and from them.
struct Meeting {
  std::array<double, 3> formants;
  double beforeMs;
  double afterMs;
};

Meeting Meet(const VoiceSound& zBefore, const VoiceSound& zAfter) {
  const bool isAfterStronger = zAfter.border.rank > zBefore.border.rank;
  const Border& border = isAfterStronger ? zAfter.border : zBefore.border;
  const auto before = AsArray(zBefore.to);
  const auto after = AsArray(zAfter.from);
  const auto& strong = isAfterStronger ? after : before;
  const auto& weak = isAfterStronger ? before : after;
  Meeting meeting{};
  for (std::size_t i = 0; i < strong.size(); ++i) {
    const double pull = i == 0 ? border.f1Pull : border.pull;
    meeting.formants[i] = strong[i] + pull * (weak[i] - strong[i]);
  }
  meeting.beforeMs = isAfterStronger ? border.outsideMs : border.insideMs;
  meeting.afterMs = isAfterStronger ? border.insideMs : border.outsideMs;
  return meeting;
}

/// The targets of a sound between its borders.
struct Course {
  std::array<double, 3> from;
  std::array<double, 3> to;
  double glideBegin;  // shares of the duration
  double glideEnd;
};

Course CourseOf(const VoiceSound& zSound, const SoundContext& zContext) {
  if (zSound.kind == SoundKind::Breath) {  // the mouth is already set for what follows
    const auto target =
        zContext.after != nullptr ? AsArray(zContext.after->from) : AsArray(zSound.from);
    return {target, target, 0, 1};
  }
  return {AsArray(zSound.from), AsArray(zSound.to), 0.15, 0.85};
}

/// The meeting with the sound before, at the formants that the tract had at the end of that sound.
Meeting MeetingBefore(const VoiceSound& zSound, const SoundContext& zContext,
                      const Course& zCourse) {
  if (zContext.before == nullptr) {
    return {zCourse.from, 0, 0};
  }
  Meeting meeting = Meet(*zContext.before, zSound);
  if (zContext.from != nullptr) {
    meeting.formants = zContext.from->formants;
  }
  return meeting;
}

void MoveFormants(std::vector<TractFrame>& zFrames, const VoiceSound& zSound,
                  const SoundContext& zContext) {
  const double ms = DurationMs(zFrames);
  const Course course = CourseOf(zSound, zContext);
  const Meeting left = MeetingBefore(zSound, zContext, course);
  const Meeting right =
      zContext.after != nullptr ? Meet(zSound, *zContext.after) : Meeting{course.to, 0, 0};
  const double stops = zSound.kind == SoundKind::Stop ? zSound.breathMs : 0;
  const double leftMs = std::min(left.afterMs, ms / 2);
  const double rightMs = std::min(std::max(right.beforeMs, stops), ms / 2);
  for (std::size_t i = 0; i < zFrames.size(); ++i) {
    const double at = MiddleMs(i);
    const double glide =
        Ease((at / ms - course.glideBegin) / (course.glideEnd - course.glideBegin));
    const double leftShare = leftMs > 0 ? 1 - Ease(at / leftMs) : 0;
    const double rightShare = rightMs > 0 ? 1 - Ease((ms - at) / rightMs) : 0;
    for (std::size_t k = 0; k < 3; ++k) {
      double formant = course.from[k] + glide * (course.to[k] - course.from[k]);
      formant += leftShare * (left.formants[k] - formant);
      formant += rightShare * (right.formants[k] - formant);
      zFrames[i].formants[k] = formant;
    }
  }
}

/// A nasal lowers the soft palate already before it begins and for a little while after it.
void LowerPalate(std::vector<TractFrame>& zFrames, const VoiceSound& zSound,
                 const SoundContext& zContext) {
  const bool isNasal = zSound.kind == SoundKind::Nasal;
  const bool isBefore = zContext.after != nullptr && zContext.after->kind == SoundKind::Nasal;
  const bool isAfter = zContext.before != nullptr && zContext.before->kind == SoundKind::Nasal;
  const bool mayPass = !IsObstruent(&zSound);
  const double ms = DurationMs(zFrames);
  for (std::size_t i = 0; i < zFrames.size(); ++i) {
    const double at = MiddleMs(i);
    double nasality = isNasal ? 1 : 0;
    if (!isNasal && mayPass) {
      nasality = std::max(isBefore ? 0.6 * (1 - Ease((ms - at) / 80)) : 0,
                          isAfter ? 0.6 * (1 - Ease(at / 40)) : 0);
    }
    zFrames[i].nasality = nasality;
  }
}

std::array<double, 3> BandwidthsOf(const VoiceSound& zSound, const TractFrame& zFrame) {
  if (zSound.kind == SoundKind::Nasal) {
    return {60, 200, 250};
  }
  const bool isOpen = zFrame.breath > 0 && zFrame.voice <= 0;  // open folds absorb sound
  return isOpen ? std::array<double, 3>{250, 150, 220} : std::array<double, 3>{50, 70, 110};
}

/// Fades the end of the last sound of a phrase.
void FadeOut(std::vector<TractFrame>& zFrames) {
  constexpr double fadeMs = 50;
  const double ms = DurationMs(zFrames);
  for (std::size_t i = 0; i < zFrames.size(); ++i) {
    const double left = ms - MiddleMs(i);
    const double share = Ease(left / std::min(fadeMs, ms / 2));
    zFrames[i].voice *= share;
    zFrames[i].noise *= share;
    zFrames[i].breath *= share;
  }
}

/// The amplitudes of the phases of a sound. At least one frame.
std::vector<TractFrame> FramesOf(const std::vector<Phase>& zPhases, const Manner& zManner) {
  std::vector<TractFrame> frames;
  double due = 0;  // a sum, so that rounding errors of the phases do not add up
  for (const Phase& phase : zPhases) {
    due += phase.ms / zManner.tempo;
    TractFrame frame{.voice = phase.voice * zManner.loudness,
                     .breath = std::max(phase.breath, RestingBreath) * zManner.loudness,
                     .noise = phase.noise * zManner.loudness,
                     .place = phase.place};
    if (zManner.isSoft) {
      frame.breath += 0.08 * frame.voice;
    }
    while (MiddleMs(frames.size()) < due) {
      frames.push_back(frame);
    }
  }
  if (frames.empty()) {
    frames.emplace_back();
  }
  return frames;
}

}  // namespace

bool IsVowel(const VoiceSound& zSound) {
  return zSound.kind == SoundKind::Vowel;
}

std::vector<TractFrame> Articulate(const VoiceSound& zSound, const SoundContext& zContext,
                                   const Manner& zManner) {
  std::vector<TractFrame> frames = FramesOf(PhasesOf(zSound, zContext), zManner);
  MoveFormants(frames, zSound, zContext);
  LowerPalate(frames, zSound, zContext);
  if (zContext.after == nullptr && zSound.kind != SoundKind::Stop) {
    FadeOut(frames);
  }
  for (TractFrame& frame : frames) {
    frame.bandwidths = BandwidthsOf(zSound, frame);
  }
  return frames;
}

}  // namespace loquitor
