#include "line/port_numbers.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <string_view>
#include <system_error>

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "text/wide_text.h"
#endif

#include "files/settings_file.h"
#include "text/path_text.h"

namespace loquitor {

namespace {

constexpr int HighestListed = 255;
constexpr int HighestAdded = 99;  // the port box has room for two digits

#ifdef _WIN32
bool IsDeviceName(std::string_view zText) {
  return zText.starts_with("COM") || zText.starts_with("com") || zText.starts_with("\\\\");
}

/// No link leads to a COM port.
std::string TargetOf(const std::string& zDevice) {
  return zDevice;
}

bool IsThere(const std::string& zDevice) {
  std::error_code error;
  if (!zDevice.starts_with("\\\\.\\pipe\\")) {
    return std::filesystem::exists(PathFrom(zDevice), error);
  }
  // Anything else that asks for a pipe would open it.
  constexpr DWORD shortest = 1;  // millisecond
  return WaitNamedPipeW(WideText(zDevice).c_str(), shortest) || GetLastError() == ERROR_SEM_TIMEOUT;
}

std::string DeviceWithoutEntry(int zNumber, const std::vector<SerialDevice>&) {
  return "COM" + std::to_string(zNumber);
}
#else
bool IsDeviceName(std::string_view) {
  return false;
}

std::string TargetOf(const std::string& zDevice) {
  std::error_code error;  // of a device that does not exist
  return TextOf(std::filesystem::canonical(zDevice, error));
}

bool IsThere(const std::string& zDevice) {
  std::error_code error;
  return std::filesystem::exists(zDevice, error);
}

std::string DeviceWithoutEntry(int zNumber, const std::vector<SerialDevice>& zPresent) {
  const auto index = static_cast<std::size_t>(zNumber) - 1;
  if (index >= zPresent.size()) {
    return {};
  }
  return zPresent[index].path;
}
#endif

const SerialDevice* Find(std::string_view zPathOrName, const std::vector<SerialDevice>& zPresent) {
  const auto found =
      std::find_if(zPresent.begin(), zPresent.end(), [&](const SerialDevice& zDevice) {
        return zDevice.path == zPathOrName || zDevice.name == zPathOrName;
      });
  return found == zPresent.end() ? nullptr : &*found;
}

/// The device that `zDevice` is, or links to.
const SerialDevice* FindTarget(const std::string& zDevice,
                               const std::vector<SerialDevice>& zPresent) {
  if (const SerialDevice* device = Find(zDevice, zPresent)) {
    return device;
  }
  return Find(TargetOf(zDevice), zPresent);
}

std::string EntryOf(int zNumber, const SettingsFile& zSettings) {
  return zSettings.GetIniValue("Ports", std::to_string(zNumber), "");
}

std::string DeviceOfEntry(const std::string& zEntry, const SettingsFile& zSettings,
                          const std::vector<SerialDevice>& zPresent) {
  if (const SerialDevice* device = Find(zEntry, zPresent)) {
    return device->path;
  }
  if (IsDeviceName(zEntry)) {
    return zEntry;
  }
  return TextOf(zSettings.Folder() / PathFrom(zEntry));
}

/// The line of port number `zNumber`, which means `zDevice`. Empty for a number without an entry
/// whose device does not exist.
std::string DescribePort(int zNumber, const std::string& zDevice, const SerialDevice* zTarget,
                         bool zHasEntry) {
  const std::string line = std::to_string(zNumber) + ":  " + zDevice;
  if (zTarget != nullptr) {
    return zTarget->description.empty() ? line : line + "  " + zTarget->description;
  }
  if (IsThere(zDevice)) {
    return line;  // for example a pseudo-terminal
  }
  return zHasEntry ? line + "  (missing)" : "";
}

/// The line of a device that no number reaches, because its own number has an entry in [Ports].
std::string DescribeUnreached(const SerialDevice& zDevice,
                              const std::vector<SerialDevice>& zPresent) {
  for (int number = 1; number <= HighestListed; ++number) {
    if (Find(DeviceWithoutEntry(number, zPresent), zPresent) == &zDevice) {
      return zDevice.path + " has no number: " + std::to_string(number) + " is taken by [Ports]";
    }
  }
  return zDevice.path + " has no number";
}

}  // namespace

std::string DeviceForPort(int zNumber, const SettingsFile& zSettings,
                          const DeviceSearch& zPresent) {
  if (zNumber < 1) {
    return {};
  }
  const std::string entry = EntryOf(zNumber, zSettings);
  if (PathFrom(entry).is_absolute()) {
    return entry;
  }
  return entry.empty() ? DeviceWithoutEntry(zNumber, zPresent())
                       : DeviceOfEntry(entry, zSettings, zPresent());
}

int NumberForDevice(const std::string& zDevice, const SettingsFile& zSettings,
                    const std::vector<SerialDevice>& zPresent) {
  const std::string device = DeviceOfEntry(zDevice, zSettings, zPresent);
  for (int number = 1; number <= HighestAdded; ++number) {
    const std::string entry = EntryOf(number, zSettings);
    if (!entry.empty() && DeviceOfEntry(entry, zSettings, zPresent) == device) {
      return number;
    }
  }
  std::error_code error;
  if (!std::filesystem::exists(zSettings.File(), error)) {
    return 1;
  }
  const auto isFree = [&](int zNumber) {
    return EntryOf(zNumber, zSettings).empty() &&
           Find(DeviceWithoutEntry(zNumber, zPresent), zPresent) == nullptr;
  };
  int number = HighestAdded;
  while (number > 0 && !isFree(number)) {
    --number;
  }
  return number;
}

std::string DescribePorts(const SettingsFile& zSettings,
                          const std::vector<SerialDevice>& zPresent) {
  std::string text = "Port numbers and their devices:";
  const auto addLine = [&text](const std::string& zLine) {
    text += zLine.empty() ? "" : "\n" + zLine;
  };
  std::set<const SerialDevice*> reached;
  for (int number = 1; number <= HighestListed; ++number) {
    const std::string device = DeviceForPort(number, zSettings, [&] { return zPresent; });
    if (!device.empty()) {
      const SerialDevice* target = FindTarget(device, zPresent);
      reached.insert(target);
      addLine(DescribePort(number, device, target, !EntryOf(number, zSettings).empty()));
    }
  }
  for (const SerialDevice& device : zPresent) {
    addLine(reached.contains(&device) ? "" : DescribeUnreached(device, zPresent));
  }
  if (text.find('\n') == std::string::npos) {
    text =
        "No serial port is present. Plug in the adapter, or name a device in section\n"
        "[Ports] of Loquitor.ini, for example 1=/dev/ttyUSB0.";
  }
  return text + "\nLoquitor.ini is in " + TextOf(zSettings.Folder());
}

}  // namespace loquitor
