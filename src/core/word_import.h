#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace loquitor {

/// Reads a word list and collects the words that the dictionary lacks. The list may hold any bytes
/// and comes in pieces of any size. A word is a run of the letters A to Z and a to z, converted to
/// lower case. All other bytes separate words. A new word that occurs twice is collected twice.
class WordImport {
 public:
  /// Whether the dictionary has no entry for a word in lower case.
  using IsNewWord = std::function<bool(std::string_view zWord)>;

  explicit WordImport(IsNewWord zIsNewWord) : isNewWord_(std::move(zIsNewWord)) {}

  /// Reads the next bytes of the list. A word at their end may continue in the next piece.
  void Feed(std::string_view zBytes);

  /// Ends the last word. Call it once, after the last piece.
  void Finish() { TakeWord(); }

  /// What to add to the dictionary's text: each new word, followed by an equals sign and a LF.
  const std::string& AddedText() const { return addedText_; }

  /// Moves AddedText out; it is empty afterwards.
  std::string TakeAddedText() { return std::exchange(addedText_, {}); }

  /// The number of new words so far.
  std::size_t Count() const { return count_; }

  /// The size in bytes of the word at the end of the last piece, which may continue.
  std::size_t UnfinishedSize() const { return word_.size(); }

 private:
  void TakeWord();

  IsNewWord isNewWord_;
  std::string word_;
  std::string addedText_;
  std::size_t count_ = 0;
};

}  // namespace loquitor
