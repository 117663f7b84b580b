#include "line/qt/serial_devices.h"

#include <QCollator>
#include <algorithm>

#ifdef Q_OS_WIN
#include "line/win32/com_ports.h"
#else
#include <QSerialPortInfo>
#endif

namespace loquitor {

namespace {

#ifdef Q_OS_WIN

std::vector<SerialDevice> DevicesInAnyOrder() {
  return PresentComPorts();
}

#else

/// macOS lists each device twice: as cu.NAME for calling out and as tty.NAME for being called.
bool IsSecondName([[maybe_unused]] const QString& zName) {
#ifdef Q_OS_MACOS
  return zName.startsWith("tty.");
#else
  return false;
#endif
}

std::vector<SerialDevice> DevicesInAnyOrder() {
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

#endif

}  // namespace

std::vector<SerialDevice> PresentSerialDevices() {
  std::vector<SerialDevice> devices = DevicesInAnyOrder();
  SortNaturally(devices);
  return devices;
}

void SortNaturally(std::vector<SerialDevice>& zDevices) {
  QCollator collator{QLocale(QLocale::English)};  // the C locale has no numeric order
  collator.setNumericMode(true);
  std::sort(zDevices.begin(), zDevices.end(),
            [&collator](const SerialDevice& zLeft, const SerialDevice& zRight) {
              return collator.compare(QString::fromStdString(zLeft.name),
                                      QString::fromStdString(zRight.name)) < 0;
            });
}

}  // namespace loquitor
