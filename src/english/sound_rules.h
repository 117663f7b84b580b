#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "english/phones.h"
#include "english/sounds.h"

namespace loquitor {

/// A stretch of a word once its vowels are sounds of the chip: a vowel with its sound, or a
/// consonant that waits for one.
struct SoundPiece {
  Phone phone;      ///< of a vowel: the first phone that it covers
  bool isStressed;  ///< whether its syllable is
  bool isVowel;
  Sound vowel;  ///< the sound of a vowel; meaningless for a consonant
};

/// The first step from phones to sounds: `zPhones` with each vowel, and each vowel and r or l that
/// are one sound, as the chip speaks it. `zSpelling` is the word in lower case; how a vowel is
/// written decides some cases.
std::vector<SoundPiece> VowelsToSounds(const WordPhones& zPhones, std::string_view zSpelling);

/// The second step: the sounds of all pieces in order. Consonants have forms for front and back
/// vowels beside them.
std::vector<Sound> PiecesToSounds(const std::vector<SoundPiece>& zPieces,
                                  std::string_view zSpelling);

/// The sounds of a word, by both steps. The rules are explained in docs/english.md.
std::vector<Sound> SoundsOfWord(const WordPhones& zPhones, std::string_view zSpelling);

}  // namespace loquitor
