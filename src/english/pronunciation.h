#pragma once

#include <span>
#include <string>
#include <vector>

#include "english/phone_source.h"

namespace loquitor {

/// The phones of each of `zWords`, as `zSource` gives them, with corrections for words that a
/// source may get wrong: contractions with n't, and a few short words. The words must be as
/// PhoneSource takes them, but there may be more: the source then gets MaxWords at a time.
std::vector<WordPhones> Pronounce(PhoneSource& zSource, std::span<const std::string> zWords);

}  // namespace loquitor
