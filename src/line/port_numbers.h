#pragma once

#include <functional>
#include <string>
#include <vector>

#include "files/settings_file.h"

namespace loquitor {

/// A serial device of this machine. Texts are spelled as the platform spells file names (UTF-8 on
/// most systems).
struct SerialDevice {
  std::string name;         ///< short name, for example ttyUSB0 or COM3
  std::string path;         ///< what opens it, for example /dev/ttyUSB0
  std::string description;  ///< what the adapter calls itself; may be empty
};

/// Lists the devices that are present, in natural order of their names (ttyUSB2 before ttyUSB10).
/// Takes milliseconds, so it is called only where the answer matters.
using DeviceSearch = std::function<std::vector<SerialDevice>()>;

/// The device of port number `zNumber`; empty when there is none, as for every number below 1.
///
/// The entry of that number in section [Ports] of the settings decides. The name of a device that
/// is present means that device. An absolute path is used as it is. A relative one starts at the
/// folder of the settings. On Windows a name that begins with COM or \\ is used as it is. Without
/// an entry the device is COMn on Windows, and elsewhere the n-th of those present. Whether the
/// device exists, and is a serial port, shows when it is opened.
std::string DeviceForPort(int zNumber, const SettingsFile& zSettings, const DeviceSearch& zPresent);

/// Lists which port number leads where: a line for each number from 1 to 255 that has a device or
/// an entry in [Ports], then one for each device that no number reaches. Advice when there is
/// nothing to list. The last line names the folder of the settings. Lines are joined by a line
/// feed.
std::string DescribePorts(const SettingsFile& zSettings, const std::vector<SerialDevice>& zPresent);

}  // namespace loquitor
