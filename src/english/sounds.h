#pragma once

#include <cstdint>
#include <initializer_list>

namespace loquitor {

/// The sounds of the chip that speech is made of, by their codes; named as their mnemonics.
enum class Sound : std::uint8_t {
  // clang-format off
  IY = 128, IH, EY, EH, AY, AX, UX, AW, OH, OW, UH, UW,
  MM, NE, NO, NGE, NGO, LE, LO, WW,
  RR, IYRR, EYRR, AXRR, AWRR, OWRR,
  EYIY, OHIY, OWIY, OHIH, IYEH, EHLE, IYUW, AXUW, IHWW, AYWW, OWWW,
  JH, VV, ZZ, ZH, DH,
  BE, BO, EB, OB, DE, DO, ED, OD, GE, GO, EG, OG,
  CH, HE, HO, WH, FF, SE, SO, SH, TH,
  TT, TU, TS, KE, KO, EK, OK, PE, PO,
  // clang-format on
};

constexpr bool IsOneOf(Sound zSound, std::initializer_list<Sound> zSounds) {
  for (const Sound sound : zSounds) {
    if (sound == zSound) {
      return true;
    }
  }
  return false;
}

/// Whether a vowel is spoken in the front of the mouth when it begins. The other vowels are back
/// vowels.
constexpr bool IsFrontVowel(Sound zVowel) {
  using enum Sound;
  return IsOneOf(
      zVowel, {IY, IH, EY, EH, AY, EYIY, EYRR, IYRR, IYEH, IYUW, EHLE, AXRR, RR, OHIH, OHIY, IHWW});
}

/// Whether a consonant after the vowel takes its back form.
constexpr bool ClosesBack(Sound zVowel) {
  using enum Sound;
  return IsOneOf(zVowel, {AX, UX, AW, OH, OW, UH, UW, AXUW, AYWW, OWWW, IYUW, IHWW});
}

}  // namespace loquitor
