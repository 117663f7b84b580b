#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "english/phones.h"

namespace loquitor {

/// Finds the phones of English words.
class PhoneSource {
 public:
  PhoneSource() = default;
  PhoneSource(const PhoneSource&) = delete;
  PhoneSource& operator=(const PhoneSource&) = delete;
  virtual ~PhoneSource() = default;

  /// The phones of `zWords`, one result for each. The words are a sentence or a part of one,
  /// because neighbours decide how some words are read (to record, a record). There are at most
  /// MaxWords. Each has 1 to MaxWordLength characters, which are a to z or an apostrophe, with at
  /// least one letter. A word without a reading has no phones.
  virtual std::vector<WordPhones> PhonesOf(std::span<const std::string> zWords) = 0;

  static constexpr std::size_t MaxWordLength = 60;
  static constexpr std::size_t MaxWords = 100;
};

/// The source of this build. Null in a build without one, which cannot read English.
std::unique_ptr<PhoneSource> CreatePhoneSource();

}  // namespace loquitor
