#pragma once

#include <QSerialPort>
#include <QString>
#include <string>

#include "line/port_failure.h"

namespace loquitor {

/// What Qt SerialPort does not offer of a serial line, for the systems that are like Unix.

/// The group whose members may open `zDevice`; empty where there is none, or nothing like it.
std::string GroupOfDevice(const std::string& zDevice);

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

/// Discards the bytes in the system's queue. Otherwise closing the port would wait for them.
void DiscardSystemQueue(const QSerialPort& zPort);

/// Keeps other programs, and a second Loquitor, off a device. The exclusive mode of a terminal
/// device does not stop the superuser. Lock files work only among programs that keep them in the
/// same folder. An advisory lock on the device itself works among all programs that take one. Does
/// nothing where the system opens devices exclusively.
class LineLock {
 public:
  LineLock() = default;
  ~LineLock() { Release(); }
  LineLock(const LineLock&) = delete;
  LineLock& operator=(const LineLock&) = delete;

  /// Locks the device, a name as the file system spells it, without touching its settings. Follows
  /// symbolic links. Releases what was locked before.
  PortError Take(const std::string& zDevice);

  /// The device that is locked, links followed.
  const QString& Device() const { return device_; }

  /// Does nothing when nothing is locked.
  void Release();

 private:
  QString device_;
  int descriptor_ = -1;
};

}  // namespace loquitor
