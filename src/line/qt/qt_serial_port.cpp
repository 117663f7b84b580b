#include "line/qt/qt_serial_port.h"

#include <QDeadlineTimer>
#include <QThread>
#include <chrono>
#include <utility>

namespace loquitor {

namespace {

constexpr std::chrono::milliseconds LongestClose{100};

/// Why a port that could be locked cannot be opened.
PortError ErrorOf(QSerialPort::SerialPortError zError) {
  switch (zError) {
    case QSerialPort::DeviceNotFoundError:
      return PortError::Missing;
    case QSerialPort::PermissionError:
      return PortError::InUse;
    case QSerialPort::UnsupportedOperationError:
      return PortError::BadBaudRate;
    default:
      return PortError::Unusable;
  }
}

}  // namespace

QtSerialPort::QtSerialPort() {
  QObject::connect(&port_, &QSerialPort::errorOccurred, &port_,
                   [this](QSerialPort::SerialPortError zError) { OnError(zError); });
  // Nothing that arrives is used, but it must not pile up.
  QObject::connect(&port_, &QSerialPort::readyRead, &port_, [this] { DiscardReceived(); });
}

QtSerialPort::~QtSerialPort() {
  Close();
}

PortFailure QtSerialPort::Open(const SerialPortSettings& zSettings) {
  Close();
  PortFailure failure{.error = TryToOpen(zSettings), .device = zSettings.device};
  isOpen_ = failure.error == PortError::None;
  if (!isOpen_) {
    lock_.Release();
  }
  if (failure.error == PortError::NotPermitted) {
    failure.group = GroupOfDevice(zSettings.device);
  }
  if (failure.error == PortError::BadBaudRate) {
    failure.baudRate = zSettings.baudRate;
  }
  // A driver that does not report an unused transmitter as empty does not know.
  tellsTransmitter_ = isOpen_ && IsTransmitterEmpty(port_);
  return failure;
}

PortError QtSerialPort::TryToOpen(const SerialPortSettings& zSettings) {
  const PortError error = lock_.Take(zSettings.device);
  if (error != PortError::None) {
    return error;
  }
  const auto baudRate = BaudRateOf(zSettings.baudRate);
  return baudRate ? OpenConfigured(*baudRate, zSettings.hardwareHandshaking)
                  : PortError::BadBaudRate;
}

PortError QtSerialPort::OpenConfigured(std::int32_t zBaudRate, bool zHardwareHandshaking) {
  port_.setPortName(lock_.Device());
  // Set before opening, so that the line never runs with other settings.
  const bool isConfigured = port_.setBaudRate(zBaudRate) && port_.setDataBits(QSerialPort::Data8) &&
                            port_.setParity(QSerialPort::NoParity) &&
                            port_.setStopBits(QSerialPort::OneStop) &&
                            port_.setFlowControl(zHardwareHandshaking ? QSerialPort::HardwareControl
                                                                      : QSerialPort::NoFlowControl);
  const bool isOpen = isConfigured && port_.open(QIODevice::ReadWrite);
  return isOpen ? PortError::None : ErrorOf(port_.error());
}

void QtSerialPort::Close() {
  LetQueueGoOut();
  isOpen_ = false;
  hasFailed_ = false;
  if (port_.isOpen()) {
    static_cast<void>(port_.clear(QSerialPort::Output));  // a failed port may refuse
    DiscardSystemQueue(port_);
    port_.close();
  }
  lock_.Release();
}

void QtSerialPort::LetQueueGoOut() const {
  // A full queue takes 67 ms at 2400 bits a second, the slowest that the chip knows.
  const QDeadlineTimer deadline(LongestClose);
  while (UnsentBytes() > 0 && !deadline.hasExpired()) {
    QThread::msleep(1);
  }
}

void QtSerialPort::DiscardReceived() {
  if (isOpen_) {
    static_cast<void>(port_.readAll());
  }
}

bool QtSerialPort::IsReadyForByte() const {
  return isOpen_ && port_.bytesToWrite() == 0 && BytesInSystemQueue(port_) < PortQueueLimit &&
         TakesByteNow(port_);
}

bool QtSerialPort::WriteByte(std::uint8_t zByte) {
  const char byte = static_cast<char>(zByte);
  if (!isOpen_ || port_.write(&byte, 1) != 1) {
    return false;
  }
  static_cast<void>(port_.flush());  // false also when there was nothing to do; OnError sees errors
  return isOpen_;
}

int QtSerialPort::UnsentBytes() const {
  if (!isOpen_) {
    return 0;
  }
  const int queued = static_cast<int>(port_.bytesToWrite()) + BytesInSystemQueue(port_);
  return queued == 0 && tellsTransmitter_ && !IsTransmitterEmpty(port_) ? 1 : queued;
}

void QtSerialPort::CloseWhenSent() {
  if (isOpen_) {
    WaitForLine(port_);
    isOpen_ = false;
    port_.close();
  }
  Close();
}

void QtSerialPort::SetFailureHandler(std::function<void()> zHandler) {
  failureHandler_ = std::move(zHandler);
}

void QtSerialPort::OnError(QSerialPort::SerialPortError zError) {
  if (!isOpen_ || zError == QSerialPort::NoError) {
    return;
  }
  isOpen_ = false;
  hasFailed_ = true;
  // The port must not be closed within its own signal.
  QMetaObject::invokeMethod(
      &port_, [this] { FinishFailure(); }, Qt::QueuedConnection);
}

void QtSerialPort::FinishFailure() {
  if (!hasFailed_) {
    return;  // closed or opened again meanwhile
  }
  Close();
  if (failureHandler_) {
    failureHandler_();
  }
}

}  // namespace loquitor
