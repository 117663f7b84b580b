#include "sim/live_sound.h"

#include <algorithm>
#include <utility>

#include "core/eeprom.h"
#include "voice/filters.h"

namespace loquitor {

namespace {

/// How long the first code after a silence waits for the next ones. They follow within 5 ms even at
/// 2400 baud.
constexpr int PatienceMs = 16;

constexpr std::size_t KeptSilence = VoiceSampleRate / 2;

std::string Bytes(int zCode, int zValue) {
  return {static_cast<char>(zCode), static_cast<char>(zValue)};
}

}  // namespace

LiveSound::LiveSound()
    : sound_(
          [this](int zSlot) {
            const auto slot = static_cast<std::size_t>(zSlot);
            return slot < phrases_.size() ? phrases_[slot] : std::string();
          },
          PatienceMs),
      silence_(KeptSilence) {}

void LiveSound::Hear(const ChipEvent& zEvent, const VirtualChip& zChip) {
  const std::lock_guard lock(mutex_);
  switch (zEvent.kind) {
    case ChipEventKind::Code:
      sound_.Say(std::string(1, static_cast<char>(zEvent.number)));
      break;
    case ChipEventKind::ControlCode:
    case ChipEventKind::Play:
    case ChipEventKind::Call:
      sound_.Say(Bytes(zEvent.number, zEvent.value));
      break;
    case ChipEventKind::Reset:
      sound_.Reset();
      sound_.RunEvent(DecodeEvent(zChip.Eeprom(eeprom::PowerUp)));
      break;
    case ChipEventKind::RegisterWrite:
      sound_.SetRegister(zEvent.number, zEvent.value);
      break;
    case ChipEventKind::MemoryWrite:
      for (std::size_t i = 0; i < phrases_.size(); ++i) {
        phrases_[i] = zChip.StoredPhrase(static_cast<int>(i));
      }
      break;
    case ChipEventKind::StoredPhrase:
    case ChipEventKind::Test:
    case ChipEventKind::StoreConfiguration:
    case ChipEventKind::Sync:
    case ChipEventKind::Unknown:
    case ChipEventKind::Incomplete:
      break;
  }
}

void LiveSound::RunEvent(const EventAction& zEvent) {
  const std::lock_guard lock(mutex_);
  sound_.RunEvent(zEvent);
}

void LiveSound::Render(std::span<std::int16_t> zSamples) {
  const std::lock_guard lock(mutex_);
  silence_ = sound_.IsQuiet() ? std::min(silence_ + zSamples.size(), KeptSilence) : 0;
  if (silence_ == KeptSilence) {
    std::fill(zSamples.begin(), zSamples.end(), std::int16_t{0});
    return;
  }
  sound_.Render(zSamples);
  if (isRecording_) {
    recorded_.insert(recorded_.end(), zSamples.begin(), zSamples.end());
  }
}

void LiveSound::Record() {
  const std::lock_guard lock(mutex_);
  isRecording_ = true;
}

std::vector<std::int16_t> LiveSound::TakeRecorded() {
  const std::lock_guard lock(mutex_);
  return std::exchange(recorded_, {});
}

bool LiveSound::IsSounding() const {
  const std::lock_guard lock(mutex_);
  return !sound_.IsQuiet() || silence_ < KeptSilence;
}

bool LiveSound::IsSpeaking() const {
  const std::lock_guard lock(mutex_);
  return sound_.IsSpeaking();
}

}  // namespace loquitor
