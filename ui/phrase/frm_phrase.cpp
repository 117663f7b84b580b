#include "ui/phrase/frm_phrase.h"

#include <QLabel>
#include <QPushButton>

#include "link/scp.h"
#include "ui/main/frm_codes.h"
#include "ui/phrase/dictionary_browser.h"
#include "ui/phrase/phrase_form.h"
#include "ui/phrase/sound_palette.h"
#include "ui/phrase/voice_controls.h"
#include "ui/toolkit/busy.h"
#include "ui/toolkit/text_box.h"

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
  ConnectButtons();
}

void frmPhrase::AddControls() {
  form_.Add(PhraseRowsBeforeVoice);
  VoiceControls::AddTo(form_);
  form_.Add(PhraseRowsAfterVoice);
  SoundPalette::AddTo(form_);
  for (const char* name : {"Label2", "Label3", "Label4", "Label5", "Label6"}) {
    // On one line with the members of their rows.
    form_.Get<QLabel>(name)->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  }
  HideUnreachableControls();
}

/// Controls that lie outside the visible part of their frame are not offered, to the keyboard
/// neither.
void frmPhrase::HideUnreachableControls() {
  for (QWidget* control : findChildren<QWidget*>()) {
    const QWidget* parent = control->parentWidget();
    if (!control->objectName().isEmpty() && !parent->rect().contains(control->pos())) {
      control->hide();
    }
  }
}

void frmPhrase::ConnectButtons() {
  const auto connectClick = [this](const char* zName, void (frmPhrase::*zHandler)()) {
    connect(form_.Get<QPushButton>(zName), &QPushButton::clicked, this, zHandler);
  };
  connectClick("bntSayIt", &frmPhrase::bntSayIt_Click);
  connectClick("btnSaySelection", &frmPhrase::btnSaySelection_Click);
  connectClick("btnClear", &frmPhrase::btnClear_Click);
  connectClick("btnCodes", &frmPhrase::btnCodes_Click);
  connectClick("Command2", &frmPhrase::Command2_Click);
  connectClick("btnShutUp", &frmPhrase::btnShutUp_Click);
  connectClick("btnDone", &frmPhrase::btnDone_Click);
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
  if (QWidget* before = focusWidget()) {
    before->setFocus(Qt::ActiveWindowFocusReason);  // for it to lose, so that a box takes its text
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
  // What is typed while the phrase goes out belongs into the Say Data.
  txtSayData_->setFocus();
  {
    const Busy busy(this, form_.Get<QPushButton>(zButton));
    if (IsUnloaded()) {
      return;  // closed by one of the events that were pending
    }
    SayThisAllophoneList(context_.translator.ExpandSayData((txtSayData_->*zPart)()));
  }
  txtSayData_->setFocus();
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
  {
    const Busy busy(this, form_.Get<QPushButton>(zButton));
    codes = CodesOf(context_.translator.ExpandSayData((txtSayData_->*zPart)()));
  }
  if (!IsUnloaded()) {
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
    while (txtSayData_->CharacterAfterCaret() == ' ') {
      txtSayData_->MoveCaretRight();
    }
  }
  txtSayData_->ReplaceSelection(std::string(zText) + " ");
}

void frmPhrase::btnClear_Click() {
  txtSayData_->ReplaceText("");
  txtSayData_->setFocus();
}

void frmPhrase::btnShutUp_Click() {
  context_.sender.ClearPendingOutput();
  context_.sender.SendCodesToOrvatone(StopSequence(), false);
  txtSayData_->setFocus();
}

void frmPhrase::btnDone_Click() {
  context_.shared.WordToMove = form_.Get<TextBox>("txtDict")->Text();
  context_.shared.PhraseToMove = txtSayData_->Text();
  close();
}

}  // namespace loquitor
