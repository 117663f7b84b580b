#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/dictionary_store.h"
#include "core/say_data.h"
#include "english/english_reader.h"

namespace loquitor {

/// English as loquitor-say reads it. What it cannot read is told on standard error.
class EnglishInput {
 public:
  /// All are kept by reference and must outlive it.
  EnglishInput(const CodeTable& zCodeTable, const DictionaryStore& zDictionary,
               const SayDataTranslator& zTranslator);

  /// False in a build that cannot read English; then nothing else may be called.
  bool IsAvailable() const { return source_ != nullptr; }

  /// Say Data that speaks `zText`, by the dictionary as it is now.
  std::string ToSayData(std::string_view zText) const;

  /// Stores the sounds of every word of `zFile` that the dictionary has no sounds for, in one
  /// change of its file. How many words those are; nothing when a file could not be read or
  /// written, Complaint says which.
  std::optional<std::size_t> AddWords(const std::string& zFile);

  const std::string& Complaint() const { return complaint_; }

 private:
  const DictionaryStore& dictionary_;
  const SayDataTranslator& translator_;
  std::unique_ptr<PhoneSource> source_;
  std::optional<EnglishReader> reader_;
  std::string complaint_;
};

}  // namespace loquitor
