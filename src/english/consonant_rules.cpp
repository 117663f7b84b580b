// The consonants of a word: a table of rules. The first rule for a phone whose condition holds is
// applied. A consonant before a vowel takes the form for that vowel; any other consonant takes the
// form for the sound before it.

#include <algorithm>
#include <span>

#include "english/sound_rules.h"

namespace loquitor {

namespace {

/// A consonant in its word: what a condition may look at.
struct ConsonantPlace {
  std::span<const SoundPiece> pieces;
  std::size_t at;
  const std::vector<SpeechSound>& sounds;  ///< of the pieces before it
  std::string_view spelling;

  /// The piece `zSteps` after this one, null after the end.
  const SoundPiece* After(std::size_t zSteps) const {
    return at + zSteps < pieces.size() ? &pieces[at + zSteps] : nullptr;
  }
  const SoundPiece* Before() const { return at > 0 ? &pieces[at - 1] : nullptr; }

  bool IsBefore(Phone zPhone) const { return IsConsonant(After(1), zPhone); }
  bool IsAfter(Phone zPhone) const { return IsConsonant(Before(), zPhone); }
  bool IsBeforeVowel(std::size_t zSteps = 1) const {
    return After(zSteps) != nullptr && After(zSteps)->isVowel;
  }
  bool IsBeforeOneOf(std::initializer_list<SpeechSound> zVowels) const {
    return IsBeforeVowel() && IsOneOf(After(1)->vowel, zVowels);
  }
  bool IsBeforeBack(std::size_t zSteps = 1) const {
    return IsBeforeVowel(zSteps) && !IsFrontVowel(After(zSteps)->vowel);
  }
  bool IsAfterVowel() const { return Before() != nullptr && Before()->isVowel; }
  bool IsAfterSound(SpeechSound zSound) const { return !sounds.empty() && sounds.back() == zSound; }
  bool ClosesBackVowel() const { return IsAfterVowel() && ClosesBack(Before()->vowel); }

 private:
  static bool IsConsonant(const SoundPiece* zPiece, Phone zPhone) {
    return zPiece != nullptr && !zPiece->isVowel && zPiece->phone == zPhone;
  }
};

using Condition = bool (*)(const ConsonantPlace& zPlace);

constexpr Condition Always = [](const ConsonantPlace&) { return true; };
constexpr Condition BeforeVowel = [](const ConsonantPlace& p) { return p.IsBeforeVowel(); };
constexpr Condition BeforeBack = [](const ConsonantPlace& p) { return p.IsBeforeBack(); };
constexpr Condition ClosingBack = [](const ConsonantPlace& p) { return p.ClosesBackVowel(); };
constexpr Condition BeforeL = [](const ConsonantPlace& p) { return p.IsBefore(Phone::L); };
constexpr Condition BeforeR = [](const ConsonantPlace& p) { return p.IsBefore(Phone::R); };
constexpr Condition BeforeW = [](const ConsonantPlace& p) { return p.IsBefore(Phone::W); };
constexpr Condition BeforeRAndBack = [](const ConsonantPlace& p) {
  return p.IsBefore(Phone::R) && p.IsBeforeBack(2);
};
constexpr Condition BeforeWAndBack = [](const ConsonantPlace& p) {
  return p.IsBefore(Phone::W) && p.IsBeforeBack(2);
};
constexpr Condition FirstBeforeL = [](const ConsonantPlace& p) {
  return p.at == 0 && p.IsBefore(Phone::L);
};
constexpr Condition SpelledWh = [](const ConsonantPlace& p) {
  const bool isOnlyW = p.spelling.find('w') == p.spelling.rfind('w');
  return p.spelling.starts_with("wh") ? p.at == 0
                                      : isOnlyW && p.spelling.find("wh") != std::string_view::npos;
};
constexpr Condition LBeforeBackSound = [](const ConsonantPlace& p) {
  using enum SpeechSound;
  return (p.IsBeforeBack() && !p.IsBeforeOneOf({AWRR})) || p.IsBeforeOneOf({OHIH, OHIY, RR});
};
constexpr Condition LInBlackOrClear = [](const ConsonantPlace& p) {
  return (p.IsAfter(Phone::B) || p.IsAfter(Phone::G) || p.IsAfter(Phone::K)) &&
         p.IsBeforeOneOf({SpeechSound::AY, SpeechSound::IYRR});
};
constexpr Condition AfterAxrr = [](const ConsonantPlace& p) {
  return p.IsAfterSound(SpeechSound::AXRR);
};
constexpr Condition NClosingBack = [](const ConsonantPlace& p) {
  const bool isInFinalND = p.After(2) == nullptr && p.IsBefore(Phone::D);
  const bool isInFinalNT = p.After(2) == nullptr && p.IsBefore(Phone::T);
  const bool isAfterSchwa = p.IsAfterSound(SpeechSound::AX) && !p.Before()->isStressed;
  return p.ClosesBackVowel() && !isAfterSchwa && !isInFinalND &&
         (!isInFinalNT || p.IsAfterSound(SpeechSound::OH));
};
constexpr Condition DClosingBack = [](const ConsonantPlace& p) {
  return p.ClosesBackVowel() && !p.IsAfterSound(SpeechSound::UH);
};
constexpr Condition GBeforeBack = [](const ConsonantPlace& p) {
  const bool isBeforeGlide = p.IsBefore(Phone::L) || p.IsBefore(Phone::R) || p.IsBefore(Phone::W);
  return p.IsBeforeBack(isBeforeGlide ? 2 : 1);
};
constexpr Condition GBeforeVowelOrGlide = [](const ConsonantPlace& p) {
  return p.IsBeforeVowel() || p.IsBefore(Phone::L) || p.IsBefore(Phone::R) || p.IsBefore(Phone::W);
};
constexpr Condition BetweenVowelAndRR = [](const ConsonantPlace& p) {
  return p.IsAfterVowel() && p.IsBeforeOneOf({SpeechSound::RR});
};
constexpr Condition BetweenBackAndRR = [](const ConsonantPlace& p) {
  return p.ClosesBackVowel() && p.IsBeforeOneOf({SpeechSound::RR});
};
constexpr Condition KBeforeBack = [](const ConsonantPlace& p) {
  return p.IsBeforeBack() && !p.IsBeforeOneOf({SpeechSound::AWRR, SpeechSound::AYWW});
};
constexpr Condition BetweenOhAndS = [](const ConsonantPlace& p) {
  return p.IsAfterSound(SpeechSound::OH) && p.IsBefore(Phone::S);
};
constexpr Condition BetweenOhAndUnstressed = [](const ConsonantPlace& p) {
  return p.IsAfterSound(SpeechSound::OH) && p.IsBeforeVowel() && !p.After(1)->isStressed;
};
constexpr Condition BeforeSNotBeforeVowel = [](const ConsonantPlace& p) {
  return p.IsBefore(Phone::S) && !p.IsBeforeVowel(2);
};
constexpr Condition BeforeEhle = [](const ConsonantPlace& p) {
  return p.IsBeforeOneOf({SpeechSound::EHLE});
};
constexpr Condition BeforeVowelROrW = [](const ConsonantPlace& p) {
  return p.IsBeforeVowel() || p.IsBefore(Phone::R) || p.IsBefore(Phone::W);
};
constexpr Condition BeforeLNKAndBack = [](const ConsonantPlace& p) {
  return (p.IsBefore(Phone::L) || p.IsBefore(Phone::N) || p.IsBefore(Phone::K)) &&
         p.IsBeforeBack(2);
};

/// The y at the beginning of the vowel in value counts as a consonant.
constexpr Condition LClosingBackBeforeY = [](const ConsonantPlace& p) {
  return p.IsBeforeOneOf({SpeechSound::IYUW}) && p.ClosesBackVowel();
};
constexpr Condition BClosingBackSyllable = [](const ConsonantPlace& p) {
  const bool isLastSyllable =
      std::none_of(p.pieces.begin() + static_cast<std::ptrdiff_t>(p.at), p.pieces.end(),
                   [](const SoundPiece& piece) { return piece.isVowel; });
  return p.ClosesBackVowel() && isLastSyllable;
};

struct ConsonantRule {
  Phone phone;
  Condition condition;
  SpeechSound sound;
  std::size_t pieceCount = 1;
};

constexpr ConsonantRule ConsonantRules[] = {
    {Phone::M, Always, SpeechSound::MM},
    {Phone::W, SpelledWh, SpeechSound::WH},
    {Phone::W, Always, SpeechSound::WW},
    {Phone::R, Always, SpeechSound::RR},
    {Phone::V, Always, SpeechSound::VV},
    {Phone::Z, Always, SpeechSound::ZZ},
    {Phone::ZH, Always, SpeechSound::ZH},
    {Phone::DH, Always, SpeechSound::DH},
    {Phone::JH, Always, SpeechSound::JH},
    {Phone::CH, Always, SpeechSound::CH},
    {Phone::SH, Always, SpeechSound::SH},
    {Phone::TH, Always, SpeechSound::TH},
    {Phone::F, Always, SpeechSound::FF},
    {Phone::HH, BeforeBack, SpeechSound::HO},
    {Phone::HH, Always, SpeechSound::HE},
    {Phone::L, LBeforeBackSound, SpeechSound::LO},
    {Phone::L, LInBlackOrClear, SpeechSound::LO},
    {Phone::L, LClosingBackBeforeY, SpeechSound::LO},
    {Phone::L, BeforeVowel, SpeechSound::LE},
    {Phone::L, ClosingBack, SpeechSound::LO},
    {Phone::L, AfterAxrr, SpeechSound::LO},
    {Phone::L, Always, SpeechSound::LE},
    {Phone::N, BeforeBack, SpeechSound::NO},
    {Phone::N, BeforeVowel, SpeechSound::NE},
    {Phone::N, NClosingBack, SpeechSound::NO},
    {Phone::N, Always, SpeechSound::NE},
    {Phone::NG, ClosingBack, SpeechSound::NGO},
    {Phone::NG, Always, SpeechSound::NGE},
    {Phone::B, BeforeBack, SpeechSound::BO},
    {Phone::B, BeforeVowel, SpeechSound::BE},
    {Phone::B, BeforeRAndBack, SpeechSound::BO},
    {Phone::B, BeforeR, SpeechSound::BE},
    {Phone::B, FirstBeforeL, SpeechSound::BE},
    {Phone::B, BClosingBackSyllable, SpeechSound::OB},
    {Phone::B, Always, SpeechSound::EB},
    {Phone::D, BeforeBack, SpeechSound::DO},
    {Phone::D, BeforeVowel, SpeechSound::DE},
    {Phone::D, BeforeR, SpeechSound::DE},
    {Phone::D, BeforeWAndBack, SpeechSound::DO},
    {Phone::D, BeforeW, SpeechSound::DE},
    {Phone::D, DClosingBack, SpeechSound::OD},
    {Phone::D, Always, SpeechSound::ED},
    {Phone::G, GBeforeBack, SpeechSound::GO},
    {Phone::G, GBeforeVowelOrGlide, SpeechSound::GE},
    {Phone::G, ClosingBack, SpeechSound::OG},
    {Phone::G, Always, SpeechSound::EG},
    {Phone::K, BetweenBackAndRR, SpeechSound::OK},
    {Phone::K, BetweenVowelAndRR, SpeechSound::EK},
    {Phone::K, KBeforeBack, SpeechSound::KO},
    {Phone::K, BeforeVowel, SpeechSound::KE},
    {Phone::K, BeforeW, SpeechSound::KO},
    {Phone::K, BeforeL, SpeechSound::KE},
    {Phone::K, BeforeRAndBack, SpeechSound::KO},
    {Phone::K, BeforeR, SpeechSound::KE},
    {Phone::K, BetweenOhAndS, SpeechSound::KO},
    {Phone::K, ClosingBack, SpeechSound::OK},
    {Phone::K, Always, SpeechSound::EK},
    {Phone::P, BeforeBack, SpeechSound::PO},
    {Phone::P, BetweenOhAndUnstressed, SpeechSound::PO},
    {Phone::P, Always, SpeechSound::PE},
    {Phone::T, BeforeSNotBeforeVowel, SpeechSound::TS, 2},
    {Phone::T, BeforeEhle, SpeechSound::TT},
    {Phone::T, BeforeVowelROrW, SpeechSound::TU},
    {Phone::T, Always, SpeechSound::TT},
    {Phone::S, BeforeBack, SpeechSound::SO},
    {Phone::S, BeforeW, SpeechSound::SO},
    {Phone::S, BeforeLNKAndBack, SpeechSound::SO},
    {Phone::S, Always, SpeechSound::SE},
};

/// There always is one: each consonant has a rule with the condition Always. Y never comes here,
/// because a vowel rule takes it.
const ConsonantRule& RuleAt(const ConsonantPlace& zPlace) {
  return *std::find_if(
      std::begin(ConsonantRules), std::end(ConsonantRules), [&zPlace](const ConsonantRule& zRule) {
        return zRule.phone == zPlace.pieces[zPlace.at].phone && zRule.condition(zPlace);
      });
}

}  // namespace

std::vector<SpeechSound> PiecesToSounds(const std::vector<SoundPiece>& zPieces,
                                        std::string_view zSpelling) {
  std::vector<SpeechSound> sounds;
  for (std::size_t at = 0; at < zPieces.size();) {
    if (zPieces[at].isVowel) {
      sounds.push_back(zPieces[at++].vowel);
      continue;
    }
    const ConsonantRule& rule = RuleAt({zPieces, at, sounds, zSpelling});
    sounds.push_back(rule.sound);
    at += rule.pieceCount;
  }
  return sounds;
}

}  // namespace loquitor
