#include "link/settings_file.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "link/port_numbers.h"
#include "link/sound_library.h"
#include "tests/support/rows.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

using namespace std::string_view_literals;
using Text = std::string_view;

/// The settings and the sound library follow the same rules, each on its own file.
class SettingsFileTest : public ::testing::Test {
 protected:
  TempFolder folder;
  SettingsFile settings{folder.Path()};
  SoundLibrary sounds{folder.Path()};
};

TEST_F(SettingsFileTest, ReadsTrimmedValuesAndFallsBackToTheDefault) {
  const std::string longText(300, 'x');
  for (const auto& [text, fallback, value] : Rows<Text, Text, Text>{
           {"", "1", "1"},
           {"[serial]\r\nport=3\r\n", "1", "3"},
           {"[Serial]\nPort=   \n", "1", "1"},
           {"[Serial]\nPort=\"  \"\n", " 1 ", " 1 "},
           {"[Serial]\nPort=\" a b \"\n", "1", "a b"},
           {"[Serial]\nPort=\" a\0 \0\0\"\n"sv, "1", "a"},
           {"[Serial]\nPort=\0\0\n"sv, "1", "1"},
           {"[Other]\nPort=3\n", " 1 ", "1"},  // a default that is read is trimmed like a value
           {"[Other]\nPort=3\n", "   ", "   "}}) {
    WriteBytes(folder / "Loquitor.ini", text);
    EXPECT_EQ(settings.GetIniValue("Serial", "Port", fallback), value) << text;
    WriteBytes(folder / "OTSounds.txt", text);
    EXPECT_EQ(sounds.GetSoundValue("Serial", "Port", fallback), value) << text;
  }
  ASSERT_TRUE(settings.SaveIniValue("Serial", "Port", longText));
  EXPECT_EQ(settings.GetIniValue("Serial", "Port", ""), longText.substr(0, 255));
  EXPECT_EQ(settings.GetIniValue("Serial", "None", longText), longText.substr(0, 255));
}

TEST_F(SettingsFileTest, WritesNumbersAndTruthValuesInWords) {
  ASSERT_TRUE(settings.SaveIniValue("EEPROM", "Play0", 1) &&
              settings.SaveIniValue("EEPROM", "PLAY0", -32768) &&
              settings.SaveIniValue("EEPROM", "In7RC", true) &&
              settings.SaveIniValue("EEPROM", "In7TTL", false) &&
              settings.SaveIniValue("Serial", "Port", "2  "));
  EXPECT_EQ(ReadBytes(folder / "Loquitor.ini"),
            "[EEPROM]\r\nPlay0=-32768\r\nIn7RC=True\r\nIn7TTL=False\r\n[Serial]\r\nPort=2  \r\n");
  EXPECT_EQ(settings.GetIniValue("Serial", "Port", "1"), "2");
}

TEST_F(SettingsFileTest, ForetellsWhatComesBackOfAValue) {
  for (const char* value : {"", " ", "a b", "  a", "a \t", "\t  a", "\" a\"", "'a\"", "\"", "\"\"",
                            "\n\r\n a\r\rb\n", "\r\"a\"\n", ";a", "[a]", "="}) {
    ASSERT_TRUE(settings.SaveIniValue("EEPROM", "Phrase0", value));
    EXPECT_EQ(SavedForm(value), settings.GetIniValue("EEPROM", "Phrase0", "")) << value;
  }
}

TEST_F(SettingsFileTest, KnowsATruthValueByItsWordOrNumber) {
  for (const char* text : {"True", "TRUE", " true ", "-1", "2", "+3", "0.5", "1e3", "1e999"}) {
    EXPECT_TRUE(IsTrueText(text)) << text;
  }
  for (const char* text : {"False", "0", "-0", "0.0", "+0", "", " ", "yes", "1x", "inf", "nan",
                           "truely", "--1", "+-1"}) {
    EXPECT_FALSE(IsTrueText(text)) << text;
  }
}

TEST_F(SettingsFileTest, WantsFlowControlUnlessANumberSaysOtherwise) {
  EXPECT_TRUE(IsFlowControlStored(settings));
  const Rows<const char*, bool> rows{{"1", true},  {"", true},    {"no", true},
                                     {"0x", true}, {"-1", true},  {"99999999999", true},
                                     {"0", false}, {"00", false}, {"2", false}};
  for (const auto& [stored, isOn] : rows) {
    ASSERT_TRUE(settings.SaveIniValue("Serial", "FlowControl", stored));
    EXPECT_EQ(IsFlowControlStored(settings), isOn) << stored;
  }
}

TEST_F(SettingsFileTest, KeepsOneSectionForEachSound) {
  EXPECT_TRUE(sounds.SoundNames().empty());
  for (const int frequency : {440, 441}) {
    ASSERT_TRUE(sounds.SaveSoundValue(frequency == 440 ? "Bell" : "BELL", "Freq1", frequency));
    ASSERT_TRUE(sounds.SaveSoundValue("Bell", "Vol1", 20));
    ASSERT_TRUE(sounds.SaveSoundValue("Low Drum", "Freq1", frequency));
  }
  EXPECT_FALSE(sounds.SaveSoundValue("a]b", "Freq1", 1));
  EXPECT_EQ(ReadBytes(folder / "OTSounds.txt"),
            "[Bell]\r\nFreq1=441\r\nVol1=20\r\n[Low Drum]\r\nFreq1=441\r\n");
  EXPECT_EQ(sounds.GetSoundValue("bell", "FREQ1", "0"), "441");
  EXPECT_EQ(sounds.GetSoundValue("Low Drum", "Vol1", "0"), "0");
  WriteBytes(folder / "OTSounds.txt", "k=1\n[Bell]\n [ Drum ]\n[bell]\n[]\n[\xC4\n;[no]\n");
  EXPECT_EQ(sounds.SoundNames(), (std::vector<std::string>{"Bell", "Drum", "", "\xC4"}));
}

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
  std::vector<SerialDevice> present{{"ttyUSB10", "/dev/ttyUSB10", "Second adapter"},
                                    {"ttyUSB2", "/dev/ttyUSB2", "Adapter"},
                                    {"ttyACM0", "/dev/ttyACM0", ""}};
};

TEST(NaturalOrder, ComparesRunsOfDigitsAsNumbers) {
  std::istringstream names(
      "2 10 tty tty-1 tty0 tty00 tty1 tty01x tty2 tty10a2 tty10a10 ttyACM0 "
      "ttyUSB99999999999999999998 ttyUSB99999999999999999999");
  std::vector<std::string> ordered{""};
  for (std::string name; names >> name;) {
    ordered.push_back(name);
  }
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

TEST_F(PortNumbersTest, TheTooltipListsWhatIsThereNow) {
  GivenPorts("2=virtual.port\r\n9=/missing/device\r\n255=ttyUSB2\r\n");
  const std::string virtualPort = (folder / "virtual.port").string();
  const std::string rest = "\n3:  /dev/ttyUSB10  Second adapter\n255:  /dev/ttyUSB2  Adapter";
  EXPECT_EQ(DescribePorts(settings, present),
            "Serial ports that are present:\n1:  /dev/ttyACM0" + rest);
  WriteBytes(virtualPort, "");
  EXPECT_EQ(DescribePorts(settings, present),
            "Serial ports that are present:\n1:  /dev/ttyACM0\n2:  " + virtualPort + rest);
  GivenPorts("5=linked\r\n");  // as under /dev/serial/by-id
  std::filesystem::create_symlink(virtualPort, folder / "linked");
  EXPECT_EQ(DescribePorts(settings, {{"v", virtualPort, "Adapter"}}),
            "Serial ports that are present:\n1:  " + virtualPort +
                "  Adapter\n5:  " + (folder / "linked").string() + "  Adapter");
  GivenPorts("");
  EXPECT_TRUE(DescribePorts(settings, {}).starts_with("No serial port is present."));
}

}  // namespace
}  // namespace loquitor::testing
