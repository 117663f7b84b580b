#pragma once

#include <span>
#include <string>
#include <vector>

#include "english/phone_source.h"

namespace loquitor {

/// The phones of each of `zWords`, which are as PhoneSource::PhonesOf takes them. They come from
/// `zSource`, with corrections for words that a source may get wrong: contractions with n't, and a
/// few short words.
std::vector<WordPhones> Pronounce(PhoneSource& zSource, std::span<const std::string> zWords);

}  // namespace loquitor
