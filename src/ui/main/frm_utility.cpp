#include "ui/main/frm_utility.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <utility>

#include "line/scp.h"
#include "ui/chip/frm_baud_rate.h"
#include "ui/chip/frm_buttons.h"
#include "ui/chip/frm_eeprom.h"
#include "ui/controls/check_box.h"
#include "ui/controls/hint.h"
#include "ui/controls/text_box.h"
#include "ui/dictedit/frm_dict_edit.h"
#include "ui/phrase/frm_phrase.h"
#include "ui/synth/frm_synth_ctrl.h"
#include "ui/windows/centring.h"
#include "ui/windows/stray_double_click.h"
#include "ui/windows/tool_window.h"

namespace loquitor {
namespace {

constexpr TwipSize ClientSize{6345, 2265};

constexpr ControlRow Rows[] = {
    ButtonRow("EditPhrases", "", "Phrase Editor", {120, 120, 1995, 495}),
    ButtonRow("EditEEPROM", "", "EEPROM Editor", {2190, 120, 1995, 495}),
    ButtonRow("btnSetSerialPort", "", "Event Config", {4260, 120, 1995, 495}),
    PlainRow(ControlKind::Frame, "Frame13", "", "Communication Settings", {120, 1290, 4815, 855}),
    BoxRow("txtComPort", "Frame13", "1", {1200, 330, 435, 315}, "Serial Port"),
    PlainRow(ControlKind::RightLabel, "Label1", "Frame13", "Serial Port:", {60, 390, 1095, 255}),
    ButtonRow("cmdTestSerialPort", "Frame13", "Test Serial Connection", {1800, 300, 1875, 315}),
    ButtonRow("btnSynth", "", "Synth Control", {120, 690, 1995, 495}),
    ButtonRow("Command1", "", "Baud Rate and Detune", {4260, 690, 1995, 495}),
    ButtonRow("btnDictEdit", "", "Dictionary Editor", {2190, 690, 1995, 495}),
    ButtonRow("btnDone", "", "Done", {5220, 1740, 975, 435}),
    {ControlKind::CheckBox,
     "chkFlow",
     "Frame13",
     "Control",
     {3780, 390, 945, 285},
     "",
     "Use Flow Control"},
    PlainRow(ControlKind::Label, "Label2", "Frame13", "Use Flow", {3990, 180, 795, 225}),
};

Form FormOf(QWidget* zWindow) {
  zWindow->setFont(FormFont());
  Form form(zWindow);
  form.Add(Rows);
  return form;
}

}  // namespace

frmUtility::frmUtility(SerialPort& zPort, const SettingsFile& zSettings,
                       const DictionaryStore& zDictionary, Prompts& zPrompts, PhoneSource* zPhones)
    : QWidget(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                           Qt::WindowCloseButtonHint),
      settings_(zSettings),
      form_(FormOf(this)),
      txtComPort_(form_.Get<TextBox>("txtComPort")),
      chkFlow_(form_.Get<CheckBox>("chkFlow")),
      serial_(zPort, {this, txtComPort_, chkFlow_}, zSettings, zPrompts),
      parts_(serial_.Sender(), zSettings, zDictionary, zPrompts, zPhones) {
  setWindowTitle(QStringLiteral("Quenlith Phrase Translator for Orvatone  V.1.4"));
  setObjectName(QStringLiteral("frmUtility"));
  resize(ClientSize.ToPixels());
  setMinimumSize(ClientSize.ToPixels());
  IgnoreStrayDoubleClicks(this);
  ConnectControls();
}

frmUtility::~frmUtility() = default;

void frmUtility::ConnectControls() {
  form_.OnClick("EditPhrases", this, &frmUtility::EditPhrases_Click);
  form_.OnClick("EditEEPROM", this, &frmUtility::ShowEditor<frmEEPROM>);
  form_.OnClick("btnSetSerialPort", this, &frmUtility::ShowEditor<frmButtons>);
  form_.OnClick("btnSynth", this, &frmUtility::ShowEditor<FrmSynthCtrl>);
  form_.OnClick("Command1", this, &frmUtility::ShowEditor<frmBaudRate>);
  form_.OnClick("btnDictEdit", this, &frmUtility::ShowEditor<frmDictEdit>);
  form_.OnClick("cmdTestSerialPort", this, &frmUtility::cmdTestSerialPort_Click);
  form_.OnClick("btnDone", this, &frmUtility::close);
  connect(txtComPort_, &TextBox::LostFocus, this, &frmUtility::txtComPort_LostFocus);
  txtComPort_->installEventFilter(this);
}

void frmUtility::Open() {
  if (!isLoaded_) {
    isLoaded_ = true;
    Load();
    Centre(this);
  }
  show();
}

void frmUtility::Load() {
  txtComPort_->SetText(settings_.GetIniValue("Serial", "Port", "1"));
  chkFlow_->SetValue(WantsFlowControl(settings_) ? 1 : 0);
  parts_.BuildCodeTable();
  serial_.ShowPortState(PortState::Closed);
}

void frmUtility::closeEvent(QCloseEvent* zEvent) {
  Unload();
  zEvent->accept();
}

void frmUtility::Unload() {
  if (!isLoaded_ || std::exchange(isUnloaded_, true)) {
    return;
  }
  CloseEditors();
  serial_.RefusePorts();
  serial_.Sender().CloseSerialPort();
  settings_.SaveIniValue("Serial", "Port", txtComPort_->Text());
  settings_.SaveIniValue("Serial", "FlowControl", chkFlow_->Value());
}

/// The user cannot close this window while an editor is open, but the end of the session can.
void frmUtility::CloseEditors() {
  const QWidget* last = nullptr;
  while (QWidget* modal = QApplication::activeModalWidget()) {
    if (modal == last) {
      return;
    }
    last = modal;
    modal->close();
  }
}

void frmUtility::keyPressEvent(QKeyEvent* zEvent) {
  zEvent->accept();
}

bool frmUtility::eventFilter(QObject* zWatched, QEvent* zEvent) {
  if (zWatched == txtComPort_ && zEvent->type() == QEvent::ToolTip) {
    txtComPort_->setToolTip(PlainTooltip(serial_.PortText()));
  }
  return QWidget::eventFilter(zWatched, zEvent);
}

/// Shows the editor modally, unless one is open or being opened. An editor that has been closed is
/// not open, even while one of its sends still waits for the line.
template <class Editor>
void frmUtility::ShowEditor() {
  if (openEditor_ != nullptr && !openEditor_->IsUnloaded()) {
    return;
  }
  Editor editor(this, parts_.Context());
  openEditor_ = &editor;
  editor.ShowModal();
}

void frmUtility::EditPhrases_Click() {
  parts_.Context().shared.PhraseToMove.clear();
  parts_.Context().shared.WordToMove.clear();
  ShowEditor<frmPhrase>();
}

void frmUtility::cmdTestSerialPort_Click() {
  serial_.Sender().SendCodesToOrvatone(ConnectionTest(), false);
}

void frmUtility::txtComPort_LostFocus() {
  serial_.Sender().CloseSerialPort();
  serial_.ShowPortState(PortState::Closed);
}

}  // namespace loquitor
