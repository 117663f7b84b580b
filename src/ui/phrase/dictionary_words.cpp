#include "ui/phrase/dictionary_words.h"

#include "core/dictionary_store.h"
#include "files/profile_lines.h"
#include "text/letters.h"
#include "text/words.h"

namespace loquitor {
namespace {

constexpr std::string_view SaveRefusal =
    "Cannot save mutil-word Dictionary entries.  Remove the spaces and try again.";

}  // namespace

std::optional<NextWordMode> NextWordModeOf(bool zIsWithTicked, bool zIsWithoutTicked) {
  if (zIsWithTicked) {
    return zIsWithoutTicked ? NextWordMode::Any : NextWordMode::WithData;
  }
  return zIsWithoutTicked ? std::optional(NextWordMode::WithoutData) : std::nullopt;
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
  const std::optional<char> unstorable = UnstorableInKey(zWord);
  if (!unstorable) {
    return std::nullopt;
  }
  if (*unstorable == '=') {
    return "A dictionary word cannot contain an equals sign (=).  Remove it and try again.";
  }
  return QString("A dictionary word cannot begin with %1.  Remove it and try again.")
      .arg(QChar(*unstorable));
}

QString CutNotice(std::string_view zSayData) {
  const std::string entry = InOneLine(zSayData);
  const std::size_t length = TrimBlanks(entry).size();
  if (length <= DictionaryStore::MaxEntry) {
    return {};
  }
  return QString(
             "This entry has %L1 characters. Only its first %L2 come back when the word is used. "
             "Save parts of it as words of their own, and use these words here.")
      .arg(length)
      .arg(DictionaryStore::MaxEntry);
}

}  // namespace loquitor
