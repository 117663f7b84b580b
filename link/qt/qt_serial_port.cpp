#include "link/qt/qt_serial_port.h"

#include <QDeadlineTimer>
#include <QThread>
#include <chrono>
#include <utility>

namespace loquitor {

namespace {

constexpr std::chrono::milliseconds LongestClose{100};

}  // namespace

QtSerialPort::QtSerialPort() {
  QObject::connect(&port_, &QSerialPort::errorOccurred, &port_,
                   [this](QSerialPort::SerialPortError zError) { OnError(zError); });
  // Nothing that arrives is ever read; it must not pile up either.
  QObject::connect(&port_, &QSerialPort::readyRead, &port_, [this] { DiscardReceived(); });
}

QtSerialPort::~QtSerialPort() {
  Close();
}

bool QtSerialPort::Open(const SerialPortSettings& zSettings) {
  Close();
  const auto baudRate = BaudRateOf(zSettings.baudRate);
  const QString device = ResolveDevice(zSettings.device);
  isOpen_ = baudRate && !device.isEmpty() && lock_.Take(device) &&
            OpenConfigured(device, *baudRate, zSettings.hardwareHandshaking);
  if (!isOpen_) {
    lock_.Release();
  }
  // A driver to which an unused transmitter is not empty does not know.
  tellsTransmitter_ = isOpen_ && IsTransmitterEmpty(port_);
  return isOpen_;
}

bool QtSerialPort::OpenConfigured(const QString& zDevice, std::int32_t zBaudRate,
                                  bool zHardwareHandshaking) {
  port_.setPortName(zDevice);
  // Set before opening, so that the line never runs with other settings.
  const bool isConfigured = port_.setBaudRate(zBaudRate) && port_.setDataBits(QSerialPort::Data8) &&
                            port_.setParity(QSerialPort::NoParity) &&
                            port_.setStopBits(QSerialPort::OneStop) &&
                            port_.setFlowControl(zHardwareHandshaking ? QSerialPort::HardwareControl
                                                                      : QSerialPort::NoFlowControl);
  return isConfigured && port_.open(QIODevice::ReadWrite);
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
  static_cast<void>(port_.flush());  // false also when there was nothing to do; errors are latched
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
  // Closing within the port's own signal would pull the ground from under it.
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
