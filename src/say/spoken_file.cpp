#include "say/spoken_file.h"

#include <cstdint>
#include <stdexcept>
#include <utility>
#include <vector>

#include "voice/filters.h"

namespace loquitor {

SpokenFile::SpokenFile(const std::filesystem::path& zPath, PhraseLookup zPhrase)
    : file_(zPath), sound_([this, phrase = std::move(zPhrase)](int zSlot) {
        if (--phrasesLeft_ < 0) {
          throw std::runtime_error("the stored phrases play each other without end");
        }
        return phrase(zSlot);
      }) {}

void SpokenFile::Say(std::string_view zCodes) {
  constexpr int mostPhrases = 200;
  constexpr int ringingMs = 20;  // of the last sound
  phrasesLeft_ = mostPhrases;
  sound_.Say(zCodes);
  std::vector<std::int16_t> samples(VoiceSampleRate / 1000 * ringingMs);
  const bool isSilent = sound_.IsQuiet();
  while (!sound_.IsQuiet()) {
    sound_.Render(samples);
    file_.Write(samples);
  }
  if (!isSilent) {
    sound_.Render(samples);
    file_.Write(samples);
  }
}

}  // namespace loquitor
