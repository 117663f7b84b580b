#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace loquitor {

/// Reads a word list and collects the words that the dictionary lacks. The list is any bytes, fed
/// in pieces of any size: each run of the letters A to Z and a to z is a word, converted to lower
/// case, and everything else (line ends, digits, apostrophes, bytes from 128 on) stands between
/// words. A new word that occurs again is collected again.
class WordImport {
 public:
  /// Whether the dictionary has no entry for a word in lower case.
  using IsNewWord = std::function<bool(std::string_view zWord)>;

  explicit WordImport(IsNewWord zIsNewWord) : isNewWord_(std::move(zIsNewWord)) {}

  /// Takes the next bytes of the list. A word that reaches their end may go on in the next ones.
  void Feed(std::string_view zBytes);

  /// The list has ended, and with it its last word.
  void Finish() { TakeWord(); }

  /// What to add to the box: for each new word the word, an equals sign and a line break (LF).
  const std::string& AddedText() const { return addedText_; }

  /// The same, handed over when all is read; AddedText is empty from then on.
  std::string TakeAddedText() { return std::exchange(addedText_, {}); }

  /// How many words that is.
  std::size_t Count() const { return count_; }

  /// How many bytes the word has so far that the bytes fed last ended in.
  std::size_t UnfinishedSize() const { return word_.size(); }

 private:
  void TakeWord();

  IsNewWord isNewWord_;
  std::string word_;
  std::string addedText_;
  std::size_t count_ = 0;
};

}  // namespace loquitor
