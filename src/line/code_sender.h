#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "line/send_queue.h"
#include "line/serial_port.h"

namespace loquitor {

class SettingsFile;

/// The state of the port, for the user.
enum class PortState {
  Closed,
  Open,
  Failed,  ///< could not be opened, or failed while it was open
};

/// Whether the user's clicks, keys and wheel are handled now or stay in the queue for later.
enum class UserInput { Now, Later };

/// What the sender needs of the program around it: the main window, loquitor-say, or a test.
/// line/qt/event_turns.h implements the last three for programs with a Qt event loop.
class SenderHost {
 public:
  virtual ~SenderHost() = default;

  /// The device of the port number that the user has chosen; empty when there is none. See
  /// port_numbers.h.
  virtual std::string PortDevice() const = 0;

  /// Whether the flow control check box is ticked.
  virtual bool IsFlowControlTicked() const = 0;

  /// Shows the user the state of the port. The main window has a box that is white while it is
  /// closed, green while it is open, and red after a failure.
  virtual void ShowPortState(PortState zState) = 0;

  /// Asks the user whether to send a phrase of more than 64 codes without flow control. True for
  /// Yes.
  virtual bool ConfirmLongPhrase() = 0;

  /// Stops the closing timer if it runs.
  virtual void StopClosingTimer() = 0;

  /// Starts the closing timer, from the beginning if it runs. `zMilliseconds` later the host calls
  /// CodeSender::CloseSerialPort.
  virtual void StartClosingTimer(int zMilliseconds) = 0;

  /// Handles the events that are pending and returns.
  virtual void LetEventsRun(UserInput zInput) = 0;

  /// Waits for events and handles them. Returns after the first ones, and after a few milliseconds
  /// at the latest. Used while the port cannot take a byte.
  virtual void WaitForEvents(UserInput zInput) = 0;

  /// Switches ticking on or off. While it is on, the host calls CodeSender::Tick every few
  /// milliseconds from its event loop, also while a modal window or a message box runs that loop.
  virtual void SetTicking(bool zIsOn) = 0;
};

/// Names one send, so that its owner can ask about it later.
class SendTicket {
 public:
  /// Names no send.
  SendTicket() = default;

 private:
  friend class CodeSender;
  explicit SendTicket(std::size_t zNumber) : number_(zNumber) {}

  std::size_t number_ = 0;
};

/// Sends everything that goes to the chip. Opens the port on demand, writes bytes one at a time and
/// lets the user interface run between them. Call it from one thread only. Every call may be made
/// from the events that run during a send.
///
/// A send that starts during another one replaces the rest of that one: the bytes of the new send
/// go out, then the older send finds nothing left and ends.
///
/// Sends nest up to a fixed depth, so that dragging a bar on a slow line does not exhaust the
/// stack. A send beyond that depth handles no user input while it writes. A command string that has
/// begun goes out whole before it. After 0.2 s it hands its remaining bytes to the innermost send
/// that still accepts user input, so a line that takes no bytes does not lock the user out. Bytes
/// that are handed over in the same turn of the event loop stay together; see SendQueue::Add.
class CodeSender {
 public:
  /// All three outlive the sender.
  CodeSender(SerialPort& zPort, SenderHost& zHost, const SettingsFile& zSettings);
  ~CodeSender();
  CodeSender(const CodeSender&) = delete;
  CodeSender& operator=(const CodeSender&) = delete;

  /// Sends `zCodes`, one byte for each character, exactly as given.
  ///
  /// `zIsPhrase` is true for spoken code strings, false for command strings. Before a spoken one of
  /// more than 64 codes the host is asked, unless flow control is ticked; if it declines, nothing
  /// is sent. A port that is opened for a spoken one uses hardware flow control if that is ticked.
  ///
  /// `zTicket` is set to this send before its first byte, unless the host declines.
  ///
  /// Returns when the bytes have left for the line, or when the rest was replaced or cleared.
  /// Beyond the fixed depth it also returns when the rest was handed over. If the port cannot be
  /// opened or fails during the send, the send ends and the host shows the failure; see HasFailed.
  void SendCodesToOrvatone(std::string_view zCodes, bool zIsPhrase, SendTicket* zTicket = nullptr);

  /// Drops the rest of a send under way and sends StopSequence.
  void ShutUp();

  /// Closes the port if it is open, and shows it closed. A send under way ends. Does nothing when
  /// the port is not open, so a failure stays shown.
  void CloseSerialPort();

  /// Empties PendingOutput. A send under way then ends without another byte.
  void ClearPendingOutput() { queue_.Clear(); }

  /// The bytes of the send under way that are not written yet. Valid until the next call.
  std::string_view PendingOutput() const { return queue_.Bytes(); }

  /// Writes the next byte if one is pending and the port is ready. Starts the closing timer when
  /// the send under way has nothing left to do. This keeps a send going, and lets the port close
  /// after it, while a modal window that was opened during it holds up its own loop.
  void Tick();

  /// True while a send is under way, or several that nest.
  bool IsSending() const { return depth_ > 0; }

  /// True while the send `zTicket` is under way and no other send has begun since.
  bool IsUnderWay(SendTicket zTicket) const {
    return zTicket.number_ != 0 && zTicket.number_ == current_;
  }

  /// True when the last send could not open the port, or the port has failed since.
  bool HasFailed() const { return failure_.error != PortError::None; }

  /// Why HasFailed is true. Its error is PortError::None when HasFailed is false.
  const PortFailure& Failure() const { return failure_; }

 private:
  friend class UserInputHold;

  bool OpenSerialPort(bool zIsPhrase);
  PortFailure TryToOpen(bool zIsPhrase);
  bool IsRefused(std::string_view zCodes, bool zIsPhrase);
  void WriteWithoutUserInput();
  void WritePendingOutput();
  void TakeTurn(UserInput zInput);
  bool IsDone() const;
  void WriteNextByte();
  void OnPortFailed();
  void StartClosingTimer();

  SerialPort& port_;
  SenderHost& host_;
  const SettingsFile& settings_;
  SendQueue queue_;
  std::size_t sendCount_ = 0;  // how many sends have begun
  std::size_t current_ = 0;    // the latest of them while it is under way
  int depth_ = 0;              // how many of them are under way
  int inputHolds_ = 0;         // how many UserInputHolds there are
  bool isLineSlow_ = false;    // a send without user input gave up, and no byte was written since
  bool isPortShownOpen_ = false;
  bool isClosingSoon_ = false;  // the closing timer was started, and no send has begun since
  PortFailure failure_;
  std::string device_;  // the one that was opened last
};

/// While one lives, sends handle no user input: clicks, keys and the wheel wait in the queue.
class UserInputHold {
 public:
  /// `zSender` outlives it.
  explicit UserInputHold(CodeSender& zSender) : sender_(zSender) { ++sender_.inputHolds_; }
  ~UserInputHold() { --sender_.inputHolds_; }
  UserInputHold(const UserInputHold&) = delete;
  UserInputHold& operator=(const UserInputHold&) = delete;

 private:
  CodeSender& sender_;
};

}  // namespace loquitor
