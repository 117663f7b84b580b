#include "sim/session.h"

#include <iostream>
#include <optional>

#include "sim/chip_line.h"
#include "sim/input_line.h"
#include "sim/sound_output.h"

namespace loquitor {

namespace {

using std::chrono::milliseconds;

/// An incomplete command is shown when nothing more has arrived for this long.
constexpr milliseconds QuietTime(500);

/// The time between two writes to the recording.
constexpr milliseconds TickTime(50);

}  // namespace

void Session::Run() {
  while (!line_.IsAskedToStop() && std::cout) {
    line_.Wait(LongestWait());
    TakeInput(line_.ReadInput());
    if (Receive() > 0) {
      lastArrival_ = Clock::now();
      isPendingShown_ = false;
    } else if (Clock::now() - lastArrival_ >= QuietTime) {
      ShowPending();
    }
    if (soundOutput_ != nullptr) {
      soundOutput_->Tick();
    }
  }
  ReceiveRest();
  ShowPending();
  if (soundOutput_ != nullptr) {
    soundOutput_->Finish();
  }
}

std::optional<milliseconds> Session::LongestWait() const {
  if (soundOutput_ != nullptr && soundOutput_->NeedsTicks()) {
    return TickTime;
  }
  const bool isWaitingForRest = chip_.Pending() && !isPendingShown_;
  return isWaitingForRest ? std::make_optional(QuietTime) : std::nullopt;
}

/// Takes one piece and returns its size. A line that never falls silent then leaves everything else
/// its turn.
std::size_t Session::Receive() {
  const std::string bytes = line_.Read();
  for (const ChipEvent& event : chip_.Receive(bytes)) {
    if (soundOutput_ != nullptr) {
      soundOutput_->Sound().Hear(event, chip_);
    }
    std::cout << chip_.Describe(event) << std::endl;
  }
  return bytes.size();
}

/// Takes what arrived before the end was asked for.
void Session::ReceiveRest() {
  constexpr std::size_t mostOnLine = 65536;  // bytes; a line holds fewer
  std::size_t size = 1;
  for (std::size_t taken = 0; size > 0 && taken < mostOnLine && std::cout; taken += size) {
    size = Receive();
  }
}

void Session::ShowPending() {
  const std::optional<ChipEvent> pending = chip_.Pending();
  if (pending && !isPendingShown_) {
    std::cout << chip_.Describe(*pending) << std::endl;
    isPendingShown_ = true;
  }
}

void Session::TakeInput(std::string_view zText) {
  constexpr std::size_t longestLine = 1000;
  for (const char byte : zText) {
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
