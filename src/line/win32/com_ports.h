#pragma once

#include <vector>

#include "line/port_numbers.h"

namespace loquitor {

/// The COM ports that are present now, COM2 before COM10, with the descriptions of the device
/// manager. Texts are UTF-8. Asks Windows each time, which takes some milliseconds.
std::vector<SerialDevice> PresentComPorts();

}  // namespace loquitor
