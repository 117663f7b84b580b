#pragma once

#include <filesystem>
#include <string_view>

#include "voice/chip_sound.h"
#include "voice/wav_file.h"

namespace loquitor {

/// A WAV file of what the chip would say.
class SpokenFile {
 public:
  /// Creates the file. Throws std::system_error when it cannot.
  SpokenFile(const std::filesystem::path& zPath, PhraseLookup zPhrase);

  /// Appends codes, until they end or a Wait stops them. Throws std::system_error when the file
  /// cannot be written, and std::runtime_error when they play more than 200 stored phrases,
  /// as those that play each other in a circle do.
  void Say(std::string_view zCodes);

 private:
  WavFile file_;
  int phrasesLeft_ = 0;  // that this call of Say may still play
  ChipSound sound_;
};

}  // namespace loquitor
