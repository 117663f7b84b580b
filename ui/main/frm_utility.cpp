#include "ui/main/frm_utility.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <utility>

#include "core/number_text.h"
#include "link/port_numbers.h"
#include "link/qt/serial_devices.h"
#include "link/scp.h"
#include "ui/chip/frm_baud_rate.h"
#include "ui/chip/frm_buttons.h"
#include "ui/chip/frm_eeprom.h"
#include "ui/dictedit/frm_dict_edit.h"
#include "ui/phrase/frm_phrase.h"
#include "ui/synth/frm_synth_ctrl.h"
#include "ui/toolkit/centring.h"
#include "ui/toolkit/check_box.h"
#include "ui/toolkit/code_page.h"
#include "ui/toolkit/form.h"
#include "ui/toolkit/half_click.h"
#include "ui/toolkit/text_box.h"
#include "ui/toolkit/tool_window.h"

namespace loquitor {
namespace {

constexpr TwipSize ClientSize{6345, 2265};

constexpr ControlRow Rows[] = {
    {ControlKind::Button, "EditPhrases", "", "Phrase Editor", {120, 120, 1995, 495}},
    {ControlKind::Button, "EditEEPROM", "", "EEPROM Editor", {2190, 120, 1995, 495}},
    {ControlKind::Button, "btnSetSerialPort", "", "Event Config", {4260, 120, 1995, 495}},
    {ControlKind::Frame, "Frame13", "", "Communication Settings", {120, 1290, 4815, 855}},
    {ControlKind::TextBox, "txtComPort", "Frame13", "1", {1200, 330, 435, 315}, "", "Serial Port"},
    {ControlKind::RightLabel, "Label1", "Frame13", "Serial Port:", {60, 390, 1095, 255}},
    {ControlKind::Button,
     "cmdTestSerialPort",
     "Frame13",
     "Test Serial Connection",
     {1800, 300, 1875, 315}},
    {ControlKind::Button, "btnSynth", "", "Synth Control", {120, 690, 1995, 495}},
    {ControlKind::Button, "Command1", "", "Baud Rate and Detune", {4260, 690, 1995, 495}},
    {ControlKind::Button, "btnDictEdit", "", "Dictionary Editor", {2190, 690, 1995, 495}},
    {ControlKind::Button, "btnDone", "", "Done", {5220, 1740, 975, 435}},
    {ControlKind::CheckBox,
     "chkFlow",
     "Frame13",
     "Control",
     {3780, 390, 945, 285},
     "",
     "Use Flow Control"},
    {ControlKind::Label, "Label2", "Frame13", "Use Flow", {3990, 180, 795, 225}},
};

QColor ColourOf(PortState zState) {
  switch (zState) {
    case PortState::Open:
      return {0, 255, 0};
    case PortState::Failed:
      return {255, 0, 0};
    case PortState::Closed:
      break;
  }
  return {255, 255, 255};
}

}  // namespace

frmUtility::frmUtility(SerialPort& zPort, const SettingsFile& zSettings,
                       const DictionaryStore& zDictionary, Prompts& zPrompts)
    : QWidget(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                           Qt::WindowCloseButtonHint),
      MSComm1_(zPort),
      settings_(zSettings),
      translator_(codeTable_, zDictionary),
      sender_(MSComm1_, *this, zSettings),
      turns_([this] { sender_.Tick(); }),
      context_{codeTable_, translator_, zDictionary, zSettings, sender_, zPrompts, shared_} {
  setWindowTitle(QStringLiteral("Quenlith Phrase Translator for Orvatone  V.1.4"));
  setObjectName(QStringLiteral("frmUtility"));
  setFont(FormFont());
  resize(ClientSize.ToPixels());
  KeepHalfClicksOut(this);
  Form form(this);
  form.Add(Rows);
  txtComPort_ = form.Get<TextBox>("txtComPort");
  chkFlow_ = form.Get<CheckBox>("chkFlow");
  ConnectControls(form);
}

frmUtility::~frmUtility() = default;

void frmUtility::ConnectControls(const Form& zForm) {
  connect(zForm.Get<QPushButton>("EditPhrases"), &QPushButton::clicked, this,
          &frmUtility::EditPhrases_Click);
  ShowOnClick<frmEEPROM>(zForm, "EditEEPROM");
  ShowOnClick<frmButtons>(zForm, "btnSetSerialPort");
  ShowOnClick<FrmSynthCtrl>(zForm, "btnSynth");
  ShowOnClick<frmBaudRate>(zForm, "Command1");
  ShowOnClick<frmDictEdit>(zForm, "btnDictEdit");
  connect(zForm.Get<QPushButton>("cmdTestSerialPort"), &QPushButton::clicked, this,
          &frmUtility::cmdTestSerialPort_Click);
  connect(zForm.Get<QPushButton>("btnDone"), &QPushButton::clicked, this, &frmUtility::close);
  connect(txtComPort_, &TextBox::LostFocus, this, &frmUtility::txtComPort_LostFocus);
  txtComPort_->installEventFilter(this);
  Timer1_.setObjectName(QStringLiteral("Timer1"));
  Timer1_.setTimerType(Qt::PreciseTimer);  // others may fire too early
  connect(&Timer1_, &QTimer::timeout, this, &frmUtility::Timer1_Timer);
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
  chkFlow_->SetValue(IsFlowControlStored(settings_) ? 1 : 0);
  codeTable_.BuildCodeTable();
  ShowPortState(PortState::Closed);
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
  sender_.CloseSerialPort();
  // In silence: the program ends with or without its settings stored.
  static_cast<void>(settings_.SaveIniValue("Serial", "Port", txtComPort_->Text()));
  static_cast<void>(settings_.SaveIniValue("Serial", "FlowControl", chkFlow_->Value()));
}

/// The user cannot close this window under a modal one, but a session that ends can.
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
    txtComPort_->setToolTip(
        QString::fromStdString(DescribePorts(settings_, PresentSerialDevices())));
  }
  return QWidget::eventFilter(zWatched, zEvent);
}

/// Shows the editor modally, unless one is open already or still opening. An editor that has been
/// closed counts no more, even when a send of it is still waiting for the line.
template <class Editor>
void frmUtility::ShowEditor() {
  if (openEditor_ != nullptr && !openEditor_->IsUnloaded()) {
    return;
  }
  Editor editor(this, context_);
  openEditor_ = &editor;
  editor.ShowModal();
}

template <class Editor>
void frmUtility::ShowOnClick(const Form& zForm, const char* zButton) {
  connect(zForm.Get<QPushButton>(QLatin1String(zButton)), &QPushButton::clicked, this,
          &frmUtility::ShowEditor<Editor>);
}

void frmUtility::EditPhrases_Click() {
  shared_.PhraseToMove.clear();
  shared_.WordToMove.clear();
  ShowEditor<frmPhrase>();
}

void frmUtility::cmdTestSerialPort_Click() {
  sender_.SendCodesToOrvatone(ConnectionTest(), false);
}

void frmUtility::txtComPort_LostFocus() {
  sender_.CloseSerialPort();
  ShowPortState(PortState::Closed);
}

void frmUtility::Timer1_Timer() {
  sender_.CloseSerialPort();
  StopClosingTimer();
}

std::string frmUtility::PortDevice() const {
  const std::optional<int> number = WholeNumberAtStart(txtComPort_->Text());
  // What is left of a handler that was waiting for the line must not open it again at the end.
  if (!number || isUnloaded_) {
    return {};
  }
  return DeviceForPort(*number, settings_, PresentSerialDevices);
}

bool frmUtility::IsFlowControlTicked() const {
  return chkFlow_->Value() == 1;
}

void frmUtility::ShowPortState(PortState zState) {
  txtComPort_->SetBackground(ColourOf(zState));
}

bool frmUtility::ConfirmLongPhrase() {
  const QString text = QStringLiteral(
      "Flow Control is currently disabled. -AND-\r\n"
      "The phrase that you are about to play is longer than 64 codes.\r\n"
      "\r\n"
      "This will result in some of the codes after the 64th one to not being played.\r\n"
      "\r\n"
      "Do you still want to send it to the Orvatone.");
  QWidget* modal = QApplication::activeModalWidget();
  return context_.prompts.Ask(modal == nullptr ? this : modal, QStringLiteral("Notice"), text,
                              PromptButtons::YesNo) == PromptAnswer::Yes;
}

void frmUtility::StopClosingTimer() {
  Timer1_.setInterval(0);
  Timer1_.stop();
}

void frmUtility::StartClosingTimer(int zMilliseconds) {
  Timer1_.setInterval(zMilliseconds);
  Timer1_.start();
}

}  // namespace loquitor
