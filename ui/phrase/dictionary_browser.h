#pragma once

#include <QObject>
#include <string>

#include "ui/phrase/dictionary_words.h"
#include "ui/toolkit/check_box.h"
#include "ui/toolkit/editor_context.h"
#include "ui/toolkit/form.h"
#include "ui/toolkit/text_area.h"
#include "ui/toolkit/text_box.h"

namespace loquitor {

/// The Dictionary frame of the phrase editor: loads the entries of words into the Say Data, steps
/// through the dictionary in alphabetical order, and saves the Say Data under a word.
class DictionaryBrowser : public QObject {
  Q_OBJECT
 public:
  /// The frame's controls and txtSayData must stand in `zForm`. `zWindow` is the window that shows
  /// the hourglass and owns the messages.
  DictionaryBrowser(QWidget* zWindow, const Form& zForm, const EditorContext& zContext);

 signals:
  /// `zText` and a blank are to be inserted into the Say Data.
  void InsertWanted(const std::string& zText);

  /// The mnemonic text is to be said.
  void SayWanted(const std::string& zAllophoneList);

 private:
  void cmdLoadInsert_Click();
  void cmdLoadOver_Click();
  void btnNextWord_Click();
  void cmdSave_Click();

  void LoadDictWords();
  bool GetNextWord(NextWordMode zMode);
  void SaveWord(const std::string& zWord);
  void ReplaceSayData(std::string_view zText);

  QWidget* window_;
  const EditorContext context_;
  TextArea* txtSayData_;
  TextBox* txtDict_;
  TextBox* txtfindwith_;
  CheckBox* chkWith_;
  CheckBox* chkWithout_;
  QWidget* btnNextWord_;
};

}  // namespace loquitor
