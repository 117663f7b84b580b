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
  const std::vector<Sound>& sounds;  ///< of the pieces before it
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
  bool IsBeforeOneOf(std::initializer_list<Sound> zVowels) const {
    return IsBeforeVowel() && IsOneOf(After(1)->vowel, zVowels);
  }
  bool IsBeforeBack(std::size_t zSteps = 1) const {
    return IsBeforeVowel(zSteps) && !IsFrontVowel(After(zSteps)->vowel);
  }
  bool IsAfterVowel() const { return Before() != nullptr && Before()->isVowel; }
  bool IsAfterSound(Sound zSound) const { return !sounds.empty() && sounds.back() == zSound; }
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
  using enum Sound;
  return (p.IsBeforeBack() && !p.IsBeforeOneOf({AWRR})) || p.IsBeforeOneOf({OHIH, OHIY, RR});
};
constexpr Condition LInBlackOrClear = [](const ConsonantPlace& p) {
  return (p.IsAfter(Phone::B) || p.IsAfter(Phone::G) || p.IsAfter(Phone::K)) &&
         p.IsBeforeOneOf({Sound::AY, Sound::IYRR});
};
constexpr Condition AfterAxrr = [](const ConsonantPlace& p) { return p.IsAfterSound(Sound::AXRR); };
constexpr Condition NClosingBack = [](const ConsonantPlace& p) {
  const bool isInFinalND = p.After(2) == nullptr && p.IsBefore(Phone::D);
  const bool isInFinalNT = p.After(2) == nullptr && p.IsBefore(Phone::T);
  const bool isAfterSchwa = p.IsAfterSound(Sound::AX) && !p.Before()->isStressed;
  return p.ClosesBackVowel() && !isAfterSchwa && !isInFinalND &&
         (!isInFinalNT || p.IsAfterSound(Sound::OH));
};
constexpr Condition DClosingBack = [](const ConsonantPlace& p) {
  return p.ClosesBackVowel() && !p.IsAfterSound(Sound::UH);
};
constexpr Condition GBeforeBack = [](const ConsonantPlace& p) {
  const bool isBeforeGlide = p.IsBefore(Phone::L) || p.IsBefore(Phone::R) || p.IsBefore(Phone::W);
  return p.IsBeforeBack(isBeforeGlide ? 2 : 1);
};
constexpr Condition GBeforeVowelOrGlide = [](const ConsonantPlace& p) {
  return p.IsBeforeVowel() || p.IsBefore(Phone::L) || p.IsBefore(Phone::R) || p.IsBefore(Phone::W);
};
constexpr Condition BetweenVowelAndRR = [](const ConsonantPlace& p) {
  return p.IsAfterVowel() && p.IsBeforeOneOf({Sound::RR});
};
constexpr Condition BetweenBackAndRR = [](const ConsonantPlace& p) {
  return p.ClosesBackVowel() && p.IsBeforeOneOf({Sound::RR});
};
constexpr Condition KBeforeBack = [](const ConsonantPlace& p) {
  return p.IsBeforeBack() && !p.IsBeforeOneOf({Sound::AWRR, Sound::AYWW});
};
constexpr Condition BetweenOhAndS = [](const ConsonantPlace& p) {
  return p.IsAfterSound(Sound::OH) && p.IsBefore(Phone::S);
};
constexpr Condition BetweenOhAndUnstressed = [](const ConsonantPlace& p) {
  return p.IsAfterSound(Sound::OH) && p.IsBeforeVowel() && !p.After(1)->isStressed;
};
constexpr Condition BeforeSNotBeforeVowel = [](const ConsonantPlace& p) {
  return p.IsBefore(Phone::S) && !p.IsBeforeVowel(2);
};
constexpr Condition BeforeEhle = [](const ConsonantPlace& p) {
  return p.IsBeforeOneOf({Sound::EHLE});
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
  return p.IsBeforeOneOf({Sound::IYUW}) && p.ClosesBackVowel();
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
  Sound sound;
  std::size_t pieceCount = 1;
};

constexpr ConsonantRule ConsonantRules[] = {
    {Phone::M, Always, Sound::MM},
    {Phone::W, SpelledWh, Sound::WH},
    {Phone::W, Always, Sound::WW},
    {Phone::R, Always, Sound::RR},
    {Phone::V, Always, Sound::VV},
    {Phone::Z, Always, Sound::ZZ},
    {Phone::ZH, Always, Sound::ZH},
    {Phone::DH, Always, Sound::DH},
    {Phone::JH, Always, Sound::JH},
    {Phone::CH, Always, Sound::CH},
    {Phone::SH, Always, Sound::SH},
    {Phone::TH, Always, Sound::TH},
    {Phone::F, Always, Sound::FF},
    {Phone::HH, BeforeBack, Sound::HO},
    {Phone::HH, Always, Sound::HE},
    {Phone::L, LBeforeBackSound, Sound::LO},
    {Phone::L, LInBlackOrClear, Sound::LO},
    {Phone::L, LClosingBackBeforeY, Sound::LO},
    {Phone::L, BeforeVowel, Sound::LE},
    {Phone::L, ClosingBack, Sound::LO},
    {Phone::L, AfterAxrr, Sound::LO},
    {Phone::L, Always, Sound::LE},
    {Phone::N, BeforeBack, Sound::NO},
    {Phone::N, BeforeVowel, Sound::NE},
    {Phone::N, NClosingBack, Sound::NO},
    {Phone::N, Always, Sound::NE},
    {Phone::NG, ClosingBack, Sound::NGO},
    {Phone::NG, Always, Sound::NGE},
    {Phone::B, BeforeBack, Sound::BO},
    {Phone::B, BeforeVowel, Sound::BE},
    {Phone::B, BeforeRAndBack, Sound::BO},
    {Phone::B, BeforeR, Sound::BE},
    {Phone::B, FirstBeforeL, Sound::BE},
    {Phone::B, BClosingBackSyllable, Sound::OB},
    {Phone::B, Always, Sound::EB},
    {Phone::D, BeforeBack, Sound::DO},
    {Phone::D, BeforeVowel, Sound::DE},
    {Phone::D, BeforeR, Sound::DE},
    {Phone::D, BeforeWAndBack, Sound::DO},
    {Phone::D, BeforeW, Sound::DE},
    {Phone::D, DClosingBack, Sound::OD},
    {Phone::D, Always, Sound::ED},
    {Phone::G, GBeforeBack, Sound::GO},
    {Phone::G, GBeforeVowelOrGlide, Sound::GE},
    {Phone::G, ClosingBack, Sound::OG},
    {Phone::G, Always, Sound::EG},
    {Phone::K, BetweenBackAndRR, Sound::OK},
    {Phone::K, BetweenVowelAndRR, Sound::EK},
    {Phone::K, KBeforeBack, Sound::KO},
    {Phone::K, BeforeVowel, Sound::KE},
    {Phone::K, BeforeW, Sound::KO},
    {Phone::K, BeforeL, Sound::KE},
    {Phone::K, BeforeRAndBack, Sound::KO},
    {Phone::K, BeforeR, Sound::KE},
    {Phone::K, BetweenOhAndS, Sound::KO},
    {Phone::K, ClosingBack, Sound::OK},
    {Phone::K, Always, Sound::EK},
    {Phone::P, BeforeBack, Sound::PO},
    {Phone::P, BetweenOhAndUnstressed, Sound::PO},
    {Phone::P, Always, Sound::PE},
    {Phone::T, BeforeSNotBeforeVowel, Sound::TS, 2},
    {Phone::T, BeforeEhle, Sound::TT},
    {Phone::T, BeforeVowelROrW, Sound::TU},
    {Phone::T, Always, Sound::TT},
    {Phone::S, BeforeBack, Sound::SO},
    {Phone::S, BeforeW, Sound::SO},
    {Phone::S, BeforeLNKAndBack, Sound::SO},
    {Phone::S, Always, Sound::SE},
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

std::vector<Sound> PiecesToSounds(const std::vector<SoundPiece>& zPieces,
                                  std::string_view zSpelling) {
  std::vector<Sound> sounds;
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
