#include "tests/e2e/pty_chip.h"

#include <fcntl.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <stdexcept>

namespace loquitor::testing {

PtyChip::PtyChip() : master_(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)) {
  if (master_ < 0 || grantpt(master_) != 0 || unlockpt(master_) != 0) {
    throw std::runtime_error("no pseudo-terminal");
  }
  device_ = ptsname(master_);
  termios raw{};
  tcgetattr(master_, &raw);
  cfmakeraw(&raw);
  tcsetattr(master_, TCSANOW, &raw);
}

PtyChip::~PtyChip() {
  HangUp();
}

const std::string& PtyChip::Received() {
  std::array<char, 4096> buffer{};
  ssize_t count = 0;
  while (master_ >= 0 && (count = read(master_, buffer.data(), buffer.size())) > 0) {
    received_.append(buffer.data(), static_cast<std::size_t>(count));
  }
  return received_;
}

void PtyChip::HangUp() {
  if (master_ >= 0) {
    close(master_);
    master_ = -1;
  }
}

}  // namespace loquitor::testing
