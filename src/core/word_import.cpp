#include "core/word_import.h"

#include <algorithm>
#include <iterator>

#include "text/letters.h"

namespace loquitor {

void WordImport::Feed(std::string_view zBytes) {
  auto next = zBytes.begin();
  while (next != zBytes.end()) {
    const auto end = std::find_if_not(next, zBytes.end(), IsLetter);
    std::transform(next, end, std::back_inserter(word_), LowerCase);
    if (end == zBytes.end()) {
      return;
    }
    TakeWord();
    next = std::find_if(end, zBytes.end(), IsLetter);
  }
}

void WordImport::TakeWord() {
  if (!word_.empty() && isNewWord_(word_)) {
    addedText_.append(word_).append("=\n");
    ++count_;
  }
  word_.clear();
}

}  // namespace loquitor
