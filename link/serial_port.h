#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace loquitor {

/// How a serial port is opened. Always 8 data bits, no parity, 1 stop bit.
struct SerialPortSettings {
  std::string device;        ///< name or path of the device, as the platform spells it
  std::string baudRate;      ///< the stored text, for example "9600"; refused unless BaudRateOf it
  bool hardwareHandshaking;  ///< RTS/CTS when true, none when false
};

/// The speed that a stored text means, in bits a second: a positive whole number in plain decimal
/// digits and nothing else. Nothing for any other text, and for more than 32 bits signed hold.
std::optional<std::int32_t> BaudRateOf(std::string_view zText);

/// How many bytes may wait in a port's own queue, and so precede a stop sequence on the line. One
/// register write fits, and the line does not run dry between two turns of the event loop.
inline constexpr int PortQueueLimit = 16;

/// One serial port. The real one is link/qt/qt_serial_port.h; tests script their own.
///
/// No call blocks (but see Close). A port that fails (device gone, write refused) reports IsOpen()
/// false from the first failure on, whatever the layer below goes on to say.
class SerialPort {
 public:
  virtual ~SerialPort() = default;

  /// Opens the port for this program alone. False when it cannot be opened with these settings;
  /// the port is closed then.
  virtual bool Open(const SerialPortSettings& zSettings) = 0;

  /// Closes the port. What its queue holds gets the time that it takes on the line, at most a tenth
  /// of a second; bytes that do not go out are discarded. Closing a closed port does nothing.
  virtual void Close() = 0;

  /// True from a successful Open until Close or the port's failure.
  virtual bool IsOpen() const = 0;

  /// Throws away everything received so far.
  virtual void DiscardReceived() = 0;

  /// True while the port takes bytes and its own queue holds fewer than PortQueueLimit, so that
  /// another may be handed over and a stop sequence never waits behind a long phrase. False when
  /// not open.
  virtual bool IsReadyForByte() const = 0;

  /// Hands one byte over. False when the port refused it or has failed.
  virtual bool WriteByte(std::uint8_t zByte) = 0;

  /// How many of the bytes handed over have not left for the line; 1 for any number of them that
  /// only the adapter still holds. 0 where the system does not tell, and when not open.
  virtual int UnsentBytes() const = 0;

  /// `zHandler` is called when an open port fails: once for each successful Open at most, from the
  /// event loop, never from within a call to the port; not when Close or Open came first. It
  /// replaces the handler before it; an empty one takes it away.
  virtual void SetFailureHandler(std::function<void()> zHandler) = 0;
};

}  // namespace loquitor
