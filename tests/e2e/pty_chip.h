#pragma once

#include <string>

namespace loquitor::testing {

/// The chip's end of a line: a pseudo-terminal that the program opens as its serial port.
class PtyChip {
 public:
  PtyChip();
  ~PtyChip();
  PtyChip(const PtyChip&) = delete;
  PtyChip& operator=(const PtyChip&) = delete;

  /// The device to put into the settings file.
  const std::string& Device() const { return device_; }

  /// Everything received so far. Nothing is taken off the line before it is asked for, so a chip
  /// that is not asked holds the line back once the line's own buffer is full.
  const std::string& Received();

  /// Forgets what has been received.
  void Forget() { received_.clear(); }

  /// Pulls the plug.
  void HangUp();

 private:
  int master_ = -1;
  std::string device_;
  std::string received_;
};

}  // namespace loquitor::testing
