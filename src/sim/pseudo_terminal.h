#pragma once

#include <filesystem>
#include <string>

namespace loquitor {

/// A pseudo-terminal that programs open as a serial port, any number of times one after another. It
/// is raw: every byte passes unchanged.
class PseudoTerminal {
 public:
  /// Throws std::system_error when the system cannot create one.
  PseudoTerminal();
  ~PseudoTerminal();
  PseudoTerminal(const PseudoTerminal&) = delete;
  PseudoTerminal& operator=(const PseudoTerminal&) = delete;

  /// The path that programs open.
  const std::string& Device() const { return device_; }

  /// A descriptor for poll: readable when bytes have arrived.
  int Descriptor() const { return master_; }

  /// A descriptor for poll: readable when a program has closed the device. Call ForgetClient then.
  /// -1 where the system does not report this.
  int ClosedDescriptor() const { return watch_; }

  /// Lets programs open the device again after one that used it exclusively was killed.
  void ForgetClient();

  /// Some of the bytes that have arrived; empty when there are none. Does not block. Throws
  /// std::system_error when reading fails.
  std::string Read();

 private:
  void Close();

  int master_ = -1;
  /// Stays open, because otherwise the line would hang up when a program closes the device. Has a
  /// record lock, by which other processes see that this pseudo-terminal is offered.
  int slave_ = -1;
  int watch_ = -1;
  std::string device_;
};

/// A symbolic link to a pseudo-terminal, for as long as this object lives.
class DeviceLink {
 public:
  /// Makes `zPath` a link to `zDevice`. Replaces a link that an earlier run has left: one whose
  /// target does not exist, or is a pseudo-terminal that no living PseudoTerminal of another
  /// process offers. Leaves anything else alone and throws std::runtime_error, whose text says what
  /// is wrong.
  DeviceLink(std::filesystem::path zPath, std::string zDevice);

  /// Removes the link if it still leads to the device.
  ~DeviceLink();
  DeviceLink(const DeviceLink&) = delete;
  DeviceLink& operator=(const DeviceLink&) = delete;

 private:
  std::filesystem::path path_;
  std::string device_;
};

}  // namespace loquitor
