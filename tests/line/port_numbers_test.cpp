#include "line/port_numbers.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "files/settings_file.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

using namespace std::string_literals;

class PortNumbersTest : public ::testing::Test {
 protected:
  void GivenPorts(const std::string& zEntries) {
    WriteBytes(folder / "Loquitor.ini", "[Ports]\r\n" + zEntries);
  }
  std::string Device(int zNumber) {
    return DeviceForPort(zNumber, settings, [this] { return present; });
  }

  TempFolder folder;
  SettingsFile settings{folder.Path()};
  std::vector<SerialDevice> present{{"ttyACM0", "/dev/ttyACM0", ""},
                                    {"ttyUSB2", "/dev/ttyUSB2", "Adapter"},
                                    {"ttyUSB10", "/dev/ttyUSB10", "Second adapter"}};
};

TEST_F(PortNumbersTest, WithoutAnEntryDevicesAreNumberedInTheirOrder) {
  const std::string devices[] = {"", "/dev/ttyACM0", "/dev/ttyUSB2", "/dev/ttyUSB10", ""};
  for (int number = 0; number < 5; ++number) {
    EXPECT_EQ(Device(number), devices[number]);
  }
  EXPECT_EQ(Device(-1) + Device(2147483647) + Device(-2147483647 - 1), "");
}

TEST_F(PortNumbersTest, AnEntryDecides) {
  GivenPorts(
      "0=/dev/zero\r\n1 = \"/dev/serial/by-id/My Adapter \"\r\n2=virtual.port\r\n"
      "3=../up/port\r\n4=ttyUSB10\r\n5=\r\n");
  const std::filesystem::path devices[] = {"",
                                           "/dev/serial/by-id/My Adapter",
                                           folder / "virtual.port",
                                           folder / "../up/port",
                                           "/dev/ttyUSB10",
                                           ""};
  for (int number = 0; number < 6; ++number) {
    EXPECT_EQ(Device(number), devices[number]);
  }
}

TEST_F(PortNumbersTest, ADeviceGetsANumberOfItsOwnOnce) {
  const auto number = [this](const std::string& zDevice) {
    return NumberForDevice(zDevice, settings, present);
  };
  EXPECT_EQ(number("virtual.port"), 1) << "there are no settings yet";
  GivenPorts("99=a\r\n98=b\r\n5=virtual.port\r\n4=ttyUSB2\r\n");
  EXPECT_EQ(number("virtual.port"), 5);
  EXPECT_EQ(number((folder / "virtual.port").string()), 5);
  EXPECT_EQ(number("/dev/ttyUSB2"), 4);
  EXPECT_EQ(number("c"), 97);
  std::string all;
  for (int taken = 4; taken <= 99; ++taken) {
    all += std::to_string(taken) + "=x\r\n";
  }
  GivenPorts(all);
  EXPECT_EQ(number("c"), 0) << "1 to 3 are devices that are present";
}

TEST_F(PortNumbersTest, EachNumberAndEachDeviceIsDescribed) {
  const std::string title = "Port numbers and their devices:";
  const std::string virtualPort = (folder / "virtual.port").string();
  const std::string rest = "\n3:  /dev/ttyUSB10  Second adapter";
  const std::string place = "\nLoquitor.ini is in " + folder.Path().string();
  GivenPorts("9=/missing/device\r\n");
  EXPECT_EQ(DescribePorts(settings, present),
            title + "\n1:  /dev/ttyACM0\n2:  /dev/ttyUSB2  Adapter" + rest +
                "\n9:  /missing/device  (missing)" + place);
  GivenPorts("2=virtual.port\r\n1=ttyUSB10\r\n");
  const std::string unreached = "\n/dev/ttyACM0 has no number: 1 is taken by [Ports]" +
                                "\n/dev/ttyUSB2 has no number: 2 is taken by [Ports]"s;
  const std::string first = "\n1:  /dev/ttyUSB10  Second adapter";
  EXPECT_EQ(DescribePorts(settings, present),
            title + first + "\n2:  " + virtualPort + "  (missing)" + rest + unreached + place);
  WriteBytes(virtualPort, "");
  EXPECT_EQ(DescribePorts(settings, present),
            title + first + "\n2:  " + virtualPort + rest + unreached + place);
  GivenPorts("1=linked\r\n");  // as under /dev/serial/by-id
  std::filesystem::create_symlink(virtualPort, folder / "linked");
  EXPECT_EQ(DescribePorts(settings, {{"v", virtualPort, "Adapter"}}),
            title + "\n1:  " + (folder / "linked").string() + "  Adapter" + place);
  GivenPorts("");
  EXPECT_TRUE(DescribePorts(settings, {}).starts_with("No serial port is present."));
}

}  // namespace
}  // namespace loquitor::testing
