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

  /// `zRunLater` delivers failures. It may run an action after this port has been destroyed; the
  /// action then does nothing.
  explicit WinSerialPort(RunLater zRunLater);
  ~WinSerialPort() override;

  /// `zSettings.device` in UTF-8: the name of a port, such as COM3, or the whole name of a pipe,
  /// such as \\.\pipe\NAME. A pipe ignores speed and handshaking. Waits up to 0.1 s for a pipe that
  /// another program has open.
  PortFailure Open(const SerialPortSettings& zSettings) override;
  void Close() override;
  bool IsOpen() const override;
  void DiscardReceived() override;
  bool IsReadyForByte() const override;

  /// The operating system has the byte when this returns true.
  bool WriteByte(std::uint8_t zByte) override;

  int UnsentBytes() const override;

  /// Closes the port after the line has taken every byte; discards nothing. Call it only when
  /// UnsentBytes is 0, because it blocks while the line is held back.
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
