#pragma once

#include <vector>

#include "line/port_numbers.h"

namespace loquitor {

/// The serial devices that are present now, in natural order of their names. Asks the operating
/// system each time, which takes some milliseconds.
std::vector<SerialDevice> PresentSerialDevices();

/// Sorts by name in natural order: runs of digits compare as numbers.
void SortNaturally(std::vector<SerialDevice>& zDevices);

}  // namespace loquitor
