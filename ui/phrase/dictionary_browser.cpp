#include "ui/phrase/dictionary_browser.h"

#include <QPushButton>
#include <QTextCursor>

#include "core/next_word.h"
#include "core/words.h"
#include "ui/toolkit/busy.h"

namespace loquitor {

DictionaryBrowser::DictionaryBrowser(QWidget* zWindow, const Form& zForm,
                                     const EditorContext& zContext)
    : QObject(zWindow),
      window_(zWindow),
      context_(zContext),
      txtSayData_(zForm.Get<TextArea>("txtSayData")),
      txtDict_(zForm.Get<TextBox>("txtDict")),
      txtfindwith_(zForm.Get<TextBox>("txtfindwith")),
      chkWith_(zForm.Get<CheckBox>("chkWith")),
      chkWithout_(zForm.Get<CheckBox>("chkWithout")),
      btnNextWord_(zForm.Get<QPushButton>("btnNextWord")) {
  chkWith_->SetValue(1);
  chkWithout_->SetValue(1);
  const auto connectClick = [&](const char* zName, void (DictionaryBrowser::*zHandler)()) {
    connect(zForm.Get<QPushButton>(zName), &QPushButton::clicked, this, zHandler);
  };
  connectClick("cmdLoadInsert", &DictionaryBrowser::cmdLoadInsert_Click);
  connectClick("cmdLoadOver", &DictionaryBrowser::cmdLoadOver_Click);
  connectClick("btnNextWord", &DictionaryBrowser::btnNextWord_Click);
  connectClick("cmdSave", &DictionaryBrowser::cmdSave_Click);
}

void DictionaryBrowser::cmdLoadInsert_Click() {
  LoadDictWords();
}

/// One undoable step.
void DictionaryBrowser::LoadDictWords() {
  QTextCursor step(txtSayData_->document());
  step.beginEditBlock();
  ForEachWord(txtDict_->Text(), [this](std::string_view zWord) {
    emit InsertWanted(context_.dictionary.GetDictionaryValue(DictionaryStore::Section, zWord, ""));
  });
  step.endEditBlock();
  txtSayData_->setFocus();
}

void DictionaryBrowser::cmdLoadOver_Click() {
  ReplaceSayData(LoadedText(context_.dictionary, txtDict_->Text()));
}

/// One undoable step, the caret behind the text, as if it had been loaded into an empty box.
void DictionaryBrowser::ReplaceSayData(std::string_view zText) {
  txtSayData_->selectAll();
  txtSayData_->ReplaceSelection(zText);
  txtSayData_->setFocus();
}

void DictionaryBrowser::btnNextWord_Click() {
  const auto mode = NextWordModeOf(chkWith_->Value() == 1, chkWithout_->Value() == 1);
  if (!mode) {
    context_.prompts.Tell(window_, "Must select either With Data or Without Data or Both");
    return;
  }
  const bool isFound = GetNextWord(*mode);
  if (!window_->isVisible()) {
    return;  // closed by one of the events that were pending
  }
  if (!isFound) {
    context_.prompts.Tell(window_, NoWordNotice(*mode));
  } else if (mode != NextWordMode::WithoutData) {
    emit SayWanted(context_.translator.ExpandSayData(txtSayData_->Text()));
  }
}

/// Loads the next word of that kind and its entry; false, all boxes as they were, when a pass
/// through the whole dictionary finds none.
bool DictionaryBrowser::GetNextWord(NextWordMode zMode) {
  const Busy busy(window_, btnNextWord_);
  const std::string findWith = txtfindwith_->Text();
  const auto isWanted = [&](std::string_view zSayData) {
    return IsWanted(zMode, zSayData, findWith);
  };
  const std::optional<std::string> word = NextWord(context_.dictionary, txtDict_->Text(), isWanted);
  if (!word) {
    return false;
  }
  txtDict_->SetText(*word);
  ReplaceSayData(LoadedText(context_.dictionary, *word));
  return true;
}

void DictionaryBrowser::cmdSave_Click() {
  const std::string word(TrimSpaces(txtDict_->Text()));
  if (!word.empty()) {
    SaveWord(word);
  }
  txtSayData_->setFocus();
}

void DictionaryBrowser::SaveWord(const std::string& zWord) {
  if (const std::optional<QString> refusal = RefusalOfWord(zWord)) {
    context_.prompts.Tell(window_, *refusal);
    return;
  }
  // A dictionary that cannot be written is passed over in silence, as everywhere.
  static_cast<void>(context_.dictionary.SaveDictionaryValue(DictionaryStore::Section, zWord,
                                                            txtSayData_->Text()));
}

}  // namespace loquitor
