#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "line/port_failure.h"

namespace loquitor {

/// How a serial port is opened. Always 8 data bits, no parity, 1 stop bit.
struct SerialPortSettings {
  std::string device;        ///< name or path of the device, as the platform spells it
  std::string baudRate;      ///< the stored text, for example "9600"; see BaudRateOf
  bool hardwareHandshaking;  ///< RTS/CTS when true, none when false
};

/// The speed in bits per second that a stored text means. Nothing unless the text is a decimal
/// number from 1 to 2^31 - 1, of digits only.
std::optional<std::int32_t> BaudRateOf(std::string_view zText);

/// How many bytes may wait in a port's own queue. They go out before a stop sequence, so they are
/// few. One register write fits, and the line does not run dry between two turns of the event loop.
inline constexpr int PortQueueLimit = 16;

/// A serial port. The real ones are line/qt/qt_serial_port.h and line/win32/win_serial_port.h;
/// tests script their own.
///
/// No call blocks, except Close for a short time. After the first failure (device gone, write
/// refused) IsOpen() is false, whatever the layer below reports.
class SerialPort {
 public:
  virtual ~SerialPort() = default;

  /// Opens the port for this program alone; closes it first if it is open. The result has
  /// PortError::None on success. Otherwise it says why the port cannot be opened with these
  /// settings, and the port is closed. A baud rate that BaudRateOf cannot read is
  /// PortError::BadBaudRate.
  virtual PortFailure Open(const SerialPortSettings& zSettings) = 0;

  /// Closes the port. Waits at most 0.1 s for its queue to go out and discards the rest. Does
  /// nothing when the port is closed.
  virtual void Close() = 0;

  /// True from a successful Open until Close or the port's failure.
  virtual bool IsOpen() const = 0;

  /// Discards everything received so far.
  virtual void DiscardReceived() = 0;

  /// True when WriteByte may be called: the port is open, takes bytes, and its own queue holds
  /// fewer than PortQueueLimit.
  virtual bool IsReadyForByte() const = 0;

  /// Writes one byte. False when the port refused it or has failed.
  virtual bool WriteByte(std::uint8_t zByte) = 0;

  /// How many of the written bytes have not left for the line. Bytes that only the adapter still
  /// holds count as 1 in all. 0 where the system does not know, and when the port is not open.
  virtual int UnsentBytes() const = 0;

  /// Sets what is called when the open port fails. It is called from the event loop, at most once
  /// for each successful Open, and not after Close or another Open. Replaces the previous handler;
  /// an empty one removes it.
  virtual void SetFailureHandler(std::function<void()> zHandler) = 0;
};

}  // namespace loquitor
