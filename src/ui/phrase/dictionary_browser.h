#pragma once

#include <QObject>
#include <string>

#include "ui/phrase/dictionary_words.h"
#include "ui/windows/editor_context.h"

namespace loquitor {

class CheckBox;
class Form;
class TextArea;
class TextBox;
class WordHistory;

/// The Dictionary frame of the phrase editor. It loads the entries of words into the Say Data,
/// steps through the dictionary in alphabetical order, and saves the Say Data as a word's entry.
class DictionaryBrowser : public QObject {
  Q_OBJECT
 public:
  /// `zForm` has the frame's controls and txtSayData. `zWindow` owns this object and the messages,
  /// and shows the hourglass.
  DictionaryBrowser(QWidget* zWindow, const Form& zForm, const EditorContext& zContext);

 signals:
  /// `zText` and a blank are to be inserted into the Say Data.
  void InsertWanted(const std::string& zText);

  /// The mnemonic text is to be said.
  void SayWanted(const std::string& zAllophoneList);

  /// The entries of `zWords`, the text of `zBox`, were loaded.
  void Loaded(QWidget* zBox, const std::string& zWords);

  /// The Say Data was saved as an entry.
  void Saved();

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
  WordHistory* history_;
  CheckBox* chkWith_;
  CheckBox* chkWithout_;
  QWidget* btnNextWord_;
  QWidget* cmdSave_;
};

}  // namespace loquitor
