#pragma once

#include <functional>
#include <string_view>

#include "core/dictionary_store.h"
#include "core/say_data.h"

namespace loquitor {

/// What Say Data already means, so that English text may use it.
struct SayDataWords {
  /// Whether the dictionary speaks a word: it has an entry that is not empty.
  std::function<bool(std::string_view zWord)> hasEntry;
  /// Whether a text of a backslash, letters, digits and # is a mnemonic or a code.
  std::function<bool(std::string_view zMnemonic)> isMnemonic;
};

/// The words of `zDictionary` as it is now; changes to it later do not count. `zTranslator` is kept
/// by reference.
SayDataWords WordsOf(const DictionaryStore& zDictionary, const SayDataTranslator& zTranslator);

}  // namespace loquitor
