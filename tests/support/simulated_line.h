#pragma once

#include <functional>
#include <string>

#include "line/serial_port.h"

namespace loquitor {

/// A serial line with a clock of its own. Bytes of ten bits leave the port's queue at the speed
/// with which it was opened.
class SimulatedLine : public SerialPort {
 public:
  PortFailure Open(const SerialPortSettings& zSettings) override {
    byteTime_ = 10.0 / BaudRateOf(zSettings.baudRate).value();
    isOpen_ = true;
    return {};
  }
  void Close() override {
    isOpen_ = false;
    queue_.clear();
  }
  bool IsOpen() const override { return isOpen_; }
  void DiscardReceived() override {}
  bool IsReadyForByte() const override {
    return isOpen_ && queue_.size() < static_cast<std::size_t>(PortQueueLimit);
  }
  bool WriteByte(std::uint8_t zByte) override {
    if (queue_.empty()) {
      nextByteLeaves_ = now_ + byteTime_;
    }
    queue_.push_back(static_cast<char>(zByte));
    return isOpen_;
  }
  int UnsentBytes() const override { return static_cast<int>(queue_.size()); }
  void SetFailureHandler(std::function<void()>) override {}

  /// Lets `zSeconds` pass.
  void Advance(double zSeconds) {
    now_ += zSeconds;
    while (!queue_.empty() && nextByteLeaves_ <= now_) {
      onTheLine += queue_.front();
      queue_.erase(0, 1);
      busy_ += byteTime_;
      nextByteLeaves_ += byteTime_;
    }
  }

  /// Lets the queue run empty.
  void Drain() { Advance(byteTime_ * static_cast<double>(queue_.size() + 1)); }

  double Now() const { return now_; }

  /// The seconds in which a byte was on the line.
  double Busy() const { return busy_; }

  std::string onTheLine;  ///< what has left the queue

 private:
  bool isOpen_ = false;
  std::string queue_;
  double byteTime_ = 0;
  double now_ = 0;
  double nextByteLeaves_ = 0;
  double busy_ = 0;
};

}  // namespace loquitor
