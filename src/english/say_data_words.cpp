#include "english/say_data_words.h"

namespace loquitor {

SayDataWords WordsOf(const DictionaryStore& zDictionary, const SayDataTranslator& zTranslator) {
  return {[snapshot = zDictionary.Snapshot()](std::string_view zWord) {
            return !snapshot.Entry(zWord).empty();
          },
          [&zTranslator](std::string_view zMnemonic) {
            return !zTranslator.MnemonicsToCodes(zMnemonic).empty();
          }};
}

}  // namespace loquitor
