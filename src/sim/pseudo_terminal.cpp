#include "sim/pseudo_terminal.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <stdexcept>
#include <system_error>
#include <utility>

#ifdef __linux__
#include <sys/inotify.h>
#endif

namespace loquitor {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(const char* zWhat) {
  throw std::system_error(errno, std::generic_category(), zWhat);
}

void MakeRaw(int zTerminal) {
  termios settings{};
  if (tcgetattr(zTerminal, &settings) != 0) {
    Fail("cannot read the settings of the pseudo-terminal");
  }
  cfmakeraw(&settings);
  if (tcsetattr(zTerminal, TCSANOW, &settings) != 0) {
    Fail("cannot make the pseudo-terminal raw");
  }
}

/// A descriptor that becomes readable when a program closes `zDevice`. -1 where there is none.
int WatchClosing([[maybe_unused]] const std::string& zDevice) {
#ifdef __linux__
  const int watch = inotify_init1(IN_CLOEXEC | IN_NONBLOCK);
  if (watch >= 0 && inotify_add_watch(watch, zDevice.c_str(), IN_CLOSE) < 0) {
    close(watch);
    return -1;
  }
  return watch;
#else
  return -1;
#endif
}

struct flock WriteLock() {
  struct flock lock {};
  lock.l_type = F_WRLCK;
  lock.l_whence = SEEK_SET;
  return lock;
}

/// Whether a living PseudoTerminal of another process offers `zDevice`. It then has a record lock.
/// An flock would keep off the programs that use the serial port.
bool IsOffered(const fs::path& zDevice) {
  const int device = open(zDevice.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
  if (device < 0) {
    return errno == EBUSY;  // a program uses it exclusively
  }
  struct flock lock = WriteLock();
  const bool isLocked = fcntl(device, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
  close(device);
  return isLocked;
}

enum class Place { Free, Offered, Foreign };

/// What is at the path of a link that is to be made.
Place WhatIsAt(const fs::path& zLink) {
  std::error_code ignored;
  const fs::file_status status = fs::symlink_status(zLink, ignored);
  if (status.type() == fs::file_type::not_found) {
    return Place::Free;
  }
  if (!fs::is_symlink(status)) {
    return Place::Foreign;
  }
  const fs::path target = fs::read_symlink(zLink, ignored);
  if (!fs::exists(zLink, ignored)) {
    return Place::Free;
  }
  if (target.parent_path() != "/dev/pts") {
    return Place::Foreign;
  }
  return IsOffered(target) ? Place::Offered : Place::Free;
}

}  // namespace

PseudoTerminal::PseudoTerminal() {
  try {
    master_ = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
    if (master_ < 0 || grantpt(master_) != 0 || unlockpt(master_) != 0) {
      Fail("cannot create a pseudo-terminal");
    }
    const char* name = ptsname(master_);
    device_ = name == nullptr ? "" : name;
    slave_ = open(device_.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (slave_ < 0) {
      Fail("cannot open the pseudo-terminal");
    }
    MakeRaw(slave_);
    const struct flock lock = WriteLock();
    static_cast<void>(fcntl(slave_, F_SETLK, &lock));  // some systems cannot lock devices
    watch_ = WatchClosing(device_);
  } catch (...) {
    Close();
    throw;
  }
}

PseudoTerminal::~PseudoTerminal() {
  Close();
}

void PseudoTerminal::Close() {
  for (const int descriptor : {watch_, slave_, master_}) {
    if (descriptor >= 0) {
      close(descriptor);
    }
  }
}

void PseudoTerminal::ForgetClient() {
  std::array<char, 4096> events;
  while (read(watch_, events.data(), events.size()) > 0) {
  }
  // Ends the exclusive use that a killed program could not end. If this fails the device stays
  // busy.
  static_cast<void>(ioctl(slave_, TIOCNXCL));
}

std::string PseudoTerminal::Read() {
  std::array<char, 4096> buffer;
  const ssize_t count = read(master_, buffer.data(), buffer.size());
  if (count < 0 && errno != EAGAIN && errno != EINTR) {
    Fail("cannot read from the pseudo-terminal");
  }
  return count > 0 ? std::string(buffer.data(), static_cast<std::size_t>(count)) : std::string();
}

DeviceLink::DeviceLink(fs::path zPath, std::string zDevice)
    : path_(std::move(zPath)), device_(std::move(zDevice)) {
  const Place place = WhatIsAt(path_);
  if (place == Place::Foreign) {
    throw std::runtime_error(path_.string() +
                             " exists already and is no link to a pseudo-terminal; remove it or "
                             "choose another name");
  }
  if (place == Place::Offered) {
    throw std::runtime_error(path_.string() +
                             " is the port of another virtual Orvatone, which is running; end "
                             "that one or choose another name");
  }
  std::error_code error;
  // A rename replaces an old link atomically: the name is never missing.
  const fs::path fresh = path_.string() + "." + std::to_string(getpid());
  fs::create_symlink(device_, fresh, error);
  if (!error) {
    fs::rename(fresh, path_, error);
  }
  if (error) {
    std::error_code ignored;
    fs::remove(fresh, ignored);
    throw std::runtime_error("cannot make the link " + path_.string() + ": " + error.message());
  }
}

DeviceLink::~DeviceLink() {
  std::error_code ignored;
  if (fs::read_symlink(path_, ignored) == device_) {
    fs::remove(path_, ignored);
  }
}

}  // namespace loquitor
