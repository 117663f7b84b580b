#include "core/word_import.h"

#include <algorithm>
#include <iterator>

namespace loquitor {
namespace {

constexpr bool IsLetter(char zCharacter) {
  return (zCharacter >= 'A' && zCharacter <= 'Z') || (zCharacter >= 'a' && zCharacter <= 'z');
}

constexpr char LowerCaseLetter(char zLetter) {
  return static_cast<char>(zLetter | 0x20);
}

}  // namespace

void WordImport::Feed(std::string_view zBytes) {
  auto next = zBytes.begin();
  while (next != zBytes.end()) {
    const auto end = std::find_if_not(next, zBytes.end(), IsLetter);
    std::transform(next, end, std::back_inserter(word_), LowerCaseLetter);
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
