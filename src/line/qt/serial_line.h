#pragma once

#include <QSerialPort>
#include <QString>
#include <string>

#include "line/port_failure.h"

namespace loquitor {

// What Qt SerialPort lacks on Unix-like systems. The functions need an open port.

/// The name of the group whose members may open `zDevice`. Empty when its group may not read and
/// write it, has no name, or cannot be found out.
std::string GroupOfDevice(const std::string& zDevice);

/// How many bytes wait in the system's own queue for the line. 0 where the system does not know.
int BytesInSystemQueue(const QSerialPort& zPort);

/// Whether the line has also taken the bytes that have left the system's queue: those in the
/// transmitter and in the adapter's own buffer. True where the driver does not know.
bool IsTransmitterEmpty(const QSerialPort& zPort);

/// Whether the system's queue takes a byte at once, or the line has hung up. In the second case a
/// write fails at once.
bool TakesByteNow(const QSerialPort& zPort);

/// Waits until the line has taken every byte, also those that have left the system's queue.
void WaitForLine(const QSerialPort& zPort);

/// Discards the bytes in the system's queue. Otherwise closing the port would wait for them.
void DiscardSystemQueue(const QSerialPort& zPort);

/// Keeps other programs, and a second Loquitor, off a device by an advisory lock (flock) on it.
/// That works among all programs that take such a lock. The exclusive mode of a terminal device
/// does not stop the superuser, and lock files work only among programs that keep them in the same
/// folder.
class LineLock {
 public:
  LineLock() = default;
  ~LineLock() { Release(); }
  LineLock(const LineLock&) = delete;
  LineLock& operator=(const LineLock&) = delete;

  /// Locks the device with the path `zDevice`, as the file system spells it. Follows symbolic links
  /// and leaves the device's settings alone. Releases what was locked before. PortError::None on
  /// success; otherwise Missing, NotSerial, InUse, NotPermitted or Unusable. After a failure
  /// the device may stay open until Release.
  PortError Take(const std::string& zDevice);

  /// The path of the device that Take opened last, with links resolved.
  const QString& Device() const { return device_; }

  /// Unlocks the device. Does nothing when none is locked.
  void Release();

 private:
  QString device_;
  int descriptor_ = -1;
};

}  // namespace loquitor
