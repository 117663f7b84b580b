#include "line/qt/serial_devices.h"

#include <gtest/gtest.h>

#include <sstream>

namespace loquitor::testing {
namespace {

TEST(SerialDevicesTest, RunsOfDigitsInNamesCompareAsNumbers) {
  std::vector<std::string> names;
  std::istringstream words("COM9 COM10 COM100 ttyACM0 ttyS0 ttyS2 ttyS31 ttyUSB2 ttyUSB10");
  for (std::string name; words >> name;) {
    names.push_back(name);
  }
  std::vector<SerialDevice> devices;
  for (auto name = names.rbegin(); name != names.rend(); ++name) {
    devices.push_back({*name, "/dev/" + *name, ""});
  }
  SortNaturally(devices);
  std::vector<std::string> sorted;
  for (const SerialDevice& device : devices) {
    sorted.push_back(device.name);
  }
  EXPECT_EQ(sorted, names);
}

}  // namespace
}  // namespace loquitor::testing
