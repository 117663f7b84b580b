#pragma once

#include <string_view>

#include "english/phones.h"

namespace loquitor {

/// The phones of the name of a letter a to z; of its plural when an s follows it.
WordPhones LetterName(std::string_view zLetter);

}  // namespace loquitor
