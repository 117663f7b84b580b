// The vowels of a word: a table of rules. The first rule whose phones are at a place and whose
// condition holds is applied. Phones for which there is no rule are consonants.

#include <algorithm>
#include <array>
#include <initializer_list>
#include <span>

#include "english/sound_rules.h"
#include "english/vowel_spelling.h"

namespace loquitor {

namespace {

/// A place in a word: what a condition may look at.
struct VowelPlace {
  std::span<const Segment> phones;
  std::size_t at;             ///< the first phone that the rule takes
  std::size_t next;           ///< the first phone after those
  std::string_view spelling;  ///< the word
  std::string_view letters;   ///< that spell the vowel; empty when unknown
  bool isFirstVowel;

  bool IsAtEnd() const { return next == phones.size(); }
  bool IsStressed() const { return phones[at].isStressed; }
  bool IsAfter(Phone zPhone) const { return at > 0 && phones[at - 1].phone == zPhone; }
  bool IsBefore(Phone zPhone) const { return !IsAtEnd() && phones[next].phone == zPhone; }
  bool IsBeforeVowel() const { return !IsAtEnd() && loquitor::IsVowel(phones[next].phone); }
  bool IsBeforeAny(std::initializer_list<Phone> zPhones) const {
    return std::any_of(zPhones.begin(), zPhones.end(), [this](Phone p) { return IsBefore(p); });
  }
};

using Condition = bool (*)(const VowelPlace& zPlace);

constexpr Condition Always = [](const VowelPlace&) { return true; };
constexpr Condition AtEnd = [](const VowelPlace& p) { return p.IsAtEnd(); };
constexpr Condition NotBeforeVowel = [](const VowelPlace& p) { return !p.IsBeforeVowel(); };
constexpr Condition NotBeforeL = [](const VowelPlace& p) { return !p.IsBefore(Phone::L); };
constexpr Condition NotBeforeLOrR = [](const VowelPlace& p) {
  return !p.IsBeforeAny({Phone::L, Phone::R});
};
constexpr Condition BeforeR = [](const VowelPlace& p) { return p.IsBefore(Phone::R); };
constexpr Condition BetweenMAndR = [](const VowelPlace& p) {
  return p.IsAfter(Phone::M) && p.IsBefore(Phone::R);
};
constexpr Condition StressedOrFirst = [](const VowelPlace& p) {
  return p.IsStressed() || p.at == 0;
};
constexpr Condition UnstressedSyllabic = [](const VowelPlace& p) {
  return !p.IsStressed() && !p.IsBeforeVowel() && !p.IsBefore(Phone::Y);
};
/// As in button, where the t leads straight to the n.
constexpr Condition InFinalTN = [](const VowelPlace& p) {
  return p.at >= 2 && p.IsAfter(Phone::T) && IsVowel(p.phones[p.at - 2].phone) &&
         p.IsBefore(Phone::N) && p.next + 1 == p.phones.size();
};
constexpr Condition BeforeJHOrNJH = [](const VowelPlace& p) {
  const bool isBeforeN = p.IsBefore(Phone::N) && p.next + 1 < p.phones.size();
  return p.IsBefore(Phone::JH) || (isBeforeN && p.phones[p.next + 1].phone == Phone::JH);
};
/// As in to, today and together.
constexpr Condition InFirstTo = [](const VowelPlace& p) {
  return p.at == 1 && p.IsAfter(Phone::T) && p.letters == "o";
};
constexpr Condition SpelledE = [](const VowelPlace& p) {
  return p.letters == "e" && p.spelling != "the";
};
constexpr Condition SpelledLikeI = [](const VowelPlace& p) {
  return p.letters == "i" || p.letters == "ui" || p.letters == "y" || p.letters == "ai";
};
constexpr Condition InFinalDay = [](const VowelPlace& p) {
  return p.IsAtEnd() && !p.IsStressed() && p.spelling.ends_with("day");
};
/// As in begin or repeat.
constexpr Condition InPrefixSpelledE = [](const VowelPlace& p) {
  return p.isFirstVowel && !p.IsStressed() && p.letters == "e" && p.at > 0;
};
constexpr Condition BeforeDHOrEnd = [](const VowelPlace& p) {
  return p.IsAtEnd() || p.IsBefore(Phone::DH);
};
/// As in spa or caution.
constexpr Condition SpelledANotAfterW = [](const VowelPlace& p) {
  return p.letters.starts_with('a') && !p.IsAfter(Phone::W);
};
constexpr Condition BeforeFThNgGNotSpelledA = [](const VowelPlace& p) {
  return p.IsBeforeAny({Phone::F, Phone::TH, Phone::NG, Phone::G}) && !p.letters.starts_with('a');
};
constexpr Condition SpelledOBeforeSK = [](const VowelPlace& p) {
  return p.letters == "o" && p.IsBeforeAny({Phone::S, Phone::K});
};
constexpr Condition AfterL = [](const VowelPlace& p) { return p.IsAfter(Phone::L); };
constexpr Condition AtEndAfterTNZ = [](const VowelPlace& p) {
  return p.IsAtEnd() && (p.IsAfter(Phone::T) || p.IsAfter(Phone::N) || p.IsAfter(Phone::Z));
};
constexpr Condition BeforeVoiceless = [](const VowelPlace& p) {
  using enum Phone;
  return p.IsBeforeAny({P, T, K, S, F, TH, CH, SH});
};
constexpr Condition BeforeNZ = [](const VowelPlace& p) {
  return p.IsBeforeAny({Phone::N, Phone::Z});
};

struct VowelRule {
  std::array<Phone, 2> phones;
  std::size_t phoneCount;
  Condition condition;
  SpeechSound sound;
  bool isSilent = false;

  constexpr VowelRule(Phone zPhone, Condition zCondition, SpeechSound zSound)
      : phones{zPhone}, phoneCount(1), condition(zCondition), sound(zSound) {}
  constexpr VowelRule(Phone zFirst, Phone zSecond, Condition zCondition, SpeechSound zSound)
      : phones{zFirst, zSecond}, phoneCount(2), condition(zCondition), sound(zSound) {}
  /// A vowel that is not spoken.
  constexpr VowelRule(Phone zPhone, Condition zCondition)
      : phones{zPhone}, phoneCount(1), condition(zCondition), sound(), isSilent(true) {}
};

// An AH without stress counts as AX here.
constexpr VowelRule VowelRules[] = {
    {Phone::Y, Phone::UW, Always, SpeechSound::IYUW},
    {Phone::Y, Phone::UH, Always, SpeechSound::IYUW},
    {Phone::Y, Phone::EH, NotBeforeLOrR, SpeechSound::IYEH},
    {Phone::Y, Phone::AX, NotBeforeL, SpeechSound::IYEH},
    {Phone::Y, Always, SpeechSound::IYEH},
    {Phone::IY, Phone::R, Always, SpeechSound::IYRR},
    {Phone::IH, Phone::R, Always, SpeechSound::IYRR},
    {Phone::EH, Phone::R, Always, SpeechSound::EYRR},
    {Phone::EY, Phone::R, Always, SpeechSound::EYRR},
    {Phone::AE, Phone::R, Always, SpeechSound::EYRR},
    {Phone::AO, Phone::R, Always, SpeechSound::OWRR},
    {Phone::OW, Phone::R, Always, SpeechSound::OWRR},
    {Phone::AA, Phone::R, NotBeforeVowel, SpeechSound::AWRR},
    {Phone::AA, BetweenMAndR, SpeechSound::OH},
    {Phone::AA, BeforeR, SpeechSound::AW},
    {Phone::AH, Phone::R, Always, SpeechSound::AXRR},
    {Phone::AX, Phone::R, NotBeforeVowel, SpeechSound::RR},
    {Phone::ER, StressedOrFirst, SpeechSound::AXRR},
    {Phone::ER, Always, SpeechSound::RR},
    {Phone::AX, Phone::L, UnstressedSyllabic, SpeechSound::EHLE},
    {Phone::EH, Phone::L, AtEnd, SpeechSound::EHLE},
    {Phone::AX, InFinalTN},
    {Phone::AX, BeforeJHOrNJH, SpeechSound::IH},
    {Phone::AX, InFirstTo, SpeechSound::UW},
    {Phone::AX, SpelledE, SpeechSound::EH},
    {Phone::AX, SpelledLikeI, SpeechSound::IH},
    {Phone::AX, Always, SpeechSound::AX},
    {Phone::AH, Always, SpeechSound::AX},
    {Phone::IY, InFinalDay, SpeechSound::EYIY},
    {Phone::IY, Always, SpeechSound::IY},
    {Phone::EH, Always, SpeechSound::EH},
    {Phone::AE, Always, SpeechSound::AY},
    {Phone::UH, Always, SpeechSound::UH},
    {Phone::EY, Always, SpeechSound::EYIY},
    {Phone::OY, Always, SpeechSound::OWIY},
    {Phone::IH, InPrefixSpelledE, SpeechSound::IY},
    {Phone::IH, Always, SpeechSound::IH},
    {Phone::AA, BeforeDHOrEnd, SpeechSound::AW},
    {Phone::AA, SpelledANotAfterW, SpeechSound::AW},
    {Phone::AA, Always, SpeechSound::OH},
    {Phone::AO, BeforeFThNgGNotSpelledA, SpeechSound::OH},
    {Phone::AO, SpelledOBeforeSK, SpeechSound::OH},
    {Phone::AO, Always, SpeechSound::AW},
    {Phone::OW, AtEnd, SpeechSound::OWWW},
    {Phone::OW, Always, SpeechSound::OW},
    {Phone::UW, AfterL, SpeechSound::UX},
    {Phone::UW, AtEndAfterTNZ, SpeechSound::IHWW},
    {Phone::UW, Always, SpeechSound::UW},
    {Phone::AY, BeforeVoiceless, SpeechSound::OHIY},
    {Phone::AY, Always, SpeechSound::OHIH},
    {Phone::AW, BeforeNZ, SpeechSound::AXUW},
    {Phone::AW, Always, SpeechSound::AYWW},
};

bool Takes(const VowelRule& zRule, VowelPlace& zPlace) {
  zPlace.next = zPlace.at + zRule.phoneCount;
  if (zPlace.next > zPlace.phones.size()) {
    return false;
  }
  for (std::size_t i = 0; i < zRule.phoneCount; ++i) {
    if (zPlace.phones[zPlace.at + i].phone != zRule.phones[i]) {
      return false;
    }
  }
  return zRule.condition(zPlace);
}

/// The rule for `zPlace`; null for a consonant. Sets `zPlace.next`.
const VowelRule* RuleAt(VowelPlace& zPlace) {
  const auto* const rule =
      std::find_if(std::begin(VowelRules), std::end(VowelRules),
                   [&zPlace](const VowelRule& zRule) { return Takes(zRule, zPlace); });
  return rule == std::end(VowelRules) ? nullptr : rule;
}

std::size_t VowelCount(std::span<const Segment> zPhones) {
  return static_cast<std::size_t>(std::count_if(zPhones.begin(), zPhones.end(),
                                                [](const Segment& s) { return IsVowel(s.phone); }));
}

WordPhones WithSchwas(WordPhones zPhones) {
  for (Segment& segment : zPhones) {
    if (segment.phone == Phone::AH && !segment.isStressed) {
      segment.phone = Phone::AX;
    }
  }
  return zPhones;
}

}  // namespace

std::vector<SoundPiece> VowelsToSounds(const WordPhones& zPhones, std::string_view zSpelling) {
  const WordPhones phones = WithSchwas(zPhones);
  const std::vector<std::string_view> letters = VowelSpelling(zSpelling, VowelCount(phones));
  std::vector<SoundPiece> pieces;
  std::size_t vowels = 0;
  VowelPlace place{phones, 0, 0, zSpelling, {}, true};
  for (; place.at < phones.size(); place.at = place.next) {
    place.letters = vowels < letters.size() ? letters[vowels] : std::string_view();
    place.isFirstVowel = vowels == 0;
    const Segment& first = phones[place.at];
    const VowelRule* const rule = RuleAt(place);
    if (rule == nullptr) {
      place.next = place.at + 1;
      pieces.push_back({first.phone, first.isStressed, false, SpeechSound()});
    } else if (!rule->isSilent) {
      pieces.push_back({first.phone, first.isStressed, true, rule->sound});
    }
    vowels += VowelCount(std::span(phones).subspan(place.at, place.next - place.at));
  }
  return pieces;
}

std::vector<SpeechSound> SoundsOfWord(const WordPhones& zPhones, std::string_view zSpelling) {
  return PiecesToSounds(VowelsToSounds(zPhones, zSpelling), zSpelling);
}

}  // namespace loquitor
