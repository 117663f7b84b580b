#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace loquitor {

/// A dictionary word in a Say Data text.
struct WordPlace {
  std::string word;    ///< as it is looked up, without the characters that Say Data ignores
  std::size_t start;   ///< offset of its first character
  std::size_t length;  ///< from there to its last character, with the ignored ones
};

/// The word that contains the position `zPosition`, or begins or ends there. Nothing at pauses and
/// mnemonics.
std::optional<WordPlace> WordAt(std::string_view zSayData, std::size_t zPosition);

/// A part of a text from `start` to before `end`.
struct TextSpan {
  std::size_t start;
  std::size_t end;
  bool operator==(const TextSpan&) const = default;
};

/// `zView`, a part of `zText`, extended so that it cuts no word and no mnemonic.
///
/// `zText` may be a part of a longer text, which continues at the ends that are said to be cut. A
/// word or mnemonic that reaches such an end may be incomplete, and is left out. Returns {0, 0}
/// when nothing is left.
TextSpan WholeWords(std::string_view zText, TextSpan zView, bool zIsCutAtStart, bool zIsCutAtEnd);

/// The parts of a Say Data text around a new part of it.
struct TextAround {
  std::string before;
  std::string after;
};

/// `zSayData`, which is not empty, with a blank at each end where the word or mnemonic there would
/// run together with the one beside it.
std::string SeparatedFrom(const TextAround& zAround, std::string zSayData);

}  // namespace loquitor
