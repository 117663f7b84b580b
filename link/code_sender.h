#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "link/serial_port.h"
#include "link/settings_file.h"

namespace loquitor {

/// What the port box shows.
enum class PortState { Closed, Open, Failed };

/// Whether the user's clicks, keys and wheel are handled now or stay in the queue for later.
enum class UserInput { Now, Later };

/// What the sender needs of the program around it: the main window, loquitor-say, or a test.
/// link/qt/event_turns.h has the last three for programs with a Qt event loop.
class SenderHost {
 public:
  virtual ~SenderHost() = default;

  /// The device of the port number that the user has chosen; empty when there is none. See
  /// port_numbers.h.
  virtual std::string PortDevice() const = 0;

  /// Whether the flow control check box is ticked.
  virtual bool IsFlowControlTicked() const = 0;

  /// Shows the state of the port: white, green or red.
  virtual void ShowPortState(PortState zState) = 0;

  /// Asks whether a phrase of more than 64 codes is sent without flow control. True for Yes.
  virtual bool ConfirmLongPhrase() = 0;

  /// The closing timer of the main window. When it fires the host calls
  /// CodeSender::CloseSerialPort.
  virtual void StopClosingTimer() = 0;
  virtual void StartClosingTimer(int zMilliseconds) = 0;

  /// Handles the events that are pending and returns.
  virtual void LetEventsRun(UserInput zInput) = 0;

  /// Waits for events and handles them: returns after the first ones, and after a few milliseconds
  /// at the latest. Used while the port cannot take a byte.
  virtual void WaitForEvents(UserInput zInput) = 0;

  /// While ticking is on the host calls CodeSender::Tick every few milliseconds out of its event
  /// loop, also out of the loop of a modal window or message box.
  virtual void SetTicking(bool zIsOn) = 0;
};

/// The one way to the chip. Opens the port on demand, writes bytes one at a time and lets the user
/// interface live between them. All calls on one thread; every one of them may come out of the
/// events that a send lets run.
///
/// A send that starts within another replaces what is left of it: its own bytes go out, then the
/// outer send finds nothing left and ends. Sends nest only to a fixed depth, so that a bar dragged
/// on a slow line does not exhaust the stack. A send beyond it lets no user input in while its
/// bytes go out, after those of a command string that has begun. So while the bar moves the chip
/// gets as many whole commands as the line carries, each with the latest value.
///
/// A line that stands still, or a phrase that takes long, must not lock the user out: after a fifth
/// of a second the send beyond the depth leaves what remains to the innermost send that lets him
/// in. What is left so in one turn of the event loop stays together in order, and takes the place
/// of what was left earlier and has not begun; a command string that has begun is finished first.
class CodeSender {
 public:
  /// All three outlive the sender.
  CodeSender(SerialPort& zPort, SenderHost& zHost, const SettingsFile& zSettings);
  ~CodeSender();
  CodeSender(const CodeSender&) = delete;
  CodeSender& operator=(const CodeSender&) = delete;

  /// Sends `zCodes`, one byte a character, exactly as given. `zIsPhrase`: true for spoken code
  /// strings (long-phrase question, hardware flow control), false for command strings. Returns when
  /// the bytes have left for the line, or what was left of them was replaced or emptied. A port
  /// that cannot be opened, or fails on the way, ends the send and shows red; nothing else is
  /// reported (see HasFailed).
  void SendCodesToOrvatone(std::string_view zCodes, bool zIsPhrase);

  /// Closes the port if it is open and shows it closed; else does nothing (a red box stays red).
  /// A send under way ends.
  void CloseSerialPort();

  /// Empties PendingOutput, so that a send under way ends after the byte that it is writing.
  void ClearPendingOutput();

  /// The bytes of the present send that are not yet written. Valid until the next call.
  std::string_view PendingOutput() const;

  /// Writes the next byte of a send whose own loop is held up by a modal window that was opened
  /// meanwhile. Does nothing when none is pending or the port is not ready.
  void Tick();

  /// True while a send is under way (one of those that nest in each other).
  bool IsSending() const { return depth_ > 0; }

  /// How many sends have begun. Tells whether another one has come since.
  std::size_t SendCount() const { return sendCount_; }

  /// True when the last send found no open port, or the port has failed since.
  bool HasFailed() const { return hasFailed_; }

 private:
  void OpenSerialPort(bool zIsPhrase);
  bool TryToOpen(bool zIsPhrase);
  bool IsRefused(std::string_view zCodes, bool zIsPhrase);
  void TakeOver(std::string_view zCodes, bool zIsPhrase);
  void LeaveToInnermost(std::string_view zCodes, bool zIsPhrase);
  void DropWhatMayBeReplaced();
  void WriteBeforeUserActs();
  void WritePendingOutput();
  void TakeTurn(UserInput zInput);
  bool IsDone() const;
  void WriteNextByte();
  void OnPortFailed();

  SerialPort& port_;
  SenderHost& host_;
  const SettingsFile& settings_;
  std::string pendingOutput_;     // with bytes that are already written at its start
  std::size_t writtenCount_ = 0;  // how many of them there are
  std::size_t lastBegin_ = 0;     // where the bytes begin that came last
  bool isLastPhrase_ = false;
  bool wasEmptied_ = false;    // rather than written to its end
  bool hasLeftBytes_ = false;  // bytes were left to the innermost send in this turn
  bool isLineSlow_ = false;    // the user has waited long enough, and no byte has left since
  std::size_t sendCount_ = 0;
  int depth_ = 0;  // how many sends are under way within each other
  bool isPortShownOpen_ = false;
  bool hasFailed_ = false;
};

}  // namespace loquitor
