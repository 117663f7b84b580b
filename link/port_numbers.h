#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "link/settings_file.h"

namespace loquitor {

/// A serial device of this machine. Texts as the platform spells file names (UTF-8 but for odd
/// systems).
struct SerialDevice {
  std::string name;         ///< short name, for example ttyUSB0 or COM3
  std::string path;         ///< what opens it, for example /dev/ttyUSB0
  std::string description;  ///< what the adapter calls itself; may be empty
};

/// Looks which devices are present. That takes milliseconds: it is done where the answer matters.
using DeviceSearch = std::function<std::vector<SerialDevice>()>;

/// Whether name `zLeft` comes before `zRight` in natural order: runs of digits compare as numbers
/// of any length, everything else byte by byte, so that ttyUSB2 comes before ttyUSB10.
bool IsNaturallyLess(std::string_view zLeft, std::string_view zRight);

/// The device of port number `zNumber`; empty when there is none, which is always so below 1.
///
/// The entry of that number in section [Ports] of the settings decides: the name of a device that
/// is present means that device; an absolute path stands as it is; a relative one is taken from the
/// folder of the program; on Windows a name beginning with COM or \\ stands as it is. Without an
/// entry it is COMn on Windows, and elsewhere the n-th of those present in natural order of names.
/// Whether the device exists, or is one, shows when it is opened.
std::string DeviceForPort(int zNumber, const SettingsFile& zSettings, const DeviceSearch& zPresent);

/// What the tooltip of the port box says: one line for each port number from 1 to 255 that leads to
/// a device now, with the device and its description, or advice when there is none. Lines are
/// joined by a line feed.
std::string DescribePorts(const SettingsFile& zSettings, const std::vector<SerialDevice>& zPresent);

}  // namespace loquitor
