#pragma once

#include <span>
#include <string>
#include <vector>

#include "english/phone_source.h"

namespace loquitor {

/// The phones of each of `zWords`, by `zSource`, with what it is known to read wrongly put right:
/// contractions with n't, and a few short words. The words are as PhoneSource asks for them; of a
/// longer sentence the source sees MaxWords at a time.
std::vector<WordPhones> Pronounce(PhoneSource& zSource, std::span<const std::string> zWords);

/// The phones of `zWord` by itself.
WordPhones PronounceWord(PhoneSource& zSource, const std::string& zWord);

}  // namespace loquitor
