#pragma once

#include <vector>

#include "line/port_numbers.h"

namespace loquitor {

/// The COM ports that this machine has now, COM2 before COM10, with what Windows calls them. Texts
/// in UTF-8. Asks Windows each time (some milliseconds).
std::vector<SerialDevice> PresentComPorts();

}  // namespace loquitor
