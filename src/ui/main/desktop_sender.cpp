#include "ui/main/desktop_sender.h"

#include <QApplication>

#include "files/settings_file.h"
#include "line/port_numbers.h"
#include "line/qt/serial_devices.h"
#include "text/number_text.h"
#include "ui/controls/check_box.h"
#include "ui/controls/text_box.h"
#include "ui/windows/prompts.h"

namespace loquitor {
namespace {

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

DesktopSender::DesktopSender(SerialPort& zPort, const Controls& zControls,
                             const SettingsFile& zSettings, Prompts& zPrompts)
    : controls_(zControls),
      settings_(zSettings),
      prompts_(zPrompts),
      sender_(zPort, *this, zSettings),
      turns_([this] { sender_.Tick(); }),
      progress_(zControls.window, sender_),
      Timer1_(zControls.window) {
  Timer1_.setObjectName(QStringLiteral("Timer1"));
  Timer1_.setTimerType(Qt::PreciseTimer);  // the other types may fire too early
  QObject::connect(&Timer1_, &QTimer::timeout, [this] { Timer1_Timer(); });
}

std::string DesktopSender::PortDevice() const {
  const std::optional<int> number = WholeNumberAtStart(controls_.txtComPort->Text());
  const bool isUsable = number && !refusesPorts_;
  return isUsable ? DeviceForPort(*number, settings_, PresentSerialDevices) : std::string();
}

bool DesktopSender::IsFlowControlTicked() const {
  return controls_.chkFlow->Value() == 1;
}

void DesktopSender::ShowPortState(PortState zState) {
  portState_ = zState;
  controls_.txtComPort->SetBackground(ColourOf(zState));
  // When a port is lost while nothing is sent, nothing that the user did has failed.
  const bool isAnswer = sender_.Failure().error != PortError::Lost || sender_.IsSending();
  if (zState == PortState::Failed && isAnswer && !refusesPorts_) {
    failureHint_.Tell(FailureText());
  }
}

QString DesktopSender::FailureText() const {
  constexpr int shown = 20;  // characters; the box takes thousands
  const std::string number = controls_.txtComPort->text().trimmed().left(shown).toStdString();
  const QString text = QString::fromStdString(DescribeFailure(sender_.Failure(), number));
  return QString(text).replace(QLatin1String(". "), QLatin1String(".\n"));  // hints do not wrap
}

QString DesktopSender::PortText() const {
  const QString failure =
      portState_ == PortState::Failed ? FailureText() + QLatin1String("\n\n") : QString();
  return failure + QString::fromStdString(DescribePorts(settings_, PresentSerialDevices()));
}

bool DesktopSender::ConfirmLongPhrase() {
  const QString text = QStringLiteral(
      "Flow Control is currently disabled. -AND-\r\n"
      "The phrase that you are about to play is longer than 64 codes.\r\n"
      "\r\n"
      "This will result in some of the codes after the 64th one to not being played.\r\n"
      "\r\n"
      "Do you still want to send it to the Orvatone.");
  QWidget* modal = QApplication::activeModalWidget();
  return prompts_.Ask(modal == nullptr ? controls_.window : modal, QStringLiteral("Notice"), text,
                      PromptButtons::YesNo) == PromptAnswer::Yes;
}

void DesktopSender::StopClosingTimer() {
  Timer1_.setInterval(0);
  Timer1_.stop();
}

void DesktopSender::StartClosingTimer(int zMilliseconds) {
  Timer1_.setInterval(zMilliseconds);
  Timer1_.start();
}

void DesktopSender::SetTicking(bool zIsOn) {
  turns_.SetTicking(zIsOn);
  progress_.SetSending(zIsOn);
}

void DesktopSender::Timer1_Timer() {
  sender_.CloseSerialPort();
  StopClosingTimer();
}

}  // namespace loquitor
