#include "ui/phrase/dictionary_words.h"

#include "core/words.h"
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

std::optional<NextWordMode> NextWordModeOf(bool zIsWithTicked, bool zIsWithoutTicked) {
  if (zIsWithTicked) {
    return zIsWithoutTicked ? NextWordMode::Any : NextWordMode::WithData;
  }
  return zIsWithoutTicked ? std::optional(NextWordMode::WithoutData) : std::nullopt;
}

std::string LoadedText(const DictionaryStore& zDictionary, std::string_view zText) {
  std::string text;
  ForEachWord(zText, [&](std::string_view zWord) {
    text += zDictionary.GetDictionaryValue(DictionaryStore::Section, zWord, "") + " ";
  });
  return text;
}

bool IsWanted(NextWordMode zMode, std::string_view zSayData, std::string_view zFindWith) {
  const bool hasData = !TrimSpaces(zSayData).empty();
  switch (zMode) {
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
