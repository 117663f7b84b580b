#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace loquitor {

/// The phones of American English, named as pronouncing dictionaries name them. AX is the schwa.
enum class Phone : std::uint8_t {
  // clang-format off
  AA, AE, AH, AO, AW, AX, AY, EH, ER, EY, IH, IY, OW, OY, UH, UW,  // vowels
  B, CH, D, DH, F, G, HH, JH, K, L, M, N, NG, P, R, S, SH, T, TH, V, W, Y, Z, ZH,
  // clang-format on
};

constexpr bool IsVowel(Phone zPhone) {
  return zPhone <= Phone::UW;
}

/// A phone of a word. The stress is that of its syllable.
struct Segment {
  Phone phone;
  bool isStressed;

  bool operator==(const Segment&) const = default;
};

/// The phones of one word, in order.
using WordPhones = std::vector<Segment>;

/// The phone named `zName` in lower case; nothing when there is none.
std::optional<Phone> PhoneNamed(std::string_view zName);

/// Phones written as "m ah1 n d ey": lower-case names separated by single blanks, a 1 after the
/// vowel of a stressed syllable. Names that are none are left out.
WordPhones PhonesFromText(std::string_view zText);

}  // namespace loquitor
