#pragma once

#include <vector>

#include "link/port_numbers.h"

namespace loquitor {

/// The serial devices that this machine has now, in no particular order. Asks the operating system
/// each time (some milliseconds).
std::vector<SerialDevice> PresentSerialDevices();

}  // namespace loquitor
