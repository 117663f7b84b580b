#pragma once

#include <map>
#include <span>
#include <string>
#include <vector>

#include "english/phone_source.h"

namespace loquitor::testing {

/// Knows a few words, and keeps what it was asked.
class ScriptedPhones : public PhoneSource {
 public:
  std::vector<WordPhones> PhonesOf(std::span<const std::string> zWords) override {
    asked.emplace_back(zWords.begin(), zWords.end());
    std::vector<WordPhones> phones;
    for (const std::string& word : zWords) {
      phones.push_back(PhonesFromText(known.contains(word) ? known.at(word) : ""));
    }
    return phones;
  }

  std::vector<std::vector<std::string>> asked;
  const std::map<std::string, std::string> known = {
      {"see", "s iy1"}, {"me", "m iy1"},    {"the", "dh ax"}, {"robot", "r ow1 b aa t"},
      {"is", "ih1 z"},  {"was", "w aa1 z"}, {"are", "aa1 r"}};
};

}  // namespace loquitor::testing
