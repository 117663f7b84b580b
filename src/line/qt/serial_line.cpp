#include "line/qt/serial_line.h"

#include <QFile>
#include <cerrno>
#include <filesystem>

#include <fcntl.h>
#include <grp.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

namespace loquitor {

namespace {

/// What the error number `zError` says about a device that was to be opened.
PortError ErrorOf(int zError) {
  switch (zError) {
    case EACCES:
    case EPERM:
      return PortError::NotPermitted;
    case EBUSY:
      return PortError::InUse;
    case ENOENT:
    case ENOTDIR:
    case ENXIO:
    case ENODEV:
    case ELOOP:
    case ENAMETOOLONG:
      return PortError::Missing;
    default:
      return PortError::Unusable;
  }
}

}  // namespace

std::string GroupOfDevice(const std::string& zDevice) {
  constexpr mode_t ReadAndWrite = S_IRGRP | S_IWGRP;
  struct stat status {};
  if (::stat(zDevice.c_str(), &status) != 0 || (status.st_mode & ReadAndWrite) != ReadAndWrite) {
    return {};
  }
  const group* owner = ::getgrgid(status.st_gid);
  return owner == nullptr ? std::string() : owner->gr_name;
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
  return ::poll(&line, 1, 0) > 0;  // also for a line that has hung up: the write then fails
}

void WaitForLine(const QSerialPort& zPort) {
  static_cast<void>(::tcdrain(zPort.handle()));  // a line that has hung up takes nothing
}

void DiscardSystemQueue(const QSerialPort& zPort) {
  static_cast<void>(::tcflush(zPort.handle(), TCOFLUSH));  // a line that has hung up holds nothing
}

PortError LineLock::Take(const std::string& zDevice) {
  Release();
  std::error_code error;
  const std::filesystem::path path = std::filesystem::canonical(zDevice.c_str(), error);
  if (error) {
    return ErrorOf(error.value());
  }
  if (!std::filesystem::is_character_file(path, error)) {
    return PortError::NotSerial;
  }
  descriptor_ = ::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
  if (descriptor_ < 0) {
    return ErrorOf(errno);
  }
  device_ = QFile::decodeName(path.c_str());
  if (::isatty(descriptor_) == 0) {
    return PortError::NotSerial;
  }
  return ::flock(descriptor_, LOCK_EX | LOCK_NB) == 0 ? PortError::None : PortError::InUse;
}

void LineLock::Release() {
  if (descriptor_ >= 0) {
    static_cast<void>(::close(descriptor_));  // nothing was written through it
    descriptor_ = -1;
  }
}

}  // namespace loquitor
