#pragma once

#include <functional>
#include <string>
#include <vector>

namespace loquitor {

class SettingsFile;

/// A serial device of this machine. Texts are as TextOf gives paths.
struct SerialDevice {
  std::string name;         ///< short name, for example ttyUSB0 or COM3
  std::string path;         ///< what opens it, for example /dev/ttyUSB0
  std::string description;  ///< the adapter's own name; may be empty
};

/// Lists the devices that are present, in natural order of their names (ttyUSB2 before ttyUSB10).
/// This takes milliseconds, so DeviceForPort calls it only when the result depends on it.
using DeviceSearch = std::function<std::vector<SerialDevice>()>;

/// The device of port number `zNumber`. Empty when there is none, as for every number below 1.
///
/// An entry with the number as its key in section [Ports] of the settings decides:
///
/// - an absolute path is used as it is,
/// - the name or path of a present device means that device,
/// - on Windows, a name that begins with COM or \\ is used as it is,
/// - anything else is a path relative to the folder of the settings.
///
/// Without an entry the device is COMn on Windows, and elsewhere the n-th of the present devices.
/// The device need not exist or be a serial port; opening it finds that out.
std::string DeviceForPort(int zNumber, const SettingsFile& zSettings, const DeviceSearch& zPresent);

/// The number under which `zDevice`, written as an entry of [Ports], is or can be entered: the
/// first from 1 to 99 that has such an entry; else 1 while there is no settings file; else the
/// highest below 100 that has no entry and no device. 0 when there is none.
int NumberForDevice(const std::string& zDevice, const SettingsFile& zSettings,
                    const std::vector<SerialDevice>& zPresent);

/// A text for the user that lists the port numbers. After a heading it has a line for each number
/// from 1 to 255 whose device exists or that has an entry in [Ports], then a line for each device
/// of `zPresent` that no number reaches. If there is nothing to list, it has advice instead. The
/// last line names the folder of the settings. Lines are joined by line feeds.
std::string DescribePorts(const SettingsFile& zSettings, const std::vector<SerialDevice>& zPresent);

}  // namespace loquitor
