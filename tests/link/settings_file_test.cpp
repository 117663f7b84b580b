#include "link/settings_file.h"

#include <gtest/gtest.h>

#include <string>

#include "link/sound_library.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

using namespace std::string_view_literals;

/// The settings and the sound library follow the same rules, each on its own file.
class SettingsFileTest : public ::testing::Test {
 protected:
  TempFolder folder;
  SettingsFile settings{folder.Path()};
  SoundLibrary sounds{folder.Path()};
};

TEST_F(SettingsFileTest, ReadsTrimmedValuesAndFallsBackToTheDefault) {
  const std::string longText(300, 'x');
  struct Row {
    std::string_view text, fallback, value;
  };
  const Row rows[] = {
      {"", "1", "1"},
      {"[serial]\r\nport=3\r\n", "1", "3"},
      {"[Serial]\nPort=   \n", "1", "1"},
      {"[Serial]\nPort=\"  \"\n", " 1 ", " 1 "},
      {"[Serial]\nPort=\" a b \"\n", "1", "a b"},
      {"[Serial]\nPort=\" a\0 \0\0\"\n"sv, "1", "a"},
      {"[Serial]\nPort=\0\0\n"sv, "1", "1"},
      {"[Other]\nPort=3\n", " 1 ", "1"},  // a default that is read is trimmed like a value
      {"[Other]\nPort=3\n", "   ", "   "},
  };
  for (const Row& row : rows) {
    for (const char* name : {"Loquitor.ini", "OTSounds.txt"}) {
      WriteBytes(folder / name, row.text);
    }
    EXPECT_EQ(settings.GetIniValue("Serial", "Port", row.fallback), row.value) << row.text;
    EXPECT_EQ(sounds.GetSoundValue("Serial", "Port", row.fallback), row.value) << row.text;
  }
  ASSERT_TRUE(settings.SaveIniValue("Serial", "Port", longText));
  EXPECT_EQ(settings.GetIniValue("Serial", "Port", ""), longText.substr(0, 255));
  EXPECT_EQ(settings.GetIniValue("Serial", "None", longText), longText.substr(0, 255));
}

TEST_F(SettingsFileTest, WritesNumbersAndTruthValuesInWords) {
  ASSERT_TRUE(settings.SaveIniValue("EEPROM", "Play0", 1));
  ASSERT_TRUE(settings.SaveIniValue("EEPROM", "Play1", -32768));
  ASSERT_TRUE(settings.SaveIniValue("EEPROM", "In7RC", true));
  ASSERT_TRUE(settings.SaveIniValue("EEPROM", "In7TTL", false));
  ASSERT_TRUE(settings.SaveIniValue("Serial", "Port", "2  "));
  ASSERT_TRUE(settings.SaveIniValue("EEPROM", "PLAY0", std::string("0")));
  EXPECT_EQ(ReadBytes(folder / "Loquitor.ini"),
            "[EEPROM]\r\nPlay0=0\r\nPlay1=-32768\r\nIn7RC=True\r\nIn7TTL=False\r\n"
            "[Serial]\r\nPort=2  \r\n");
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
  for (const char* text : {"True", "TRUE", " true ", "-1", "1", "2", "+3", "0.5", "1e3", "1e999"}) {
    EXPECT_TRUE(IsTrueText(text)) << text;
  }
  for (const char* text : {"False", "0", "-0", "0.0", "+0", "", " ", "yes", "1x", "inf", "nan",
                           "truely", "--1", "+-1"}) {
    EXPECT_FALSE(IsTrueText(text)) << text;
  }
}

TEST_F(SettingsFileTest, WantsFlowControlUnlessANumberSaysOtherwise) {
  EXPECT_TRUE(IsFlowControlStored(settings));
  for (const bool isOn : {true, false}) {
    for (const char* stored : isOn ? std::vector{"1", "", "no", "0x", "-1", "99999999999"}
                                   : std::vector{"0", "00", "2"}) {
      ASSERT_TRUE(settings.SaveIniValue("Serial", "FlowControl", stored));
      EXPECT_EQ(IsFlowControlStored(settings), isOn) << stored;
    }
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
  EXPECT_EQ(sounds.SoundNames(), (std::vector<std::string>{"Bell", "Low Drum"}));
  EXPECT_EQ(sounds.GetSoundValue("bell", "FREQ1", "0"), "441");
  EXPECT_EQ(sounds.GetSoundValue("Low Drum", "Vol1", "0"), "0");
}

}  // namespace
}  // namespace loquitor::testing
