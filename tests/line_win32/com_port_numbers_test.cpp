#include "line/port_numbers.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "files/settings_file.h"
#include "tests/support/temp_folder.h"
#include "text/path_text.h"

namespace loquitor::testing {
namespace {

class WindowsPortNumbersTest : public ::testing::Test {
 protected:
  void GivenPorts(const std::string& zEntries) {
    WriteBytes(folder / "Loquitor.ini", "[Ports]\r\n" + zEntries);
  }
  std::string Device(int zNumber) {
    return DeviceForPort(zNumber, settings, [this] { return present; });
  }

  TempFolder folder;
  SettingsFile settings{folder.Path()};
  std::vector<SerialDevice> present{{"COM3", "COM3", "Adapter"}, {"COM12", "COM12", ""}};
};

TEST_F(WindowsPortNumbersTest, AnEntryDecidesAndElseTheNumberIsThatOfThePort) {
  GivenPorts(
      "1=COM12\r\n2=\\\\.\\pipe\\chip\r\n4=com7\r\n5=C:\\My Ports\\a\r\n6=\u0416 port\r\n7=\r\n");
  const std::string inFolder = TextOf(folder.Path()) + "\\\u0416 port";
  const std::string devices[] = {
      "", "COM12", "\\\\.\\pipe\\chip", "COM3", "com7", "C:\\My Ports\\a", inFolder, "COM7"};
  for (int number = 0; number < 8; ++number) {
    EXPECT_EQ(Device(number), devices[number]);
  }
}

TEST_F(WindowsPortNumbersTest, EachNumberAndEachDeviceIsDescribed) {
  GivenPorts("1=COM12\r\n3=\\\\.\\pipe\\loquitor-no-such-pipe\r\n");
  EXPECT_EQ(DescribePorts(settings, present),
            "Port numbers and their devices:"
            "\n1:  COM12"
            "\n3:  \\\\.\\pipe\\loquitor-no-such-pipe  (missing)"
            "\n12:  COM12"
            "\nCOM3 has no number: 3 is taken by [Ports]"
            "\nLoquitor.ini is in " +
                TextOf(folder.Path()));
}

}  // namespace
}  // namespace loquitor::testing
