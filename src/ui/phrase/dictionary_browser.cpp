#include "ui/phrase/dictionary_browser.h"

#include <QPushButton>
#include <QTextCursor>

#include "core/next_word.h"
#include "text/words.h"
#include "ui/controls/check_box.h"
#include "ui/controls/form.h"
#include "ui/controls/hint.h"
#include "ui/controls/text_area.h"
#include "ui/controls/text_box.h"
#include "ui/phrase/word_history.h"
#include "ui/windows/busy.h"

namespace loquitor {

DictionaryBrowser::DictionaryBrowser(QWidget* zWindow, const Form& zForm,
                                     const EditorContext& zContext)
    : QObject(zWindow),
      window_(zWindow),
      context_(zContext),
      txtSayData_(zForm.Get<TextArea>("txtSayData")),
      txtDict_(zForm.Get<TextBox>("txtDict")),
      txtfindwith_(zForm.Get<TextBox>("txtfindwith")),
      history_(new WordHistory(txtSayData_, txtDict_)),
      chkWith_(zForm.Get<CheckBox>("chkWith")),
      chkWithout_(zForm.Get<CheckBox>("chkWithout")),
      btnNextWord_(zForm.Get<QPushButton>("btnNextWord")),
      cmdSave_(zForm.Get<QPushButton>("cmdSave")) {
  chkWith_->SetValue(1);
  chkWithout_->SetValue(1);
  zForm.OnClick("cmdLoadInsert", this, &DictionaryBrowser::cmdLoadInsert_Click);
  zForm.OnClick("cmdLoadOver", this, &DictionaryBrowser::cmdLoadOver_Click);
  zForm.OnClick("btnNextWord", this, &DictionaryBrowser::btnNextWord_Click);
  zForm.OnClick("cmdSave", this, &DictionaryBrowser::cmdSave_Click);
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
  emit Loaded(txtDict_, txtDict_->Text());
}

void DictionaryBrowser::cmdLoadOver_Click() {
  ReplaceSayData(context_.dictionary.Snapshot().SayDataOf(txtDict_->Text()));
  emit Loaded(txtDict_, txtDict_->Text());
}

/// One undoable step. The caret ends after the text.
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
  bool isFound = false;
  if (!RunBusy(window_, btnNextWord_, [&] { isFound = GetNextWord(*mode); })) {
    return;
  }
  if (!isFound) {
    ShowHint(btnNextWord_, NoWordNotice(*mode));
  } else if (mode != NextWordMode::WithoutData) {
    emit SayWanted(context_.translator.ExpandSayData(txtSayData_->Text()));
  }
}

/// Loads the next word of that kind and its entry. Returns false, and changes no box, if the
/// dictionary has no such word.
bool DictionaryBrowser::GetNextWord(NextWordMode zMode) {
  const std::string findWith = txtfindwith_->Text();
  const auto isWanted = [&](std::string_view zSayData) {
    return IsWanted(zMode, zSayData, findWith);
  };
  const std::optional<std::string> word = NextWord(context_.dictionary, txtDict_->Text(), isWanted);
  if (!word) {
    return false;
  }
  const std::string sayData = context_.dictionary.Snapshot().SayDataOf(*word);
  history_->Record(*word, [&] { ReplaceSayData(sayData); });
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
  // The user is not told when the dictionary cannot be written, as with every other file.
  const std::string sayData = txtSayData_->Text();
  static_cast<void>(
      context_.dictionary.SaveDictionaryValue(DictionaryStore::Section, zWord, sayData));
  emit Saved();
  if (const QString notice = CutNotice(sayData); !notice.isEmpty()) {
    ShowHint(cmdSave_, notice);
  }
}

}  // namespace loquitor
