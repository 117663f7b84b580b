#pragma once

#include <string>
#include <string_view>

#include "link/serial_port.h"
#include "link/settings_file.h"

namespace loquitor {

/// What the port box shows.
enum class PortState { Closed, Open, Failed };

/// Which events may be handled while the sender waits.
enum class EventScope {
  All,          ///< everything, the user's clicks and keys included
  NoUserInput,  ///< everything but the user's input
};

/// What the sender needs of the program around it: the main window, loquitor-say, or a test.
class SenderHost {
 public:
  virtual ~SenderHost() = default;

  /// The text of the port number box, Windows-1252.
  virtual std::string PortNumberText() const = 0;

  /// Whether the flow control check box is ticked.
  virtual bool IsFlowControlTicked() const = 0;

  /// Shows the state of the port: white, green or red.
  virtual void ShowPortState(PortState zState) = 0;

  /// The device for a port number; empty when there is none. See port_numbers.h.
  virtual std::string DeviceForPort(long long zPortNumber) = 0;

  /// Asks whether a phrase of more than 64 codes is sent without flow control. True for Yes.
  virtual bool ConfirmLongPhrase() = 0;

  /// Handles the events that are pending and returns.
  virtual void LetEventsRun(EventScope zScope) = 0;

  /// Handles events until something may have changed for the port (it took bytes, failed, was
  /// closed) or a short time has passed; used when the port cannot take a byte yet.
  virtual void WaitForEvents(EventScope zScope) = 0;

  /// The closing timer of the main window. When it fires the host calls
  /// CodeSender::CloseSerialPort.
  virtual void StopClosingTimer() = 0;
  virtual void StartClosingTimer(int zMilliseconds) = 0;
};

/// The one way to the chip. Opens the port on demand, writes bytes one at a time and lets the user
/// interface live between them. All calls on one thread; SendCodesToOrvatone may be entered again
/// from the events that it lets run.
class CodeSender {
 public:
  CodeSender(SerialPort& zPort, SenderHost& zHost, const SettingsFile& zSettings);

  /// Sends `zCodes`, one byte a character, exactly as given. `zIsPhrase`: true for spoken code
  /// strings (long-phrase question, hardware flow control), false for command strings.
  void SendCodesToOrvatone(std::string_view zCodes, bool zIsPhrase);

  /// Closes the port if it is open and shows it closed; else does nothing (a red box stays red).
  void CloseSerialPort();

  /// Empties PendingOutput, so that a send under way ends after the byte that it is writing.
  void ClearPendingOutput() { pendingOutput_.clear(); }

  /// The bytes of the present send that are not yet written.
  const std::string& PendingOutput() const { return pendingOutput_; }

  /// True while a send is under way (one of those that nest in each other).
  bool IsSending() const { return depth_ > 0; }

  /// True when the last send found no open port or lost it on the way.
  bool HasFailed() const { return hasFailed_; }

 private:
  void OpenSerialPort(bool zIsPhrase);

  SerialPort& port_;
  SenderHost& host_;
  const SettingsFile& settings_;
  std::string pendingOutput_;
  int depth_ = 0;
  bool hasFailed_ = false;
};

}  // namespace loquitor
