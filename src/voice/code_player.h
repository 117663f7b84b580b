#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "voice/articulation.h"
#include "voice/effects.h"
#include "voice/sound_table.h"
#include "voice/vocal_tract.h"

namespace loquitor {

/// The codes of the stored phrase in a slot; empty for a slot that is empty or does not exist.
using PhraseLookup = std::function<std::string(int zSlot)>;

/// Says a queue of codes: sounds, effects, pauses and commands, in order.
/// Codes that mean nothing to the chip are passed over.
class CodePlayer {
 public:
  static constexpr std::size_t MaxQueue = std::size_t{1} << 20;  ///< codes

  /// `zPatienceMs`: how long the first code after a silence waits for those that follow, because a
  /// sound is said differently by what comes next. 0 where all codes are there from the beginning.
  explicit CodePlayer(PhraseLookup zPhrase, int zPatienceMs = 0);

  /// Puts codes at the end of the queue. What does not fit is lost, as on the chip.
  void Add(std::string_view zCodes);

  /// Puts codes before everything that waits in the queue.
  void AddFirst(std::string_view zCodes);

  /// Empties the queue and stops the sound that is being said.
  void Clear();

  /// Clear, the settings of the voice at their defaults, and no Wait.
  void Reset();

  /// Goes on after a Wait.
  void Restart() { isWaiting_ = false; }

  /// True between a Wait and a Restart or Reset.
  bool IsWaiting() const { return isWaiting_; }

  /// True when nothing is left to say, or a Wait holds it.
  bool IsIdle() const;

  /// The next 2 ms.
  VocalTract::Samples Next();

 private:
  struct Settings {
    int volume = 96;
    int speed = 114;
    int pitch = 88;
    int bend = 5;
  };
  struct Modifiers {
    double tempo = 1;
    double loudness = 1;
    double pitch = 1;
    bool isSoft = false;
  };

  bool IsSaying() const;
  bool HasWholeCode() const;
  void StartNext();
  void Take(int zCode);
  void TakeValue(int zCode, int zValue);
  void TakeModifier(int zCode);
  void StartSound(std::uint8_t zCode);
  void StartPause(double zMs, bool zHasTransition);
  SoundContext Surroundings(const Sound& zSound) const;
  double Tempo() const;
  VocalTract::Samples Voice();

  const PhraseLookup phrase_;
  const int patienceFrames_;
  std::deque<std::uint8_t> queue_;
  Settings settings_;
  Modifiers modifiers_;  // of the next sound
  int repeats_ = 1;      // of the next sound
  std::uint8_t repeated_ = 0;
  int repeatsLeft_ = 0;  // of `repeated_`
  bool isWaiting_ = false;
  int framesToWait_ = 0;

  VocalTract tract_;
  std::vector<TractFrame> frames_;  // of the sound that is being said
  std::size_t nextFrame_ = 0;
  const Sound* before_ = nullptr;  // the sound that the next one is joined to
  TractFrame lastFrame_;
  double pitch_ = 0;
  EffectPlayer effect_;
};

}  // namespace loquitor
