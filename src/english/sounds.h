#pragma once

#include <cstdint>
#include <initializer_list>

namespace loquitor {

/// The sounds of the chip that speech is made of. The values are their codes, the names their
/// mnemonics.
enum class SpeechSound : std::uint8_t {
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

/// Whether `zSounds` has `zSound`.
constexpr bool IsOneOf(SpeechSound zSound, std::initializer_list<SpeechSound> zSounds) {
  for (const SpeechSound sound : zSounds) {
    if (sound == zSound) {
      return true;
    }
  }
  return false;
}

/// Whether a vowel begins in the front of the mouth. A consonant before it then takes its front
/// form, and otherwise its back form.
constexpr bool IsFrontVowel(SpeechSound zVowel) {
  using enum SpeechSound;
  return IsOneOf(
      zVowel, {IY, IH, EY, EH, AY, EYIY, EYRR, IYRR, IYEH, IYUW, EHLE, AXRR, RR, OHIH, OHIY, IHWW});
}

/// Whether a vowel ends in the back of the mouth. A consonant after it then takes its back form.
constexpr bool ClosesBack(SpeechSound zVowel) {
  using enum SpeechSound;
  return IsOneOf(zVowel, {AX, UX, AW, OH, OW, UH, UW, AXUW, AYWW, OWWW, IYUW, IHWW});
}

}  // namespace loquitor
