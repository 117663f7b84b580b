#include "sim/session.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <ctime>
#include <iostream>
#include <optional>
#include <system_error>

#include "sim/input_line.h"

namespace loquitor {

namespace {

using std::chrono::milliseconds;

/// An incomplete command is shown when nothing more has arrived for this long.
constexpr milliseconds QuietTime(500);

/// The time between two writes to the recording.
constexpr milliseconds TickTime(50);

constexpr milliseconds Endless(-1);

}  // namespace

void Session::Run(const sigset_t& zMask, const volatile sig_atomic_t& zIsAskedToStop) {
  while (zIsAskedToStop == 0 && std::cout) {
    Wait(zMask);
    if (ReceiveAll()) {
      lastArrival_ = Clock::now();
      isPendingShown_ = false;
    } else if (Clock::now() - lastArrival_ >= QuietTime) {
      ShowPending();
    }
    if (soundOutput_ != nullptr) {
      soundOutput_->Tick();
    }
  }
  ReceiveAll();
  ShowPending();
  if (soundOutput_ != nullptr) {
    soundOutput_->Finish();
  }
}

milliseconds Session::LongestWait() const {
  const bool isWaitingForRest = chip_.Pending() && !isPendingShown_;
  const bool needsTicks = soundOutput_ != nullptr && soundOutput_->NeedsTicks();
  if (needsTicks) {
    return TickTime;
  }
  return isWaitingForRest ? QuietTime : Endless;
}

/// Waits for bytes, a line of input, a signal, or until there is something else to do.
void Session::Wait(const sigset_t& zMask) {
  std::array<pollfd, 3> watched{{{terminal_.Descriptor(), POLLIN, 0},
                                 {terminal_.ClosedDescriptor(), POLLIN, 0},
                                 {isInputOpen_ ? STDIN_FILENO : -1, POLLIN, 0}}};
  const milliseconds longest = LongestWait();
  const timespec time{0, static_cast<long>(longest.count()) * 1'000'000};
  const int ready =
      ppoll(watched.data(), watched.size(), longest == Endless ? nullptr : &time, &zMask);
  if (ready < 0 && errno != EINTR) {
    throw std::system_error(errno, std::generic_category(), "cannot wait for bytes");
  }
  if (ready <= 0) {
    return;
  }
  if ((watched[1].revents & POLLIN) != 0) {
    terminal_.ForgetClient();
  }
  if (watched[2].revents != 0) {
    ReadInputLines();
  }
}

bool Session::ReceiveAll() {
  bool hasReceived = false;
  for (std::string bytes; !(bytes = terminal_.Read()).empty() && std::cout;) {
    hasReceived = true;
    for (const ChipEvent& event : chip_.Receive(bytes)) {
      if (soundOutput_ != nullptr) {
        soundOutput_->Sound().Hear(event, chip_);
      }
      std::cout << chip_.Describe(event) << std::endl;
    }
  }
  return hasReceived;
}

void Session::ShowPending() {
  const std::optional<ChipEvent> pending = chip_.Pending();
  if (pending && !isPendingShown_) {
    std::cout << chip_.Describe(*pending) << std::endl;
    isPendingShown_ = true;
  }
}

void Session::ReadInputLines() {
  constexpr std::size_t longestLine = 1000;
  std::array<char, 256> buffer;
  const ssize_t count = read(STDIN_FILENO, buffer.data(), buffer.size());
  if (count < 0 && errno == EINTR) {
    return;
  }
  isInputOpen_ = count > 0;  // an error ends the input: a program in the background may not read
  for (ssize_t i = 0; i < count; ++i) {
    const char byte = buffer[static_cast<std::size_t>(i)];
    if (byte == '\n') {
      ChangeInput(inputLine_);
      inputLine_.clear();
    } else if (inputLine_.size() < longestLine) {
      inputLine_ += byte;
    }
  }
}

void Session::ChangeInput(const std::string& zLine) {
  const std::optional<InputChange> change = ParseInputLine(zLine);
  if (!change) {
    std::cout << "type an input and its level, for example 3h or 3l" << std::endl;
    return;
  }
  if (soundOutput_ != nullptr) {
    soundOutput_->Sound().RunEvent(DecodeEvent(EventByte(*change, chip_)));
  }
  std::cout << DescribeChange(*change, chip_) << std::endl;
}

}  // namespace loquitor
