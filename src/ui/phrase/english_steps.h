#pragma once

#include <QObject>
#include <optional>
#include <string>
#include <string_view>

#include "ui/phrase/say_data_places.h"
#include "ui/windows/editor_context.h"

class QAction;

namespace loquitor {

class TextArea;

/// Three actions for English words in the Say Data box, with entries in its context menu and keys:
/// Insert Its Sounds (F6) and Add to Dictionary (Shift+F6) for one word, English to Sounds (F9) for
/// a text. The word is the one under the mouse when the mouse has opened the menu, otherwise the
/// one at the caret. A hint tells why an action changes nothing.
class EnglishSteps : public QObject {
  Q_OBJECT
 public:
  /// The area owns this object.
  EnglishSteps(TextArea* zArea, const EditorContext& zContext);

  /// Shows a hint at `zBox` with the words of `zWords` that have no data in the dictionary, and
  /// with their sounds. Until the Say Data changes, F6 inserts these sounds at the caret. Shows no
  /// hint when every word has data, or in a build that cannot read English.
  void OfferSounds(QWidget* zBox, std::string_view zWords);

 signals:
  /// The dictionary has a new entry.
  void EntryAdded();

  /// `zText` and a blank are to be inserted into the Say Data.
  void InsertWanted(const std::string& zText);

 protected:
  bool eventFilter(QObject* zWatched, QEvent* zEvent) override;

 private:
  void AddStep(const QString& zCaption, const QKeySequence& zKey, void (EnglishSteps::*zStep)());
  void InsertItsSounds();
  void AddToDictionary();
  void EnglishToSounds();
  void ReadAsEnglish();
  std::string ForSelection(const std::string& zText, std::string zSayData) const;

  std::optional<WordPlace> TakeWord();
  std::string SoundsOf(const WordPlace& zPlace) const;
  void Tell(const QString& zText) const;

  TextArea* area_;
  const EditorContext context_;
  std::optional<int> clicked_;  ///< where the mouse opened the context menu
  std::string offered_;         ///< the sounds of the last offer, until the Say Data changes
};

}  // namespace loquitor
