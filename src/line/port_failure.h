#pragma once

#include <string>
#include <string_view>

namespace loquitor {

/// Why a serial port cannot be used.
enum class PortError {
  None,
  NoDevice,      ///< the port number leads to no device
  Missing,       ///< the device does not exist
  NotSerial,     ///< the device is no serial port
  InUse,         ///< another program has the device open
  NotPermitted,  ///< the user may not open the device
  BadBaudRate,   ///< the stored baud rate is no speed that the port can use
  Unusable,      ///< the system gave another reason
  Lost,          ///< the port failed after it was opened
};

/// The result of an attempt to use a port.
struct PortFailure {
  PortError error = PortError::None;
  std::string device = {};    ///< the device that was to be opened; empty for NoDevice
  std::string group = {};     ///< for NotPermitted: the group that may open it; empty if unknown
  std::string baudRate = {};  ///< for BadBaudRate: the stored text
};

/// One or two sentences for the user: what is wrong with port `zNumber`, and what to do. `zNumber`
/// is the number as the user typed it; it may be empty. The result is empty when nothing is wrong.
std::string DescribeFailure(const PortFailure& zFailure, std::string_view zNumber);

}  // namespace loquitor
