#pragma once

#include <string_view>
#include <vector>

namespace loquitor {

/// The letters that spell each of the `zVowelCount` vowel phones of `zWord` (lower case), in order:
/// its groups of vowel letters (a, e, i, o, u and y). A u after q and a y at the beginning are
/// consonants, a final e, es or ed may be silent, and two letters as in radio may be two groups.
/// Empty when the groups cannot be paired with the phones because their numbers differ. The views
/// point into `zWord`.
std::vector<std::string_view> VowelSpelling(std::string_view zWord, std::size_t zVowelCount);

}  // namespace loquitor
