#pragma once

#include <filesystem>
#include <string_view>

#include "voice/chip_sound.h"
#include "voice/wav_file.h"

namespace loquitor {

/// A WAV file of what the chip would say.
class SpokenFile {
 public:
  /// Creates the file. Throws std::system_error when that fails. `zPhrase` has the stored phrases.
  SpokenFile(const std::filesystem::path& zPath, PhraseLookup zPhrase);

  /// Appends the sound of a code string, up to its end or its first Wait. Throws std::system_error
  /// when the file cannot be written. Throws std::runtime_error when the codes play more than 200
  /// stored phrases, as phrases that play each other in a circle would.
  void Say(std::string_view zCodes);

 private:
  WavFile file_;
  int phrasesLeft_ = 0;  // how many phrases this call of Say may still play
  ChipSound sound_;
};

}  // namespace loquitor
