#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "english/phones.h"

namespace loquitor {

/// Where the phones of English words come from.
class PhoneSource {
 public:
  PhoneSource() = default;
  PhoneSource(const PhoneSource&) = delete;
  PhoneSource& operator=(const PhoneSource&) = delete;
  virtual ~PhoneSource() = default;

  /// The phones of `zWords`, one result for each. The words are a sentence in order, or as much of
  /// it as is spoken in one breath, so that a word can be read by its neighbours (to record, a
  /// record). Each has from 1 to MaxWordLength characters, all of them a to z or an apostrophe,
  /// with at least one letter; there are at most MaxWords. A word without a reading has no phones.
  virtual std::vector<WordPhones> PhonesOf(std::span<const std::string> zWords) = 0;

  static constexpr std::size_t MaxWordLength = 60;
  static constexpr std::size_t MaxWords = 100;
};

/// The source that this build has; null in a build without any, which cannot read English.
std::unique_ptr<PhoneSource> CreatePhoneSource();

}  // namespace loquitor
