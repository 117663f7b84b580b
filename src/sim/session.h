#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "sim/virtual_chip.h"

namespace loquitor {

class ChipLine;
class SoundOutput;

/// A run of the virtual Orvatone. Feeds the chip with the bytes from its line, prints and plays
/// what they mean, and changes the chip's inputs by the lines of standard input.
class Session {
 public:
  /// Both must outlive the session. `zSound` may be null.
  Session(ChipLine& zLine, SoundOutput* zSound) : line_(zLine), soundOutput_(zSound) {}

  /// Runs until the line is asked to stop, or until standard output fails. Throws std::system_error
  /// when the line fails.
  void Run();

 private:
  using Clock = std::chrono::steady_clock;
  std::optional<std::chrono::milliseconds> LongestWait() const;
  std::size_t Receive();
  void ReceiveRest();
  void ShowPending();
  void TakeInput(std::string_view zText);
  void ChangeInput(const std::string& zLine);

  ChipLine& line_;
  SoundOutput* const soundOutput_;
  VirtualChip chip_;
  bool isPendingShown_ = false;
  Clock::time_point lastArrival_{};
  std::string inputLine_;  // the beginning of the next line
};

}  // namespace loquitor
