#include "link/qt/serial_devices.h"

#include <QSerialPortInfo>

namespace loquitor {

std::vector<SerialDevice> PresentSerialDevices() {
  std::vector<SerialDevice> devices;
  for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts()) {
    devices.push_back({.name = info.portName().toStdString(),
                       .path = info.systemLocation().toStdString(),
                       .description = info.description().toStdString()});
  }
  return devices;
}

}  // namespace loquitor
