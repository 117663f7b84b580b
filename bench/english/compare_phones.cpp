#include <memory>
#include <utility>
// Compares the phones that English words get with a public pronouncing dictionary:
//   compare_phones DICTIONARY < WORDS
// DICTIONARY has a word on each line and its phones after it, in the notation of the CMU
// dictionary, in any letter case, with or without stress; a second pronunciation is another line,
// word(2). WORDS has a word on each line; words that the dictionary lacks are passed over. Prints
// the words that differ, and at the end how many words and how many phones do (edit distance to the
// closest pronunciation; stress does not count, and the schwa counts as AH).

#include <algorithm>
#include <fstream>
#include <iostream>
#include <span>
#include <sstream>
#include <string>
#include <unordered_map>
#include <vector>

#include "english/pronunciation.h"
#include "text/letters.h"

namespace {

using namespace loquitor;
using Phones = std::vector<Phone>;
using Dictionary = std::unordered_map<std::string, std::vector<Phones>>;

Phone WithoutSchwa(Phone zPhone) {
  return zPhone == Phone::AX ? Phone::AH : zPhone;
}

Dictionary ReadDictionary(const char* zFile) {
  Dictionary dictionary;
  std::ifstream file(zFile);
  for (std::string line; std::getline(file, line);) {
    std::istringstream parts(ToLower(line));
    std::string word;
    parts >> word;
    word.resize(std::min(word.find('('), word.size()));
    Phones phones;
    for (std::string name; parts >> name;) {
      name.erase(name.find_last_not_of("012") + 1);
      if (const auto phone = PhoneNamed(name)) {
        phones.push_back(WithoutSchwa(*phone));
      }
    }
    dictionary[word].push_back(phones);
  }
  return dictionary;
}

/// How many phones to add, to remove or to change, by Wagner and Fischer's table of distances.
std::size_t Distance(const Phones& zFrom, const Phones& zTo) {
  std::vector<std::size_t> row(zTo.size() + 1);
  for (std::size_t i = 0; i < row.size(); ++i) {
    row[i] = i;
  }
  for (std::size_t i = 0; i < zFrom.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i + 1);
    for (std::size_t j = 0; j < zTo.size(); ++j) {
      const std::size_t changed = diagonal + (zFrom[i] == zTo[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({changed, diagonal + 1, row[j] + 1});
    }
  }
  return row.back();
}

}  // namespace

int main(int zCount, char** zArguments) {
  const std::unique_ptr<PhoneSource> source = CreatePhoneSource();
  if (zCount != 2 || source == nullptr) {
    std::cerr << "usage: compare_phones DICTIONARY < WORDS (in a build that reads English)\n";
    return 2;
  }
  const Dictionary dictionary = ReadDictionary(zArguments[1]);
  std::size_t words = 0, wordsThatDiffer = 0, phones = 0, phonesThatDiffer = 0;
  for (std::string word; std::getline(std::cin, word);) {
    const auto entry = dictionary.find(ToLower(word));
    if (entry == dictionary.end()) {
      continue;
    }
    Phones own;
    const std::string lower = ToLower(word);
    const std::vector<WordPhones> pronounced = Pronounce(*source, std::span(&lower, 1));
    for (const Segment& segment : pronounced.front()) {
      own.push_back(WithoutSchwa(segment.phone));
    }
    const auto closest = std::min_element(
        entry->second.begin(), entry->second.end(),
        [&own](const Phones& a, const Phones& b) { return Distance(own, a) < Distance(own, b); });
    const std::size_t distance = Distance(own, *closest);
    ++words;
    phones += closest->size();
    phonesThatDiffer += distance;
    if (distance > 0) {
      ++wordsThatDiffer;
      std::cout << distance << ' ' << word << '\n';
    }
  }
  std::cout << wordsThatDiffer << " of " << words << " words, " << phonesThatDiffer << " of "
            << phones << " phones differ: "
            << 100.0 * static_cast<double>(phonesThatDiffer) / static_cast<double>(phones)
            << " %\n";
  return 0;
}
