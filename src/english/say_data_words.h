#pragma once

#include <functional>
#include <string_view>

#include "core/dictionary_store.h"
#include "core/say_data.h"

namespace loquitor {

/// What English text may use of Say Data.
struct SayDataWords {
  /// Whether the dictionary has an entry for a word that is not empty.
  std::function<bool(std::string_view zWord)> hasEntry;
  /// Whether a backslash and letters, digits and # after it are a mnemonic or a code.
  std::function<bool(std::string_view zMnemonic)> isMnemonic;
};

/// The words of `zDictionary` as it is now; later changes do not count. `zTranslator` must outlive
/// the result.
SayDataWords WordsOf(const DictionaryStore& zDictionary, const SayDataTranslator& zTranslator);

}  // namespace loquitor
