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

/// The codes of the stored phrase in slot `zSlot`, which may be 0 to 255. Empty for a slot that is
/// empty or does not exist.
using PhraseLookup = std::function<std::string(int zSlot)>;

/// Says a queue of codes in order: sounds, effects, pauses and commands. Skips codes that mean
/// nothing to the chip.
class CodePlayer {
 public:
  static constexpr std::size_t MaxQueue = std::size_t{1} << 20;  ///< codes

  /// `zPhrase` is called for the codes 28 and 29. `zPatienceMs` is how long the first code after a
  /// silence waits for further codes, because the next sound changes how a sound is said. 0 is
  /// right where all codes are added at once.
  explicit CodePlayer(PhraseLookup zPhrase, int zPatienceMs = 0);

  /// Adds codes to the end of the queue. Codes that do not fit are lost, as on the chip.
  void Add(std::string_view zCodes);

  /// Puts codes in front of the queue. If they do not all fit, all of them are lost.
  void AddFirst(std::string_view zCodes);

  /// Empties the queue and stops the present sound.
  void Clear();

  /// Clear, and ends a Wait and returns the voice's settings to their defaults.
  void Reset();

  /// Ends a Wait.
  void Restart() { isWaiting_ = false; }

  /// True between a Wait and a Restart or Reset.
  bool IsWaiting() const { return isWaiting_; }

  /// True when nothing is left to say, or during a Wait. A command at the end of the queue whose
  /// value is missing does not count.
  bool IsIdle() const;

  /// The samples of the next 2 ms.
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
  SoundContext Surroundings(const VoiceSound& zSound) const;
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
  const VoiceSound* before_ = nullptr;  // the sound that the next one follows without a gap
  TractFrame lastFrame_;
  double pitch_ = 0;
  EffectPlayer effect_;
};

}  // namespace loquitor
