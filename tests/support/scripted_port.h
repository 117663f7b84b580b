#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "line/serial_port.h"

namespace loquitor::testing {

/// A port that records what it gets and fails or stalls on demand.
class ScriptedPort : public SerialPort {
 public:
  PortFailure Open(const SerialPortSettings& zSettings) override {
    opened.push_back(zSettings);
    isOpen_ = !refusesToOpen;
    return {.error = refusesToOpen ? PortError::InUse : PortError::None,
            .device = zSettings.device};
  }
  void Close() override {
    closeCount += isOpen_ ? 1 : 0;
    isOpen_ = false;
  }
  bool IsOpen() const override { return isOpen_; }
  void DiscardReceived() override { ++discardCount; }
  bool IsReadyForByte() const override { return isOpen_ && !isHeldBack; }
  bool WriteByte(std::uint8_t zByte) override {
    if (bytesUntilFailure == 0) {
      isOpen_ = false;
      return false;
    }
    bytesUntilFailure -= bytesUntilFailure > 0 ? 1 : 0;
    written.push_back(static_cast<char>(zByte));
    if (onByte) {
      onByte();
    }
    return true;
  }

  int UnsentBytes() const override { return isOpen_ ? unsentBytes : 0; }
  void SetFailureHandler(std::function<void()> zHandler) override {
    failureHandler = std::move(zHandler);
  }

  /// The device disappears while nothing is being written.
  void Vanish() {
    isOpen_ = false;
    failureHandler();
  }

  /// What has been written since the last call.
  std::string TakeWritten() { return std::exchange(written, {}); }

  std::string written;
  std::vector<SerialPortSettings> opened;
  int closeCount = 0;
  int discardCount = 0;
  bool refusesToOpen = false;
  bool isHeldBack = false;
  int unsentBytes = 0;           ///< the result of UnsentBytes while the port is open
  int bytesUntilFailure = -1;    ///< how many more bytes are taken before the port fails; -1: all
  std::function<void()> onByte;  ///< runs after each byte
  std::function<void()> failureHandler;

 private:
  bool isOpen_ = false;
};

}  // namespace loquitor::testing
