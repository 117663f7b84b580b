#pragma once

#include <filesystem>
#include <string>

namespace loquitor {

/// A pseudo-terminal whose other end programs open as a serial port, any number of times one after
/// another. Raw: every byte passes unchanged.
class PseudoTerminal {
 public:
  /// Throws std::system_error when the system has none to give.
  PseudoTerminal();
  ~PseudoTerminal();
  PseudoTerminal(const PseudoTerminal&) = delete;
  PseudoTerminal& operator=(const PseudoTerminal&) = delete;

  /// The path that programs open.
  const std::string& Device() const { return device_; }

  /// For poll: readable when bytes have arrived.
  int Descriptor() const { return master_; }

  /// For poll: readable when a program has closed the device; then call ForgetClient. -1 where the
  /// system cannot tell.
  int ClosedDescriptor() const { return watch_; }

  /// Lets the device be opened again when the program that had it for itself was killed.
  void ForgetClient();

  /// The bytes that have arrived; empty when there are none. Does not block.
  std::string Read();

 private:
  void Close();

  int master_ = -1;
  /// Kept open, because the line would hang up when a program closes the device. Has a record lock,
  /// which tells other processes that the pseudo-terminal is offered.
  int slave_ = -1;
  int watch_ = -1;
  std::string device_;
};

/// A symbolic link to a pseudo-terminal, for as long as this object lives.
class DeviceLink {
 public:
  /// Makes `zPath` a link to `zDevice`. A link that an earlier run has left is replaced: it
  /// leads nowhere, or to a pseudo-terminal that no living PseudoTerminal of another process
  /// offers. Anything else there is left alone and std::runtime_error thrown, whose text says what
  /// is wrong.
  DeviceLink(std::filesystem::path zPath, std::string zDevice);

  /// Removes the link if it is still this one.
  ~DeviceLink();
  DeviceLink(const DeviceLink&) = delete;
  DeviceLink& operator=(const DeviceLink&) = delete;

 private:
  std::filesystem::path path_;
  std::string device_;
};

}  // namespace loquitor
