#include "link/port_numbers.h"

#include <gtest/gtest.h>

#include "tests/support/temp_folder.h"

namespace loquitor {
namespace {

using testing::TempFolder;
using testing::WriteBytes;

class PortNumbersTest : public ::testing::Test {
 protected:
  void GivenPorts(const std::string& zEntries) {
    WriteBytes(folder / "Loquitor.ini", "[Ports]\r\n" + zEntries);
  }
  std::string Device(int zNumber) { return DeviceForPort(zNumber, settings, present); }

  TempFolder folder;
  SettingsFile settings{folder.Path()};
  std::vector<SerialDevice> present{{"ttyUSB10", "/dev/ttyUSB10", "Second adapter"},
                                    {"ttyUSB2", "/dev/ttyUSB2", "Adapter"},
                                    {"ttyACM0", "/dev/ttyACM0", ""}};
};

TEST(NaturalOrder, ComparesRunsOfDigitsAsNumbers) {
  const std::vector<std::string> ordered = {"",
                                            "2",
                                            "10",
                                            "tty",
                                            "tty-1",
                                            "tty0",
                                            "tty00",
                                            "tty1",
                                            "tty01x",
                                            "tty2",
                                            "tty10a2",
                                            "tty10a10",
                                            "ttyACM0",
                                            "ttyUSB99999999999999999998",
                                            "ttyUSB99999999999999999999"};
  for (std::size_t i = 0; i < ordered.size(); ++i) {
    for (std::size_t k = 0; k < ordered.size(); ++k) {
      EXPECT_EQ(IsNaturallyLess(ordered[i], ordered[k]), i < k) << ordered[i] << " " << ordered[k];
    }
  }
}

TEST_F(PortNumbersTest, WithoutAnEntryDevicesAreNumberedInNaturalOrder) {
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
  const std::string devices[] = {"",
                                 "/dev/serial/by-id/My Adapter",
                                 folder / "virtual.port",
                                 folder / "../up/port",
                                 "/dev/ttyUSB10",
                                 ""};
  for (int number = 0; number < 6; ++number) {
    EXPECT_EQ(Device(number), devices[number]);
  }
}

TEST_F(PortNumbersTest, TheTooltipListsWhatIsThereNow) {
  GivenPorts("2=virtual.port\r\n9=/missing/device\r\n255=ttyUSB2\r\n");
  const std::string virtualPort = (folder / "virtual.port").string();
  const std::string rest = "\n3:  /dev/ttyUSB10  Second adapter\n255:  /dev/ttyUSB2  Adapter";
  EXPECT_EQ(DescribePorts(settings, present),
            "Serial ports that are present:\n1:  /dev/ttyACM0" + rest);
  WriteBytes(virtualPort, "");
  EXPECT_EQ(DescribePorts(settings, present),
            "Serial ports that are present:\n1:  /dev/ttyACM0\n2:  " + virtualPort + rest);
  GivenPorts("");
  EXPECT_TRUE(DescribePorts(settings, {}).starts_with("No serial port is present."));
}

}  // namespace
}  // namespace loquitor
