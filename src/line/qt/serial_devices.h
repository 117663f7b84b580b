#pragma once

#include <vector>

#include "line/port_numbers.h"

namespace loquitor {

/// The serial devices that this machine has now, in natural order of their names. Asks the
/// operating system each time (some milliseconds).
std::vector<SerialDevice> PresentSerialDevices();

/// Sorts by name in natural order: runs of digits compare as numbers.
void SortNaturally(std::vector<SerialDevice>& zDevices);

}  // namespace loquitor
