#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/dictionary_store.h"
#include "core/say_data.h"
#include "english/english_reader.h"

namespace loquitor {

/// Reads English for loquitor-say. Reports what it cannot read on standard error.
class EnglishInput {
 public:
  /// All must outlive it.
  EnglishInput(const CodeTable& zCodeTable, const DictionaryStore& zDictionary,
               const SayDataTranslator& zTranslator);

  /// False in a build that cannot read English. Nothing else may be called then.
  bool IsAvailable() const { return source_ != nullptr; }

  /// Say Data that speaks `zText` (UTF-8), by the dictionary as it is now.
  std::string ToSayData(std::string_view zText) const;

  /// Adds to the dictionary the words of the list `zFile` that it has no sounds for, in one change
  /// of its file. Returns the number of added words. Nothing when a file could not be read or
  /// written, or the list has NULs as UTF-16 has; Complaint says which.
  std::optional<std::size_t> AddWords(const std::string& zFile);

  /// What went wrong in AddWords.
  const std::string& Complaint() const { return complaint_; }

 private:
  const DictionaryStore& dictionary_;
  const SayDataTranslator& translator_;
  std::unique_ptr<PhoneSource> source_;
  std::optional<EnglishReader> reader_;
  std::string complaint_;
};

}  // namespace loquitor
