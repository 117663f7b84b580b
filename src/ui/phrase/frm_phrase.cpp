#include "ui/phrase/frm_phrase.h"

#include <QLabel>
#include <utility>

#include "ui/controls/push_button.h"
#include "ui/controls/text_area.h"
#include "ui/controls/text_box.h"
#include "ui/phrase/dictionary_browser.h"
#include "ui/phrase/english_steps.h"
#include "ui/phrase/frm_codes.h"
#include "ui/phrase/phrase_form.h"
#include "ui/phrase/silent_marks.h"
#include "ui/phrase/sound_palette.h"
#include "ui/phrase/voice_controls.h"
#include "ui/windows/busy.h"

namespace loquitor {
namespace {

constexpr TwipSize ClientSize{11700, 7935};

}  // namespace

frmPhrase::frmPhrase(QWidget* zOwner, const EditorContext& zContext)
    : ToolWindow(zOwner, " Orvatone Phrase Editor", ClientSize), context_(zContext), form_(this) {
  AddControls();
  txtSayData_ = form_.Get<TextArea>("txtSayData");
  voice_ = new VoiceControls(form_, context_.codeTable, this);
  palette_ = new SoundPalette(this, form_, context_, *voice_);
  auto* browser = new DictionaryBrowser(this, form_, context_);
  connect(voice_, &VoiceControls::InsertWanted, this, &frmPhrase::InsertIntoSayData);
  connect(palette_, &SoundPalette::InsertWanted, this, &frmPhrase::InsertIntoSayData);
  connect(browser, &DictionaryBrowser::InsertWanted, this, &frmPhrase::InsertIntoSayData);
  connect(browser, &DictionaryBrowser::SayWanted, this, &frmPhrase::SayThisAllophoneList);
  ConnectEnglish(browser);
  ConnectButtons();
  SetKeys();
}

void frmPhrase::ConnectEnglish(DictionaryBrowser* zBrowser) {
  marks_ = new SilentMarks(txtSayData_, context_.translator);
  auto* english = new EnglishSteps(txtSayData_, context_);
  connect(english, &EnglishSteps::InsertWanted, this, &frmPhrase::InsertIntoSayData);
  connect(english, &EnglishSteps::EntryAdded, marks_, &SilentMarks::LookAgain);
  connect(zBrowser, &DictionaryBrowser::Loaded, english, &EnglishSteps::OfferSounds);
  connect(zBrowser, &DictionaryBrowser::Saved, marks_, &SilentMarks::LookAgain);
}

void frmPhrase::AddControls() {
  SoundPalette::AddRowsAndMembers(form_, PhraseRowsBeforeVoice);
  VoiceControls::AddTo(form_);
  SoundPalette::AddRowsAndMembers(form_, PhraseRowsAfterVoice);
  for (const char* name : {"Label2", "Label3", "Label4", "Label5", "Label6"}) {
    // In line with the sounds of their rows.
    form_.Get<QLabel>(name)->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  }
  HideUnreachableControls();
}

/// Hides controls that begin outside their frame. Otherwise Tab would lead to them.
void frmPhrase::HideUnreachableControls() {
  for (QWidget* control : findChildren<QWidget*>()) {
    const QWidget* parent = control->parentWidget();
    if (!control->objectName().isEmpty() && !parent->rect().contains(control->pos())) {
      control->hide();
    }
  }
}

void frmPhrase::ConnectButtons() {
  form_.OnClick("bntSayIt", this, &frmPhrase::bntSayIt_Click);
  form_.OnClick("btnSaySelection", this, &frmPhrase::btnSaySelection_Click);
  form_.OnClick("btnClear", this, &frmPhrase::btnClear_Click);
  form_.OnClick("btnCodes", this, &frmPhrase::btnCodes_Click);
  form_.OnClick("Command2", this, &frmPhrase::Command2_Click);
  form_.OnClick("btnShutUp", this, &frmPhrase::btnShutUp_Click);
  form_.OnClick("btnDone", this, &frmPhrase::btnDone_Click);
}

void frmPhrase::SetKeys() {
  const std::pair<const char*, QKeySequence> keys[] = {
      {"bntSayIt", Qt::Key_F5},  {"btnSaySelection", Qt::SHIFT | Qt::Key_F5},
      {"btnCodes", Qt::Key_F7},  {"Command2", Qt::SHIFT | Qt::Key_F7},
      {"btnShutUp", Qt::Key_F8}, {"cmdSave", Qt::CTRL | Qt::Key_S},
  };
  for (const auto& [button, key] : keys) {
    form_.Get<PushButton>(button)->SetKey(key);
  }
}

void frmPhrase::Load() {
  const SharedState& shared = context_.shared;
  if (!shared.WordToMove.empty()) {
    form_.Get<TextBox>("txtDict")->SetText(shared.WordToMove);
  }
  if (!shared.PhraseToMove.empty()) {
    txtSayData_->SetText(shared.PhraseToMove);
  }
  voice_->SetDefaults();
}

void frmPhrase::Activate() {
  marks_->LookAgain();  // another window or program may have changed the dictionary
  if (QWidget* before = focusWidget()) {
    // So that a box that loses the focus takes its text.
    before->setFocus(Qt::ActiveWindowFocusReason);
  }
  txtSayData_->setFocus();
  palette_->FocusRefusedBox();
}

void frmPhrase::bntSayIt_Click() {
  Say(&TextArea::Text, "bntSayIt");
}

void frmPhrase::btnSaySelection_Click() {
  Say(&TextArea::SelectedText, "btnSaySelection");
}

void frmPhrase::Say(SayDataPart zPart, const char* zButton) {
  // Keys that are typed while the phrase is sent go to the Say Data.
  txtSayData_->setFocus();
  const bool isOpen = RunBusy(this, form_.Get<PushButton>(zButton), [&] {
    SayThisAllophoneList(context_.translator.ExpandSayData((txtSayData_->*zPart)()));
  });
  if (isOpen) {
    txtSayData_->setFocus();
  }
}

void frmPhrase::SayThisAllophoneList(std::string_view zAllophoneList) {
  context_.sender.SendCodesToOrvatone(CodesOf(zAllophoneList), true);
}

std::string frmPhrase::CodesOf(std::string_view zAllophoneList) const {
  return voice_->PrefixForSayData() + context_.translator.MnemonicsToCodes(zAllophoneList);
}

void frmPhrase::btnCodes_Click() {
  ViewCodes(&TextArea::Text, "btnCodes");
}

void frmPhrase::Command2_Click() {
  ViewCodes(&TextArea::SelectedText, "Command2");
}

void frmPhrase::ViewCodes(SayDataPart zPart, const char* zButton) {
  std::string codes;
  const bool isOpen = RunBusy(this, form_.Get<PushButton>(zButton), [&] {
    codes = CodesOf(context_.translator.ExpandSayData((txtSayData_->*zPart)()));
  });
  if (isOpen) {
    txtSayData_->setFocus();
    ShowThisCodeList(codes);
  }
}

void frmPhrase::ShowThisCodeList(std::string_view zOrvatoneCodes) {
  context_.shared.OrvatoneCodes = CodeListText(zOrvatoneCodes);
  frmCodes(this, context_).ShowModal();
}

void frmPhrase::InsertIntoSayData(std::string_view zText) {
  if (txtSayData_->SelectionLength() == 0) {
    txtSayData_->SkipBlanks();
  }
  txtSayData_->ReplaceSelection(std::string(zText) + " ");
}

void frmPhrase::btnClear_Click() {
  txtSayData_->ReplaceText("");
  txtSayData_->setFocus();
}

void frmPhrase::btnShutUp_Click() {
  context_.sender.ShutUp();
  txtSayData_->setFocus();
}

void frmPhrase::btnDone_Click() {
  context_.shared.WordToMove = form_.Get<TextBox>("txtDict")->Text();
  context_.shared.PhraseToMove = txtSayData_->Text();
  close();
}

}  // namespace loquitor
