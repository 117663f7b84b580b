#include "link/qt/serial_devices.h"

#include <QSerialPortInfo>

namespace loquitor {

namespace {

/// macOS lists each device twice: cu.NAME for calling out, tty.NAME for lines that call in.
bool IsSecondName([[maybe_unused]] const QString& zName) {
#ifdef Q_OS_MACOS
  return zName.startsWith("tty.");
#else
  return false;
#endif
}

}  // namespace

std::vector<SerialDevice> PresentSerialDevices() {
  std::vector<SerialDevice> devices;
  for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts()) {
    if (IsSecondName(info.portName())) {
      continue;
    }
    devices.push_back({.name = info.portName().toStdString(),
                       .path = info.systemLocation().toStdString(),
                       .description = info.description().toStdString()});
  }
  return devices;
}

}  // namespace loquitor
