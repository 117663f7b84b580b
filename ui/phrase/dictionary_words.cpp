#include "ui/phrase/dictionary_words.h"

#include "link/letter_case.h"

namespace loquitor {
namespace {

constexpr std::string_view SaveRefusal =
    "Cannot save mutil-word Dictionary entries.  Remove the spaces and try again.";

/// The capital of a letter in Windows-1252; every other byte is its own.
char UpperCase(char zCharacter) {
  for (const int distance : {0x20, 0x10}) {
    const char capital = static_cast<char>(zCharacter - distance);
    if (LowerCase(capital) == zCharacter && capital != zCharacter) {
      return capital;
    }
  }
  return zCharacter == '\xFF' ? '\x9F' : zCharacter;
}

std::string ToUpper(std::string_view zText) {
  std::string upper(zText);
  for (char& character : upper) {
    character = UpperCase(character);
  }
  return upper;
}

}  // namespace

NextWordMode NextWordModeOf(bool zIsWithTicked, bool zIsWithoutTicked) {
  if (zIsWithTicked) {
    return zIsWithoutTicked ? NextWordMode::Any : NextWordMode::WithData;
  }
  return zIsWithoutTicked ? NextWordMode::WithoutData : NextWordMode::None;
}

std::string_view TrimSpaces(std::string_view zText) {
  const std::size_t first = zText.find_first_not_of(' ');
  if (first == std::string_view::npos) {
    return {};
  }
  return zText.substr(first, zText.find_last_not_of(' ') - first + 1);
}

std::vector<std::string> SplitWords(std::string_view zText) {
  std::vector<std::string> words;
  for (std::string_view rest = TrimSpaces(zText); !rest.empty(); rest = TrimSpaces(rest)) {
    const std::string_view word = rest.substr(0, rest.find(' '));
    words.emplace_back(word);
    rest.remove_prefix(word.size());
  }
  return words;
}

std::string LoadedText(const DictionaryStore& zDictionary, std::string_view zText) {
  std::string text;
  for (const std::string& word : SplitWords(zText)) {
    text += zDictionary.GetDictionaryValue(DictionaryStore::Section, word, "") + " ";
  }
  return text;
}

bool IsWanted(NextWordMode zMode, std::string_view zSayData, std::string_view zFindWith) {
  const bool hasData = !TrimSpaces(zSayData).empty();
  switch (zMode) {
    case NextWordMode::None:
      return false;
    case NextWordMode::WithData:
      return hasData && zSayData.find(ToUpper(zFindWith)) != std::string_view::npos;
    case NextWordMode::WithoutData:
      return !hasData;
    case NextWordMode::Any:
      break;
  }
  return true;
}

QString NoWordNotice(NextWordMode zMode) {
  switch (zMode) {
    case NextWordMode::WithData:
      return "No word of the dictionary has data.";
    case NextWordMode::WithoutData:
      return "Every word of the dictionary has data.";
    default:
      return "The dictionary holds no words.";
  }
}

std::optional<QString> RefusalOfWord(std::string_view zWord) {
  if (zWord.find(' ') != std::string_view::npos) {
    return QString::fromLatin1(SaveRefusal.data());
  }
  if (zWord.find('=') != std::string_view::npos) {
    return "A dictionary word cannot hold an equals sign (=).  Remove it and try again.";
  }
  if (zWord.front() == '[' || zWord.front() == ';') {
    return QString("A dictionary word cannot begin with %1.  Remove it and try again.")
        .arg(QChar(zWord.front()));
  }
  return std::nullopt;
}

}  // namespace loquitor
