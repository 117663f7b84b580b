#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include "line/win32/com_ports.h"

#include <windows.h>
// After windows.h, which they need.
#include <devguid.h>
#include <setupapi.h>

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <utility>

#include "text/wide_text.h"

namespace loquitor {
namespace {

using Text = std::array<wchar_t, 256>;

/// The text in the `zSize` bytes of `zText` that Windows has filled, up to the first NUL.
std::string TextIn(const Text& zText, DWORD zSize) {
  const std::wstring_view text(zText.data(), zSize / sizeof(wchar_t));
  return Utf8Text(text.substr(0, text.find(L'\0')));
}

std::string PortNameOf(HDEVINFO zDevices, SP_DEVINFO_DATA& zDevice) {
  const HKEY key =
      SetupDiOpenDevRegKey(zDevices, &zDevice, DICS_FLAG_GLOBAL, 0, DIREG_DEV, KEY_QUERY_VALUE);
  if (key == INVALID_HANDLE_VALUE) {
    return {};
  }
  Text name{};
  DWORD size = sizeof name;
  const LSTATUS status =
      RegGetValueW(key, nullptr, L"PortName", RRF_RT_REG_SZ, nullptr, name.data(), &size);
  RegCloseKey(key);
  return status == ERROR_SUCCESS ? TextIn(name, size) : std::string();
}

/// What the device manager calls each port, by the name of the port.
std::map<std::string, std::string> Descriptions() {
  std::map<std::string, std::string> descriptions;
  const HDEVINFO devices =
      SetupDiGetClassDevsW(&GUID_DEVCLASS_PORTS, nullptr, nullptr, DIGCF_PRESENT);
  if (devices == INVALID_HANDLE_VALUE) {
    return descriptions;
  }
  SP_DEVINFO_DATA device{};
  device.cbSize = sizeof device;
  for (DWORD i = 0; SetupDiEnumDeviceInfo(devices, i, &device); ++i) {
    Text text{};
    DWORD size = 0;
    if (SetupDiGetDeviceRegistryPropertyW(devices, &device, SPDRP_DEVICEDESC, nullptr,
                                          reinterpret_cast<BYTE*>(text.data()), sizeof text,
                                          &size)) {
      descriptions[PortNameOf(devices, device)] = TextIn(text, size);
    }
  }
  SetupDiDestroyDeviceInfoList(devices);
  return descriptions;
}

}  // namespace

std::vector<SerialDevice> PresentComPorts() {
  std::vector<SerialDevice> ports;
  HKEY key = nullptr;
  if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"HARDWARE\\DEVICEMAP\\SERIALCOMM", 0, KEY_QUERY_VALUE,
                    &key) != ERROR_SUCCESS) {
    return ports;  // there is no such key while there is no port
  }
  const std::map<std::string, std::string> descriptions = Descriptions();
  Text driver{};
  Text name{};
  for (DWORD i = 0;; ++i) {
    DWORD driverLength = driver.size();
    DWORD size = sizeof name;
    if (RegEnumValueW(key, i, driver.data(), &driverLength, nullptr, nullptr,
                      reinterpret_cast<BYTE*>(name.data()), &size) != ERROR_SUCCESS) {
      break;
    }
    const std::string port = TextIn(name, size);
    const auto description = descriptions.find(port);
    ports.push_back({.name = port,
                     .path = port,
                     .description = description == descriptions.end() ? "" : description->second});
  }
  RegCloseKey(key);
  std::sort(ports.begin(), ports.end(), [](const SerialDevice& zLeft, const SerialDevice& zRight) {
    return std::pair(zLeft.name.size(), zLeft.name) < std::pair(zRight.name.size(), zRight.name);
  });
  return ports;
}

}  // namespace loquitor
