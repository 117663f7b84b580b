#include "core/say_data.h"

#include <algorithm>
#include <utility>

#include "core/expansion.h"
#include "core/say_data_runs.h"
#include "text/letters.h"
#include "text/words.h"

namespace loquitor {

SayDataTranslator::SayDataTranslator(const CodeTable& zCodeTable,
                                     const DictionaryStore& zDictionary)
    : codeTable_(zCodeTable), dictionary_(zDictionary) {}

namespace {

/// Looks words up in the dictionary as it is now: all of them come from one state of the file.
EntryLookUp PresentEntries(const DictionaryStore& zDictionary) {
  return [dictionary = zDictionary.Snapshot()](std::string_view zWord) {
    return std::string(dictionary.Entry(zWord));
  };
}

}  // namespace

std::string SayDataTranslator::ExpandSayData(std::string_view zSayData) const {
  return ExpandWords(zSayData, PresentEntries(dictionary_),
                     MaxExpansion + MaxGrowth * zSayData.size());
}

std::vector<SilentPart> SayDataTranslator::FindSilentParts(std::string_view zSayData) const {
  return loquitor::FindSilentParts(zSayData, PresentEntries(dictionary_), codeTable_);
}

std::string SayDataTranslator::MnemonicsToCodes(std::string_view zText) const {
  const std::string normalized = NormalizeCodeText(zText);
  std::string_view rest = TrimSpaces(normalized);
  std::string codes;
  while (!rest.empty()) {
    const std::size_t length = std::min(rest.find('\\', 1), rest.size());
    codes += codeTable_.TokenCodes(TrimSpaces(rest.substr(0, length)));
    rest.remove_prefix(length);
  }
  return codes;
}

std::string NormalizeCodeText(std::string_view zText) {
  std::string normalized;
  normalized.reserve(zText.size() * 3 / 2);
  bool isSeparated = false;
  for (const char character : zText) {
    if (!IsNameCharacter(character)) {
      isSeparated = true;
      continue;
    }
    if (std::exchange(isSeparated, false)) {
      normalized += " \\";
    }
    normalized += UpperCase(character);
  }
  return normalized;
}

std::string CodeListText(std::string_view zOrvatoneCodes) {
  std::string list;
  list.reserve(zOrvatoneCodes.size() * 5);
  for (const char code : zOrvatoneCodes) {
    if (!list.empty()) {
      list += ", ";
    }
    list += std::to_string(static_cast<unsigned char>(code));
  }
  return list;
}

}  // namespace loquitor
