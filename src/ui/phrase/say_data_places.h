#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace loquitor {

/// A dictionary word in a Say Data text.
struct WordPlace {
  std::string word;    ///< as it is looked up: without the characters that Say Data ignores
  std::size_t start;   ///< offset of its first character
  std::size_t length;  ///< up to its last character, the ignored ones included
};

/// The word that `zPosition` is in or at an end of. Nothing at pauses and mnemonics.
std::optional<WordPlace> WordAt(std::string_view zSayData, std::size_t zPosition);

/// A part of a text from `start` to before `end`.
struct TextSpan {
  std::size_t start;
  std::size_t end;
  bool operator==(const TextSpan&) const = default;
};

/// `zView`, a part of the text `zText`, extended so that it cuts no word and no mnemonic.
///
/// `zText` may itself be cut out of a longer text. At such an end a word that reaches it is left
/// out as far as it can be part of something longer.
TextSpan WholeWords(std::string_view zText, TextSpan zView, bool zIsCutAtStart, bool zIsCutAtEnd);

}  // namespace loquitor
