#pragma once

#include <set>
#include <string>
#include <utility>

#include "english/say_data_words.h"
#include "text/letters.h"

namespace loquitor::testing {

/// A dictionary of the words `zEntries` (lower case); every name except XYZZY is a mnemonic.
inline SayDataWords WordsWithEntries(std::set<std::string> zEntries) {
  return {
      [entries = std::move(zEntries)](std::string_view zWord) {
        return entries.contains(ToLower(zWord));
      },
      [](std::string_view zMnemonic) { return zMnemonic.size() > 1 && zMnemonic != "\\XYZZY"; }};
}

}  // namespace loquitor::testing
