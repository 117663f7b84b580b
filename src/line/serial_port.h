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
  std::string baudRate;      ///< the stored text, for example "9600"; refused unless BaudRateOf it
  bool hardwareHandshaking;  ///< RTS/CTS when true, none when false
};

/// The speed that a stored text means, in bits a second. The text must be a positive decimal number
/// of 31 bits, digits only; nothing for any other text.
std::optional<std::int32_t> BaudRateOf(std::string_view zText);

/// How many bytes may wait in a port's own queue. They precede a stop sequence on the line. One
/// register write fits, and the line does not run dry between two turns of the event loop.
inline constexpr int PortQueueLimit = 16;

/// A serial port. The real ones are line/qt/qt_serial_port.h and line/win32/win_serial_port.h;
/// tests script their own.
///
/// No call blocks, except Close for a short time. After the first failure (device gone, write
/// refused) IsOpen() is false, whatever the layer below reports.
class SerialPort {
 public:
  virtual ~SerialPort() = default;

  /// Opens the port for this program alone. Says why when it cannot be opened with these settings;
  /// the port is closed then.
  virtual PortFailure Open(const SerialPortSettings& zSettings) = 0;

  /// Closes the port. Waits at most 0.1 s until its queue has gone out, and discards the rest. Does
  /// nothing when the port is closed.
  virtual void Close() = 0;

  /// True from a successful Open until Close or the port's failure.
  virtual bool IsOpen() const = 0;

  /// Throws away everything received so far.
  virtual void DiscardReceived() = 0;

  /// True when another byte may be handed over: the port is open, takes bytes, and its own queue
  /// holds fewer than PortQueueLimit.
  virtual bool IsReadyForByte() const = 0;

  /// Hands one byte over. False when the port refused it or has failed.
  virtual bool WriteByte(std::uint8_t zByte) = 0;

  /// How many of the bytes handed over have not left for the line. Bytes that only the adapter
  /// still holds count as 1 in all. 0 where the system does not tell, and when not open.
  virtual int UnsentBytes() const = 0;

  /// `zHandler` is called when an open port fails: from the event loop, at most once for each
  /// successful Open, and not after Close or another Open. Replaces the previous handler; an empty
  /// one removes it.
  virtual void SetFailureHandler(std::function<void()> zHandler) = 0;
};

}  // namespace loquitor
