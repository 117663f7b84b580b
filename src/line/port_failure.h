#pragma once

#include <string>
#include <string_view>

namespace loquitor {

/// Why a serial port cannot be used.
enum class PortError {
  None,
  NoDevice,      ///< the port number leads to no device
  Missing,       ///< the device does not exist
  NotSerial,     ///< it is no serial port
  InUse,         ///< another program has it
  NotPermitted,  ///< the user may not open it
  NotASpeed,     ///< the stored baud rate is none that the port can use
  Unusable,      ///< the system gave another reason
  Lost,          ///< it failed after it was opened
};

/// What the last attempt to use a port came to.
struct PortFailure {
  PortError error = PortError::None;
  std::string device = {};    ///< as the settings name it; empty for NoDevice
  std::string group = {};     ///< for NotPermitted: whose members may open the device; may be empty
  std::string baudRate = {};  ///< for NotASpeed: the stored text
};

/// Says in one or two sentences what is wrong with port `zNumber`, the number as the user wrote it
/// (may be empty), and what to do. Empty when nothing is wrong.
std::string DescribeFailure(const PortFailure& zFailure, std::string_view zNumber);

}  // namespace loquitor
