#include "link/qt/serial_line.h"

#include <QFile>
#include <filesystem>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>
#endif

namespace loquitor {

#ifdef Q_OS_WIN

QString ResolveDevice(const std::string& zDevice) {
  return QString::fromLocal8Bit(zDevice.c_str());
}

int BytesInSystemQueue(const QSerialPort& zPort) {
  COMSTAT status{};
  DWORD errors = 0;
  return ClearCommError(zPort.handle(), &errors, &status) ? static_cast<int>(status.cbOutQue) : 0;
}

bool IsTransmitterEmpty(const QSerialPort&) {
  return true;
}

bool TakesByteNow(const QSerialPort&) {
  return true;
}

void WaitForLine(const QSerialPort& zPort) {
  static_cast<void>(FlushFileBuffers(zPort.handle()));  // closing anyway
}

void DiscardSystemQueue(const QSerialPort& zPort) {
  static_cast<void>(PurgeComm(zPort.handle(), PURGE_TXABORT | PURGE_TXCLEAR));  // closing anyway
}

bool LineLock::Take(const QString&) {
  return true;
}

void LineLock::Release() {}

#else

QString ResolveDevice(const std::string& zDevice) {
  std::error_code error;
  const std::filesystem::path path = std::filesystem::canonical(zDevice.c_str(), error);
  const bool isDevice = !error && std::filesystem::is_character_file(path, error);
  return isDevice ? QFile::decodeName(path.c_str()) : QString();
}

int BytesInSystemQueue(const QSerialPort& zPort) {
  int count = 0;
  return ::ioctl(zPort.handle(), TIOCOUTQ, &count) == 0 ? count : 0;
}

bool IsTransmitterEmpty([[maybe_unused]] const QSerialPort& zPort) {
#ifdef TIOCSERGETLSR
  unsigned int status = 0;
  return ::ioctl(zPort.handle(), TIOCSERGETLSR, &status) != 0 || (status & TIOCSER_TEMT) != 0;
#else
  return true;
#endif
}

bool TakesByteNow(const QSerialPort& zPort) {
  pollfd line{.fd = zPort.handle(), .events = POLLOUT, .revents = 0};
  return ::poll(&line, 1, 0) > 0;  // a line that has hung up counts: the write then tells
}

void WaitForLine(const QSerialPort& zPort) {
  static_cast<void>(::tcdrain(zPort.handle()));  // a line that has hung up takes nothing
}

void DiscardSystemQueue(const QSerialPort& zPort) {
  static_cast<void>(::tcflush(zPort.handle(), TCOFLUSH));  // a line that has hung up holds nothing
}

bool LineLock::Take(const QString& zDevice) {
  Release();
  descriptor_ =
      ::open(QFile::encodeName(zDevice).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
  if (descriptor_ < 0) {
    return false;
  }
  if (::isatty(descriptor_) == 0 || ::flock(descriptor_, LOCK_EX | LOCK_NB) != 0) {
    Release();
    return false;
  }
  return true;
}

void LineLock::Release() {
  if (descriptor_ >= 0) {
    static_cast<void>(::close(descriptor_));  // nothing was written through it
    descriptor_ = -1;
  }
}

#endif

}  // namespace loquitor
