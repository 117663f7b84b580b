#include "line/port_failure.h"

namespace loquitor {

namespace {

std::string Reason(const PortFailure& zFailure) {
  const std::string& device = zFailure.device;
  switch (zFailure.error) {
    case PortError::None:
      return {};
    case PortError::NoDevice:
      return "no device has this number. Plug in the adapter, or name a device in section [Ports] "
             "of Loquitor.ini.";
    case PortError::Missing:
      return device + " does not exist. Plug in the adapter.";
    case PortError::NotSerial:
      return device + " is not a serial port.";
    case PortError::InUse:
      return device + " is in use by another program.";
    case PortError::NotPermitted:
      return "you are not permitted to use " + device + "." +
             (zFailure.group.empty() ? ""
                                     : " Join the group " + zFailure.group + " and log in again.");
    case PortError::BadBaudRate:
      return "BaudRate=" + zFailure.baudRate +
             " in section [Serial] of Loquitor.ini is not a speed of this port. Use 2400, 4800, "
             "9600 or 19200.";
    case PortError::Unusable:
      return device + " cannot be opened.";
    case PortError::Lost:
      return device + " failed. Check the cable and the adapter.";
  }
  return {};
}

}  // namespace

std::string DescribeFailure(const PortFailure& zFailure, std::string_view zNumber) {
  const std::string reason = Reason(zFailure);
  const std::string port = zNumber.empty() ? "Port" : "Port " + std::string(zNumber);
  return reason.empty() ? reason : port + ": " + reason;
}

}  // namespace loquitor
