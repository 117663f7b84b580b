#pragma once

#include <QSerialPort>

#include "line/qt/serial_line.h"
#include "line/serial_port.h"

namespace loquitor {

/// A serial port by Qt SerialPort. Needs a QCoreApplication. Its event loop notices failures, even
/// when nothing is being sent.
class QtSerialPort : public SerialPort {
 public:
  QtSerialPort();
  ~QtSerialPort() override;

  /// `zSettings.device` is the path of a serial device or pseudo-terminal, or of a symbolic link to
  /// one, as the file system spells it.
  PortFailure Open(const SerialPortSettings& zSettings) override;
  void Close() override;
  bool IsOpen() const override { return isOpen_; }
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
  PortError TryToOpen(const SerialPortSettings& zSettings);
  PortError OpenConfigured(std::int32_t zBaudRate, bool zHardwareHandshaking);
  void LetQueueGoOut() const;
  void OnError(QSerialPort::SerialPortError zError);
  void FinishFailure();

  QSerialPort port_;
  LineLock lock_;
  std::function<void()> failureHandler_;
  bool isOpen_ = false;
  bool tellsTransmitter_ = false;  // the driver says whether the transmitter is empty
  bool hasFailed_ = false;         // failed, but the layer below is not closed yet
};

}  // namespace loquitor
