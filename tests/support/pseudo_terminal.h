#pragma once

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <stdexcept>
#include <string>

namespace loquitor::testing {

/// A pseudo-terminal whose far end plays the chip.
class PseudoTerminal {
 public:
  PseudoTerminal() : chip_(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)) {
    std::array<char, 100> name{};
    if (chip_ < 0 || ::grantpt(chip_) != 0 || ::unlockpt(chip_) != 0 ||
        ::ptsname_r(chip_, name.data(), name.size()) != 0) {
      throw std::runtime_error("no pseudo-terminal");
    }
    path_ = name.data();
  }
  ~PseudoTerminal() { HangUp(); }
  PseudoTerminal(const PseudoTerminal&) = delete;
  PseudoTerminal& operator=(const PseudoTerminal&) = delete;

  const std::string& Path() const { return path_; }

  /// What has arrived at the chip since the last call.
  std::string Received() {
    std::string bytes;
    std::array<char, 4096> chunk{};
    ssize_t count = 0;
    while ((count = ::read(chip_, chunk.data(), chunk.size())) > 0) {
      bytes.append(chunk.data(), static_cast<std::size_t>(count));
    }
    return bytes;
  }

  /// The chip answers.
  void Answer(const std::string& zBytes) {
    if (::write(chip_, zBytes.data(), zBytes.size()) != static_cast<ssize_t>(zBytes.size())) {
      throw std::runtime_error("the chip cannot answer");
    }
  }

  /// The settings that the program has made on its end.
  termios Settings() const {
    termios settings{};
    if (::tcgetattr(chip_, &settings) != 0) {
      throw std::runtime_error("no settings");
    }
    return settings;
  }

  /// The chip withdraws its "clear to send": from now on nothing passes. The first call must be
  /// made while the program does not have the line open.
  void HoldBack() {
    OpenLine();
    ::tcflow(line_, TCOOFF);
  }

  /// Ends HoldBack.
  void Release() { ::tcflow(line_, TCOON); }

  /// Fills the line with bytes of no meaning until only `zRoom` more fit before the chip takes
  /// some. So the program can write exactly that many, on the slowest machine too. Returns how many
  /// bytes the chip receives before the program's. The line must be unused so far.
  std::size_t LeaveRoom(std::size_t zRoom) {
    constexpr std::size_t grain = 512;  // Linux frees this many places at once
    OpenLine();
    std::size_t count = 0;
    for (; !IsFull(20); ++count) {
      Put();
    }
    const std::size_t freed = (zRoom + grain - 1) / grain * grain;
    std::string taken(freed, ' ');
    for (std::size_t done = 0; done < freed;) {
      const ssize_t size = ::read(chip_, taken.data(), freed - done);
      done += size > 0 ? static_cast<std::size_t>(size) : 0;
    }
    for (std::size_t left = freed; left > zRoom; --left) {
      Put();
    }
    return count - zRoom;
  }

  /// Whether the line takes no byte for `zMilliseconds`.
  bool IsFull(int zMilliseconds = 0) const {
    pollfd line{.fd = line_, .events = POLLOUT, .revents = 0};
    return ::poll(&line, 1, zMilliseconds) == 0;
  }

  /// The adapter is unplugged.
  void HangUp() {
    for (int* end : {&chip_, &line_}) {
      if (*end >= 0) {
        ::close(*end);
        *end = -1;
      }
    }
  }

 private:
  void OpenLine() {
    if (line_ < 0 &&
        (line_ = ::open(path_.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)) < 0) {
      throw std::runtime_error("no end of the pseudo-terminal for the program");
    }
  }

  /// Writes a byte from the program's end.
  void Put() {
    for (int tries = 0; ::write(line_, ".", 1) != 1; ++tries) {
      const bool isFull = IsFull(10);  // waits: bytes that were taken make room with a delay
      if (isFull && tries == 100) {
        throw std::runtime_error("the line takes nothing");
      }
    }
  }

  int chip_ = -1;
  int line_ = -1;  // the program's end, to hold it back and to fill it
  std::string path_;
};

}  // namespace loquitor::testing
