#include "link/port_numbers.h"

#include <gtest/gtest.h>

#include <algorithm>

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
                                            "tty1y",
                                            "tty2",
                                            "tty10",
                                            "tty10a2",
                                            "tty10a10",
                                            "ttyACM0",
                                            "ttyUSB9",
                                            "ttyUSB99999999999999999998",
                                            "ttyUSB99999999999999999999"};
  for (std::size_t i = 0; i < ordered.size(); ++i) {
    for (std::size_t k = 0; k < ordered.size(); ++k) {
      EXPECT_EQ(IsNaturallyLess(ordered[i], ordered[k]), i < k) << ordered[i] << " " << ordered[k];
    }
  }
}

TEST_F(PortNumbersTest, WithoutAnEntryDevicesAreNumberedInNaturalOrder) {
  const struct {
    int number;
    const char* device;
  } cases[] = {
      {1, "/dev/ttyACM0"}, {2, "/dev/ttyUSB2"}, {3, "/dev/ttyUSB10"}, {4, ""}, {0, ""}, {-1, ""},
      {2147483647, ""},    {-2147483648, ""}};
  for (const auto& one : cases) {
    EXPECT_EQ(Device(one.number), one.device) << one.number;
  }
}

TEST_F(PortNumbersTest, AnEntryDecides) {
  GivenPorts(
      "0=/dev/zero\r\n1 = \"/dev/serial/by-id/My Adapter \"\r\n2=virtual.port\r\n"
      "3=../up/port\r\n4=ttyUSB10\r\n5=\r\n7=/dev/ttyS0\r\n");
  const struct {
    int number;
    std::string device;
  } cases[] = {{0, ""},
               {1, "/dev/serial/by-id/My Adapter"},
               {2, (folder / "virtual.port").string()},
               {3, (folder / "../up/port").string()},
               {4, "/dev/ttyUSB10"},
               {5, ""},
               {6, ""},
               {7, "/dev/ttyS0"}};
  for (const auto& one : cases) {
    EXPECT_EQ(Device(one.number), one.device) << one.number;
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
}

TEST_F(PortNumbersTest, TheTooltipAdvisesWhereNothingIsThere) {
  EXPECT_TRUE(DescribePorts(settings, {}).starts_with("No serial port is present."));
}

}  // namespace
}  // namespace loquitor
