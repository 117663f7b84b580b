#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace loquitor {

/// Whether `zCharacter` may be part of a mnemonic's name: a letter A to Z of either case, a digit
/// or a number sign.
bool IsNameCharacter(char zCharacter);

/// Characters of one kind in Say Data, with nothing but ignored characters between them.
struct SayDataRun {
  enum class Kind { Word, Spaces, Commas };

  Kind kind = Kind::Word;
  std::string characters;  ///< without the ignored ones
  std::size_t start = 0;   ///< offset of the first character
  std::size_t end = 0;     ///< offset after the last character
};

/// Reads the runs of a Say Data text from first to last (docs/say-data.md). Spaces at the end of
/// the text give no pause, so they are not a run.
class SayDataRuns {
 public:
  /// `zSayData` must outlive the reader.
  explicit SayDataRuns(std::string_view zSayData) : rest_(zSayData), size_(zSayData.size()) {}

  /// Puts the next run into `zRun`. False when there is none.
  bool Next(SayDataRun& zRun);

 private:
  std::size_t Position() const { return size_ - rest_.size(); }

  std::string_view rest_;
  std::size_t size_;
};

}  // namespace loquitor
