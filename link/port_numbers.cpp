#include "link/port_numbers.h"

#include <algorithm>
#include <filesystem>
#include <optional>

namespace loquitor {

namespace {

constexpr int HighestListed = 255;

bool IsDigit(char zCharacter) {
  return zCharacter >= '0' && zCharacter <= '9';
}

/// Takes the run of digits at the start off `zText`, without leading zeros.
std::string_view TakeNumber(std::string_view& zText) {
  const auto end = std::find_if_not(zText.begin(), zText.end(), IsDigit);
  std::string_view number(zText.begin(), end);
  zText.remove_prefix(number.size());
  number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
  return number;
}

#ifdef _WIN32
bool IsDeviceName(std::string_view zText) {
  return zText.starts_with("COM") || zText.starts_with("com") || zText.starts_with("\\\\");
}

std::string DeviceWithoutEntry(int zNumber, const std::vector<SerialDevice>&) {
  return "COM" + std::to_string(zNumber);
}
#else
bool IsDeviceName(std::string_view) {
  return false;
}

std::string DeviceWithoutEntry(int zNumber, const std::vector<SerialDevice>& zPresent) {
  const auto index = static_cast<std::size_t>(zNumber) - 1;
  if (index >= zPresent.size()) {
    return {};
  }
  std::vector<SerialDevice> sorted = zPresent;
  std::stable_sort(sorted.begin(), sorted.end(),
                   [](const SerialDevice& zLeft, const SerialDevice& zRight) {
                     return IsNaturallyLess(zLeft.name, zRight.name);
                   });
  return sorted[index].path;
}
#endif

std::optional<SerialDevice> FindByPath(std::string_view zPath,
                                       const std::vector<SerialDevice>& zPresent) {
  const auto found = std::find_if(
      zPresent.begin(), zPresent.end(),
      [&](const SerialDevice& zDevice) { return zDevice.path == zPath || zDevice.name == zPath; });
  return found == zPresent.end() ? std::nullopt : std::optional(*found);
}

std::string DeviceOfEntry(const std::string& zEntry, const SettingsFile& zSettings,
                          const std::vector<SerialDevice>& zPresent) {
  if (const auto device = FindByPath(zEntry, zPresent)) {
    return device->path;
  }
  if (IsDeviceName(zEntry)) {
    return zEntry;
  }
  return (zSettings.Folder() / zEntry).string();
}

/// What the tooltip says about `zDevice`; empty when it is not there. A link to a device is
/// described like the device.
std::string DescribeDevice(const std::string& zDevice, const std::vector<SerialDevice>& zPresent) {
  std::error_code error;
  const auto target = std::filesystem::canonical(zDevice, error);  // empty where there is nothing
  auto device = FindByPath(zDevice, zPresent);
  device = device ? device : FindByPath(target.string(), zPresent);
  if (!device) {
    return target.empty() ? std::string() : zDevice;
  }
  return device->description.empty() ? zDevice : zDevice + "  " + device->description;
}

}  // namespace

bool IsNaturallyLess(std::string_view zLeft, std::string_view zRight) {
  std::string_view left = zLeft;
  std::string_view right = zRight;
  while (!left.empty() && !right.empty()) {
    if (IsDigit(left.front()) && IsDigit(right.front())) {
      const std::string_view leftNumber = TakeNumber(left);
      const std::string_view rightNumber = TakeNumber(right);
      if (leftNumber.size() != rightNumber.size()) {
        return leftNumber.size() < rightNumber.size();
      }
      if (leftNumber != rightNumber) {
        return leftNumber < rightNumber;
      }
    } else if (left.front() != right.front()) {
      return left.front() < right.front();
    } else {
      left.remove_prefix(1);
      right.remove_prefix(1);
    }
  }
  if (left.empty() != right.empty()) {
    return left.empty();
  }
  return zLeft < zRight;  // they differ in leading zeros only
}

std::string DeviceForPort(int zNumber, const SettingsFile& zSettings,
                          const DeviceSearch& zPresent) {
  if (zNumber < 1) {
    return {};
  }
  const std::string entry = zSettings.GetIniValue("Ports", std::to_string(zNumber), "");
  if (std::filesystem::path(entry).is_absolute()) {
    return entry;
  }
  return entry.empty() ? DeviceWithoutEntry(zNumber, zPresent())
                       : DeviceOfEntry(entry, zSettings, zPresent());
}

std::string DescribePorts(const SettingsFile& zSettings,
                          const std::vector<SerialDevice>& zPresent) {
  std::string lines;
  for (int number = 1; number <= HighestListed; ++number) {
    const std::string device = DeviceForPort(number, zSettings, [&] { return zPresent; });
    const std::string description =
        device.empty() ? std::string() : DescribeDevice(device, zPresent);
    if (!description.empty()) {
      lines += "\n" + std::to_string(number) + ":  " + description;
    }
  }
  if (lines.empty()) {
    return "No serial port is present. Plug in the adapter, or name a device in section\n"
           "[Ports] of Loquitor.ini, for example 1=/dev/ttyUSB0.";
  }
  return "Serial ports that are present:" + lines;
}

}  // namespace loquitor
