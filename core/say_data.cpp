#include "core/say_data.h"

#include <algorithm>
#include <utility>

#include "core/expansion.h"
#include "core/number_text.h"
#include "core/upper_case.h"
#include "core/words.h"
#include "link/fresh_profile.h"
#include "link/profile_index.h"

namespace loquitor {

namespace {

void AppendCode(std::string& zCodes, int zCode) {
  zCodes += static_cast<char>(static_cast<unsigned char>(zCode));
}

/// Appends the codes of one token, its backslash included; none when it stands for nothing.
void AppendToken(std::string& zCodes, std::string_view zToken, const CodeTable& zCodeTable) {
  constexpr int pitchCode = 22;
  if (zToken == "\\0") {
    AppendCode(zCodes, 0);
    return;
  }
  const double number = NumberAtStart(zToken.substr(1));
  if (number > 0) {
    if (number <= 255) {
      AppendCode(zCodes, static_cast<int>(number));
    }
    return;
  }
  const std::int16_t index = zCodeTable.GetCodeIndex(zToken);
  if (index < CodeTable::FirstNote) {
    AppendCode(zCodes, index);
  } else if (index != CodeTable::NotFound) {
    AppendCode(zCodes, pitchCode);
    AppendCode(zCodes, zCodeTable.GetNotePitch(index));
  }
}

}  // namespace

SayDataTranslator::SayDataTranslator(const CodeTable& zCodeTable,
                                     const DictionaryStore& zDictionary)
    : codeTable_(zCodeTable), dictionary_(zDictionary) {}

std::string SayDataTranslator::ExpandSayData(std::string_view zSayData) const {
  // Held for all words, so that they come from one state of the file, which is looked at once.
  const auto index = FreshIndexOf(dictionary_.File());
  const auto entryOf = [&index](std::string_view zWord) {
    return std::string(index ? DictionaryStore::EntryIn(*index, zWord) : std::string_view());
  };
  return ExpandWords(zSayData, entryOf, MaxExpansion);
}

std::string SayDataTranslator::MnemonicsToCodes(std::string_view zText) const {
  const std::string normalized = NormalizeCodeText(zText);
  std::string_view rest = TrimSpaces(normalized);
  std::string codes;
  while (!rest.empty()) {
    const std::size_t length = std::min(rest.find('\\', 1), rest.size());
    AppendToken(codes, TrimSpaces(rest.substr(0, length)), codeTable_);
    rest.remove_prefix(length);
  }
  return codes;
}

std::string NormalizeCodeText(std::string_view zText) {
  std::string normalized;
  normalized.reserve(zText.size() * 3 / 2);
  bool isSeparated = false;
  for (const char character : zText) {
    const char upper = UpperCase(character);
    const bool isKept =
        (upper >= 'A' && upper <= 'Z') || (upper >= '0' && upper <= '9') || upper == '#';
    if (!isKept) {
      isSeparated = true;
      continue;
    }
    if (std::exchange(isSeparated, false)) {
      normalized += " \\";
    }
    normalized += upper;
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
