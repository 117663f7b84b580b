#pragma once

#include <QSerialPort>
#include <QString>
#include <string>

namespace loquitor {

/// What the operating systems do differently about serial lines, all in one place.

/// The device that `zDevice`, a name as the file system spells it, means: symbolic links followed
/// where the system has them. Empty when it is missing or is no device that could be a serial port.
QString ResolveDevice(const std::string& zDevice);

/// How many bytes wait in the system's own queue for the line. 0 where the system does not tell.
int BytesInSystemQueue(const QSerialPort& zPort);

/// Whether the line has also taken what the system's queue no longer holds: the bytes in the
/// transmitter and in the adapter's own buffer. True where the driver does not tell.
bool IsTransmitterEmpty(const QSerialPort& zPort);

/// Whether the system's queue takes a byte at once.
bool TakesByteNow(const QSerialPort& zPort);

/// Waits until the line has taken what the system's queue no longer holds, such as the bytes in the
/// transmitter itself.
void WaitForLine(const QSerialPort& zPort);

/// Throws away what waits in the system's queue, so that closing has nothing to wait for.
void DiscardSystemQueue(const QSerialPort& zPort);

/// Keeps other programs, and a second Loquitor, off a device. The exclusive mode of a terminal
/// device does not hold against the superuser, and lock files only among programs that keep them in
/// the same folder; an advisory lock on the device itself holds among all that take one. Where the
/// system opens devices exclusively anyway this does nothing.
class LineLock {
 public:
  LineLock() = default;
  ~LineLock() { Release(); }
  LineLock(const LineLock&) = delete;
  LineLock& operator=(const LineLock&) = delete;

  /// Locks the device, without touching its settings. False when another holds it, or it cannot be
  /// opened, or it is no serial line. Releases what was locked before.
  bool Take(const QString& zDevice);

  /// Does nothing when nothing is locked.
  void Release();

 private:
  int descriptor_ = -1;
};

}  // namespace loquitor
