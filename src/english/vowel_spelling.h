#pragma once

#include <string_view>
#include <vector>

namespace loquitor {

/// The letters that spell each of the `zVowelCount` vowel phones of `zWord` (lower case), in order.
/// These are its groups of vowel letters (a, e, i, o, u and y). A u after q and a y at the start of
/// the word are consonants. The e of a final e, es or ed may be silent. A group such as the io in
/// radio may be split in two. Empty when the number of groups is not `zVowelCount`. The views point
/// into `zWord`.
std::vector<std::string_view> VowelSpelling(std::string_view zWord, std::size_t zVowelCount);

}  // namespace loquitor
