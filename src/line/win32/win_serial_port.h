#pragma once

#include <functional>
#include <memory>

#include "line/serial_port.h"

namespace loquitor {

/// A COM port of Windows, or a named pipe in its place. Plain Windows API.
class WinSerialPort : public SerialPort {
 public:
  /// Runs an action later, from the event loop.
  using RunLater = std::function<void(std::function<void()>)>;

  /// `zRunLater` delivers a failure. The action may run after this port has been destroyed; it does
  /// nothing then.
  explicit WinSerialPort(RunLater zRunLater);
  ~WinSerialPort() override;

  /// `zSettings.device` in UTF-8: the name of a port, such as COM3, or the whole name of a pipe,
  /// such as \\.\pipe\NAME. Speed and handshaking mean nothing to a pipe. Waits up to 0.1 s for a
  /// pipe that another program has.
  PortFailure Open(const SerialPortSettings& zSettings) override;
  void Close() override;
  bool IsOpen() const override;
  void DiscardReceived() override;
  bool IsReadyForByte() const override;

  /// The byte is in the hands of the operating system when this returns true.
  bool WriteByte(std::uint8_t zByte) override;

  int UnsentBytes() const override;

  /// Closes the port once the line has taken what was handed over, and discards nothing. Only after
  /// UnsentBytes has come to 0: it does not watch for a line that is held back.
  void CloseWhenSent();

  void SetFailureHandler(std::function<void()> zHandler) override;

 private:
  class Line;

  void TellLater(const std::weak_ptr<Line>& zLine);

  RunLater runLater_;
  std::shared_ptr<Line> line_;
  std::function<void()> failureHandler_;
};

}  // namespace loquitor
