#pragma once

#include <string_view>
#include <vector>

#include "english/phones.h"
#include "english/sounds.h"

namespace loquitor {

/// A part of a word between the two steps below: a vowel with its sound, or a consonant that has no
/// sound yet.
struct SoundPiece {
  Phone phone;      ///< of a vowel: the first phone that it covers
  bool isStressed;  ///< whether its syllable is
  bool isVowel;
  SpeechSound vowel;  ///< the sound of a vowel; meaningless for a consonant
};

/// The first step from phones to sounds: finds the sounds of the vowels. A sound may cover a vowel
/// and the y before it or the r or l after it. A vowel that is not spoken is left out. `zSpelling`
/// is the word in lower case; it decides some cases.
std::vector<SoundPiece> VowelsToSounds(const WordPhones& zPhones, std::string_view zSpelling);

/// The second step: the sounds of all pieces in order. The chip has forms of a consonant for front
/// and for back vowels.
std::vector<SpeechSound> PiecesToSounds(const std::vector<SoundPiece>& zPieces,
                                        std::string_view zSpelling);

/// The sounds of a word, by both steps. docs/english.md explains the rules.
std::vector<SpeechSound> SoundsOfWord(const WordPhones& zPhones, std::string_view zSpelling);

}  // namespace loquitor
