#include "ui/phrase/english_steps.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QStringList>
#include <QTimer>
#include <limits>
#include <sstream>
#include <utility>

#include "english/english_reader.h"
#include "english/unread_text.h"
#include "text/words.h"
#include "ui/controls/code_page.h"
#include "ui/controls/hint.h"
#include "ui/controls/text_area.h"
#include "ui/phrase/dictionary_words.h"
#include "ui/windows/busy.h"

namespace loquitor {
namespace {

/// English is read in UTF-8.
std::string ToUtf8(std::string_view zBytes) {
  return ToQString(zBytes).toStdString();
}

/// The first `zLength` characters of `zBytes`.
QString Beginning(std::string_view zBytes, std::size_t zLength) {
  const QString beginning = ToQString(zBytes.substr(0, zLength));
  return zBytes.size() > zLength ? beginning + u'…' : beginning;
}

QString Quoted(std::string_view zWord) {
  constexpr std::size_t shown = 40;
  return u'“' + Beginning(zWord, shown) + u'”';
}

QString Listed(std::string_view zSounds) {
  constexpr std::size_t shown = 120;
  return Beginning(zSounds, shown);
}

/// The first eight of `zParts`, and the number of the others.
QString Listed(const QStringList& zParts) {
  constexpr qsizetype shown = 8;
  const QString list = zParts.mid(0, shown).join(", ");
  return zParts.size() > shown ? list + QString(" and %L1 more").arg(zParts.size() - shown) : list;
}

bool HasTooLongLine(const std::string& zText) {
  std::istringstream lines(zText);
  for (std::string line; std::getline(lines, line);) {
    if (line.size() > TextLimits().longestLine) {
      return true;
    }
  }
  return false;
}

}  // namespace

EnglishSteps::EnglishSteps(TextArea* zArea, const EditorContext& zContext)
    : QObject(zArea), area_(zArea), context_(zContext) {
  auto* separator = new QAction(area_);
  separator->setSeparator(true);
  area_->addAction(separator);
  AddStep("Insert Its Sounds", Qt::Key_F6, &EnglishSteps::InsertItsSounds);
  AddStep("Add to Dictionary", Qt::SHIFT | Qt::Key_F6, &EnglishSteps::AddToDictionary);
  AddStep("English to Sounds", Qt::Key_F9, &EnglishSteps::EnglishToSounds);
  area_->installEventFilter(this);
  area_->viewport()->installEventFilter(this);
  connect(area_, &QPlainTextEdit::textChanged, this, [this] { offered_.clear(); });
}

void EnglishSteps::AddStep(const QString& zCaption, const QKeySequence& zKey,
                           void (EnglishSteps::*zStep)()) {
  const bool canRead = context_.english != nullptr;
  QAction* action = area_->addAction(
      canRead ? zCaption : zCaption + " (this build cannot read English)", zKey, this, zStep);
  action->setShortcutVisibleInContextMenu(true);
  action->setEnabled(canRead);
}

/// Remembers where the mouse opened the menu, until the next key.
bool EnglishSteps::eventFilter(QObject*, QEvent* zEvent) {
  if (zEvent->type() == QEvent::ContextMenu) {
    const auto* menu = static_cast<QContextMenuEvent*>(zEvent);
    const bool isMouse = menu->reason() == QContextMenuEvent::Mouse;
    clicked_ =
        isMouse ? std::optional(area_->cursorForPosition(menu->pos()).position()) : std::nullopt;
  } else if (zEvent->type() == QEvent::ShortcutOverride || zEvent->type() == QEvent::KeyPress) {
    clicked_.reset();
  }
  return false;
}

/// Shows a hint at the area. A moment later, because a menu that closes hides hints.
void EnglishSteps::Tell(const QString& zText) const {
  QTimer::singleShot(100, area_, [area = area_, zText] { ShowHint(area, zText); });
}

/// The word under the mouse or at the caret. Tells when there is none.
std::optional<WordPlace> EnglishSteps::TakeWord() {
  const int position = clicked_.value_or(area_->SelectionStart());
  clicked_.reset();
  std::optional<WordPlace> place = WordAt(area_->Text(), static_cast<std::size_t>(position));
  if (!place) {
    Tell("There is no word here. Put the caret into a word.");
  }
  return place;
}

/// The sounds of a word: its entry if the entry gives any code, otherwise its English sounds. Tells
/// when there are none.
std::string EnglishSteps::SoundsOf(const WordPlace& zPlace) const {
  if (context_.translator.FindSilentParts(zPlace.word).empty()) {
    return context_.dictionary.GetDictionaryValue(DictionaryStore::Section, zPlace.word, "");
  }
  const int start = static_cast<int>(zPlace.start);
  const int end = start + static_cast<int>(zPlace.length);
  std::string sounds = context_.english->ReadWord(ToUtf8(area_->TextBetween(start, end)));
  if (sounds.empty()) {
    Tell(Quoted(zPlace.word) + " cannot be read as English.");
  }
  return sounds;
}

void EnglishSteps::InsertItsSounds() {
  if (!offered_.empty() && !clicked_) {
    emit InsertWanted(std::string(offered_));
    return;
  }
  const std::optional<WordPlace> place = TakeWord();
  if (const std::string sounds = place ? SoundsOf(*place) : ""; !sounds.empty()) {
    area_->Select(static_cast<int>(place->start), static_cast<int>(place->length));
    area_->ReplaceSelection(sounds);
  }
}

void EnglishSteps::AddToDictionary() {
  const std::optional<WordPlace> place = TakeWord();
  if (!place) {
    return;
  }
  const std::string_view section = DictionaryStore::Section;
  if (!context_.dictionary.GetDictionaryValue(section, place->word, "").empty()) {
    Tell(Quoted(place->word) + " has an entry in the dictionary. It stays as it is.");
    return;
  }
  if (const std::optional<QString> refusal = RefusalOfWord(place->word)) {
    Tell(*refusal);
    return;
  }
  const std::string sounds = SoundsOf(*place);
  if (sounds.empty()) {
    return;
  }
  if (!context_.dictionary.SaveDictionaryValue(section, place->word, sounds)) {
    Tell("The dictionary could not be saved. Check the disk and whether you may write there.");
    return;
  }
  Tell(Quoted(place->word) + " is now in the dictionary: " + Listed(sounds));
  emit EntryAdded();
}

void EnglishSteps::EnglishToSounds() {
  clicked_.reset();
  if (RunBusy(area_->window(), nullptr, [this] { ReadAsEnglish(); })) {
    area_->setFocus();
  }
}

/// What replaces the selection `zText` when `zSayData` is its reading. The blanks and line breaks
/// at its ends stay, and it does not run together with the text around it.
std::string EnglishSteps::ForSelection(const std::string& zText, std::string zSayData) const {
  constexpr std::string_view blanks = " \t\r\n";
  const std::string lead = zText.substr(0, zText.find_first_not_of(blanks));
  const std::string trail = zText.substr(zText.find_last_not_of(blanks) + 1);
  const int start = area_->SelectionStart();
  const int end = start + area_->SelectionLength();
  const TextAround around{area_->TextBetween(0, start) + lead,
                          trail + area_->TextBetween(end, std::numeric_limits<int>::max())};
  return lead + SeparatedFrom(around, std::move(zSayData)) + trail;
}

/// Replaces the selection, or else the whole text, by its sounds. Tells which words were left out.
void EnglishSteps::ReadAsEnglish() {
  const bool isWhole = area_->SelectionLength() == 0;
  const std::string text = isWhole ? area_->Text() : area_->SelectedText();
  const EnglishReading reading =
      context_.english->ReadText(ToUtf8(text), WordsOf(context_.dictionary, context_.translator));
  if (reading.sayData.empty()) {
    Tell("Nothing was changed: there is nothing here that can be read as English.");
    return;
  }
  const std::string sayData = isWhole ? reading.sayData : ForSelection(text, reading.sayData);
  if (HasTooLongLine(sayData)) {
    Tell("Nothing was changed: the sounds would be too long for one line. Select less.");
    return;
  }
  if (sayData == text) {
    Tell("Nothing was changed: every word here speaks already.");
    return;
  }
  if (isWhole) {
    area_->selectAll();
  }
  area_->ReplaceSelection(sayData);
  if (!reading.unread.empty()) {
    Tell("Left out, because it cannot be read: " +
         QString::fromStdString(DescribeUnread(reading.unread)));
  }
}

void EnglishSteps::OfferSounds(QWidget* zBox, std::string_view zWords) {
  offered_.clear();
  if (context_.english == nullptr) {
    return;
  }
  QStringList missing;
  ForEachWord(zWords, [&](std::string_view zWord) {
    if (context_.dictionary.GetDictionaryValue(DictionaryStore::Section, zWord, "").empty()) {
      const std::string sounds = context_.english->ReadWord(ToUtf8(zWord));
      missing += Quoted(zWord) + (sounds.empty() ? " cannot be read" : "");
      offered_.append(offered_.empty() || sounds.empty() ? "" : " ").append(sounds);
    }
  });
  if (!missing.isEmpty()) {
    ShowHint(zBox,
             "No data in the dictionary: " + Listed(missing) +
                 (offered_.empty() ? "." : ".\nF6 inserts these sounds: " + Listed(offered_)));
  }
}

}  // namespace loquitor
