#pragma once

#ifdef _WIN32
#include <QCoreApplication>

#include "line/win32/win_serial_port.h"
#else
#include "line/qt/qt_serial_port.h"
#endif

namespace loquitor {

#ifdef _WIN32

/// A serial port of this system. Needs a QCoreApplication.
class SystemPort : public WinSerialPort {
 public:
  SystemPort()
      : WinSerialPort([](std::function<void()> zAction) {
          QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(zAction),
                                    Qt::QueuedConnection);
        }) {}
};

#else

/// A serial port of this system. Needs a QCoreApplication.
using SystemPort = QtSerialPort;

#endif

}  // namespace loquitor
