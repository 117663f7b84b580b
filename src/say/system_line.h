#pragma once

/// The port and the event loop of a Speaker on this system. On Windows they need no Qt.

#ifdef _WIN32

#include <functional>
#include <utility>
#include <vector>

#include "line/win32/com_ports.h"
#include "line/win32/win_serial_port.h"
#include "line/win32/win_turns.h"

namespace loquitor {

using SpeakerTurns = WinTurns;

class SpeakerPort : public WinSerialPort {
 public:
  explicit SpeakerPort(SpeakerTurns& zTurns)
      : WinSerialPort(
            [&zTurns](std::function<void()> zAction) { zTurns.RunLater(std::move(zAction)); }) {}
};

struct SpeakerApplication {
  SpeakerApplication(int&, char**) {}
};

/// The serial devices that are present now, in natural order of their names.
inline std::vector<SerialDevice> DevicesPresent() {
  return PresentComPorts();
}

}  // namespace loquitor

#else

#include <QCoreApplication>
#include <vector>

#include "line/qt/event_turns.h"
#include "line/qt/qt_serial_port.h"
#include "line/qt/serial_devices.h"

namespace loquitor {

using SpeakerTurns = EventTurns;

class SpeakerPort : public QtSerialPort {
 public:
  explicit SpeakerPort(SpeakerTurns&) {}
};

/// Must exist before a Speaker is made, and outlive it.
using SpeakerApplication = QCoreApplication;

/// The serial devices that are present now, in natural order of their names.
inline std::vector<SerialDevice> DevicesPresent() {
  return PresentSerialDevices();
}

}  // namespace loquitor

#endif
