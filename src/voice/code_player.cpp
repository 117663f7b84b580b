#include "voice/code_player.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "core/code_table.h"

namespace loquitor {

namespace {

constexpr double FrameMs = VocalTract::FrameMs;

struct Pause {
  double ms;
  bool hasTransition;
};
constexpr std::array<Pause, 7> Pauses{
    {{0, false}, {100, false}, {300, false}, {700, false}, {10, true}, {36, true}, {60, true}}};

/// Whether the sounds before `zCode` are said as the end of a phrase.
bool EndsPhrase(int zCode) {
  const bool isPlainPause = zCode >= 0 && zCode < static_cast<int>(Pauses.size()) &&
                            !Pauses[static_cast<std::size_t>(zCode)].hasTransition;
  // The look-ahead does not go into stored phrases.
  const bool isStoredPhrase = zCode == chip_code::Call || zCode == chip_code::Play;
  return isPlainPause || isStoredPhrase || zCode == chip_code::Wait || zCode == chip_code::Delay;
}

}  // namespace

CodePlayer::CodePlayer(PhraseLookup zPhrase, int zPatienceMs)
    : phrase_(std::move(zPhrase)), patienceFrames_(static_cast<int>(zPatienceMs / FrameMs)) {}

void CodePlayer::Add(std::string_view zCodes) {
  if (IsIdle() && !isWaiting_) {
    framesToWait_ = patienceFrames_;
  }
  const std::size_t room = MaxQueue - std::min(MaxQueue, queue_.size());
  for (const char byte : zCodes.substr(0, room)) {
    queue_.push_back(static_cast<std::uint8_t>(byte));
  }
}

void CodePlayer::AddFirst(std::string_view zCodes) {
  if (queue_.size() + zCodes.size() <= MaxQueue) {
    queue_.insert(queue_.begin(), zCodes.begin(), zCodes.end());
  }
}

void CodePlayer::Clear() {
  queue_.clear();
  frames_.clear();
  nextFrame_ = 0;
  effect_ = EffectPlayer();
  tract_.Silence();
  before_ = nullptr;
  modifiers_ = {};
  repeats_ = 1;
  repeatsLeft_ = 0;
  framesToWait_ = 0;
}

void CodePlayer::Reset() {
  Clear();
  settings_ = {};
  isWaiting_ = false;
}

bool CodePlayer::IsSaying() const {
  return nextFrame_ < frames_.size() || !effect_.IsOver() || repeatsLeft_ > 0;
}

bool CodePlayer::HasWholeCode() const {
  return !queue_.empty() && (queue_.size() > 1 || !TakesValue(queue_.front()));
}

bool CodePlayer::IsIdle() const {
  return isWaiting_ || (!IsSaying() && !HasWholeCode());
}

double CodePlayer::Tempo() const {
  return modifiers_.tempo * (settings_.speed + 14) / 128.0;
}

/// Takes codes until one of them sounds. A phrase that plays itself and has no sound would never
/// end, so the number of codes is limited.
void CodePlayer::StartNext() {
  constexpr int mostCodesAtOnce = 1000;
  if (framesToWait_ > 0) {
    --framesToWait_;
    return;
  }
  if (repeatsLeft_ > 0) {
    --repeatsLeft_;
    StartSound(repeated_);
    return;
  }
  for (int i = 0; i < mostCodesAtOnce && !IsSaying() && !isWaiting_ && HasWholeCode(); ++i) {
    const int taken = queue_.front();
    queue_.pop_front();
    if (TakesValue(taken)) {
      const int value = queue_.front();
      queue_.pop_front();
      TakeValue(taken, value);
    } else {
      Take(taken);
    }
  }
}

void CodePlayer::Take(int zCode) {
  const auto sound = static_cast<std::uint8_t>(zCode);
  if (zCode < static_cast<int>(Pauses.size())) {
    const Pause& pause = Pauses[static_cast<std::size_t>(zCode)];
    StartPause(pause.ms / Tempo(), pause.hasTransition);
  } else if (zCode == chip_code::Wait) {
    isWaiting_ = true;
    before_ = nullptr;
  } else if (zCode == chip_code::Reset) {
    settings_ = {};
  } else if (FindSound(sound) != nullptr || FindEffect(sound) != nullptr) {
    repeatsLeft_ = std::exchange(repeats_, 1);
    repeated_ = sound;
    if (repeatsLeft_ > 0) {
      --repeatsLeft_;
      StartSound(sound);
    }
  } else {
    TakeModifier(zCode);
  }
}

void CodePlayer::TakeModifier(int zCode) {
  switch (zCode) {
    case chip_code::Fast:
      modifiers_.tempo *= 1.5;
      break;
    case chip_code::Slow:
      modifiers_.tempo *= 0.5;
      break;
    case chip_code::Stress:
      modifiers_.tempo *= 0.8;
      modifiers_.loudness *= 1.25;
      modifiers_.pitch *= 1.08;
      break;
    case chip_code::Relax:
      modifiers_.tempo *= 1.1;
      modifiers_.loudness *= 0.8;
      modifiers_.pitch *= 0.95;
      break;
    case chip_code::Soft:
      modifiers_.loudness *= 0.5;
      modifiers_.isSoft = true;
      break;
    default:
      break;
  }
}

void CodePlayer::TakeValue(int zCode, int zValue) {
  switch (zCode) {
    case chip_code::Volume:
      settings_.volume = std::min(zValue, 127);
      break;
    case chip_code::Speed:
      settings_.speed = std::min(zValue, 127);
      break;
    case chip_code::Pitch:
      settings_.pitch = zValue;
      break;
    case chip_code::Bend:
      settings_.bend = std::min(zValue, 15);
      break;
    case chip_code::Repeat:
      repeats_ = zValue;
      break;
    case chip_code::Call:
    case chip_code::Play:
      AddFirst(phrase_(zValue));
      break;
    case chip_code::Delay:
      StartPause(10.0 * zValue, false);
      break;
    default:  // the codes of the output pins, which make no sound
      break;
  }
}

void CodePlayer::StartPause(double zMs, bool zHasTransition) {
  TractFrame silence = lastFrame_;
  silence.voice = silence.breath = silence.noise = 0;
  frames_.assign(static_cast<std::size_t>(std::lround(zMs / FrameMs)), silence);
  nextFrame_ = 0;
  if (!zHasTransition) {
    before_ = nullptr;
  }
}

/// Looks ahead in the queue to the end of this phrase.
SoundContext CodePlayer::Surroundings(const VoiceSound& zSound) const {
  SoundContext context{.before = before_, .from = before_ != nullptr ? &lastFrame_ : nullptr};
  if (repeatsLeft_ > 0) {
    context.after = &zSound;
  }
  for (std::size_t i = 0; i < queue_.size() && context.isLastVowel; ++i) {
    const int next = queue_[i];
    if (EndsPhrase(next) || FindEffect(queue_[i]) != nullptr) {
      break;
    }
    if (TakesValue(next)) {
      ++i;
    } else if (const VoiceSound* sound = FindSound(queue_[i])) {
      context.after = context.after != nullptr ? context.after : sound;
      context.isLastVowel = !IsVowel(*sound);
    }
  }
  return context;
}

void CodePlayer::StartSound(std::uint8_t zCode) {
  pitch_ = settings_.pitch * modifiers_.pitch;
  const double loudness = modifiers_.loudness * settings_.volume / 96.0;
  if (const Effect* effect = FindEffect(zCode)) {
    effect_.Start(*effect, Tempo(), loudness);
    before_ = nullptr;
    frames_.clear();
  } else if (const VoiceSound* sound = FindSound(zCode)) {
    frames_ = Articulate(*sound, Surroundings(*sound), {Tempo(), loudness, modifiers_.isSoft});
    before_ = sound;
  }
  nextFrame_ = 0;
  if (repeatsLeft_ == 0) {
    modifiers_ = {};
  }
}

VocalTract::Samples CodePlayer::Voice() {
  TractFrame frame{.formants = lastFrame_.formants, .bandwidths = lastFrame_.bandwidths};
  if (nextFrame_ < frames_.size()) {
    frame = frames_[nextFrame_++];
  } else {
    before_ = nullptr;  // the phrase is over
  }
  lastFrame_ = frame;
  const double bend = std::pow(1.03, settings_.bend - 5);
  for (double& formant : frame.formants) {
    formant *= bend;
  }
  return tract_.Speak(frame, pitch_);
}

VocalTract::Samples CodePlayer::Next() {
  if (!isWaiting_ && nextFrame_ >= frames_.size() && effect_.IsOver()) {
    StartNext();
  }
  VocalTract::Samples samples = Voice();
  for (double& sample : samples) {
    if (!effect_.IsOver()) {
      sample += effect_.Next();
    }
  }
  return samples;
}

}  // namespace loquitor
