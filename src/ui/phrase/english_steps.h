#pragma once

#include <QObject>
#include <QStringList>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "english/english_reader.h"
#include "ui/controls/text_area.h"
#include "ui/phrase/say_data_places.h"
#include "ui/windows/editor_context.h"

class QAction;

namespace loquitor {

/// What the context menu of the Say Data box, and its keys, make of English words: Insert Its
/// Sounds, Add to Dictionary, English to Sounds. By the mouse the word is the one under it, by a
/// key the one at the caret. What cannot be done is told in a hint.
class EnglishSteps : public QObject {
  Q_OBJECT
 public:
  /// The area owns this object.
  EnglishSteps(TextArea* zArea, const EditorContext& zContext);

  /// Offers, in a hint at `zBox`, the sounds of the words of `zWords` that have no data in the
  /// dictionary. Until the Say Data changes, the key of Insert Its Sounds inserts them at the
  /// caret. Nothing happens when every word has data or no sounds.
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

  std::optional<WordPlace> TakeWord();
  std::string SoundsOf(const WordPlace& zPlace) const;
  void Tell(const QString& zText) const;

  TextArea* area_;
  const EditorContext context_;
  std::optional<int> clicked_;  ///< where the context menu was opened by the mouse
  std::string offered_;
};

}  // namespace loquitor
