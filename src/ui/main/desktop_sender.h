#pragma once

#include <QString>
#include <QTimer>
#include <QWidget>
#include <string>

#include "line/code_sender.h"
#include "line/qt/event_turns.h"
#include "ui/windows/failure_hint.h"
#include "ui/windows/send_progress.h"

namespace loquitor {

class CheckBox;
class Prompts;
class SettingsFile;
class TextBox;

/// The sender of the desktop program, and its host: the port number and the flow control box of the
/// main window, the colour of the port box, the timer that closes the port, and the event loop.
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

  /// Colours the port box: white, green or red. Shows a hint at the control that was used last when
  /// something that the user did has failed.
  void ShowPortState(PortState zState) override;

  /// The tooltip of the port box: why the port failed, while the box is red, and which port number
  /// leads where.
  QString PortText() const;

  /// From now on no port is opened. Otherwise a handler that waits for the line could open one
  /// while the program ends.
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
