#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace loquitor {

/// The phones of American English, with the names of the CMU Pronouncing Dictionary, and AX for the
/// schwa.
enum class Phone : std::uint8_t {
  // clang-format off
  AA, AE, AH, AO, AW, AX, AY, EH, ER, EY, IH, IY, OW, OY, UH, UW,  // vowels
  B, CH, D, DH, F, G, HH, JH, K, L, M, N, NG, P, R, S, SH, T, TH, V, W, Y, Z, ZH,
  // clang-format on
};

/// True for AA to UW.
constexpr bool IsVowel(Phone zPhone) {
  return zPhone <= Phone::UW;
}

/// A phone of a word.
struct Segment {
  Phone phone;
  bool isStressed;  ///< whether its syllable is

  bool operator==(const Segment&) const = default;
};

/// The phones of one word, in order.
using WordPhones = std::vector<Segment>;

/// The phone with the name `zName`, in lower case. Nothing when there is none.
std::optional<Phone> PhoneNamed(std::string_view zName);

/// Reads phones such as "m ah1 n d ey": names in lower case, separated by spaces, with a 1 after
/// each stressed phone. Unknown names are skipped.
WordPhones PhonesFromText(std::string_view zText);

}  // namespace loquitor
