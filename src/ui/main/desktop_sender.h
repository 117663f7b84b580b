#pragma once

#include <QString>
#include <QTimer>
#include <QWidget>
#include <string>

#include "files/settings_file.h"
#include "line/code_sender.h"
#include "line/qt/event_turns.h"
#include "ui/windows/failure_hint.h"
#include "ui/windows/prompts.h"
#include "ui/windows/send_progress.h"

namespace loquitor {

class CheckBox;
class TextBox;

/// The sender of the desktop program, with all that it needs of the program: the port number and
/// the flow control box of the main window, the port box's colour, the timer that closes the port,
/// and the event loop.
class DesktopSender : private SenderHost {
 public:
  /// The main window, and its controls that hold the serial settings.
  struct Controls {
    QWidget* window;
    TextBox* txtComPort;
    CheckBox* chkFlow;
  };

  /// All references outlive this object.
  DesktopSender(SerialPort& zPort, const Controls& zControls, const SettingsFile& zSettings,
                Prompts& zPrompts);

  CodeSender& Sender() { return sender_; }

  /// Shows the state of the port: white, green or red.
  void ShowPortState(PortState zState) override;

  /// Why the port failed, if the box shows that, and which port number leads where.
  QString PortText() const;

  /// From now on no port is opened: what is left of a handler that waits for the line must not open
  /// one while the program ends.
  void RefusePorts() { refusesPorts_ = true; }

 private:
  std::string PortDevice() const override;
  bool IsFlowControlTicked() const override;
  bool ConfirmLongPhrase() override;
  void StopClosingTimer() override;
  void StartClosingTimer(int zMilliseconds) override;
  void LetEventsRun(UserInput zInput) override { turns_.LetEventsRun(zInput); }
  void WaitForEvents(UserInput zInput) override { turns_.WaitForEvents(zInput); }
  void SetTicking(bool zIsOn) override;

  QString FailureText() const;

  void Timer1_Timer();

  Controls controls_;
  const SettingsFile& settings_;
  Prompts& prompts_;
  CodeSender sender_;
  EventTurns turns_;
  SendProgress progress_;
  QTimer Timer1_;
  FailureHint failureHint_;
  PortState portState_ = PortState::Closed;  // as the port box shows it
  bool refusesPorts_ = false;
};

}  // namespace loquitor
