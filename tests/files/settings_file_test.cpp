#include "files/settings_file.h"

#include <gtest/gtest.h>

#include <string>

#include "files/sound_library.h"
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
  settings.SaveIniValue("Serial", "Port", longText);
  EXPECT_EQ(settings.GetIniValue("Serial", "Port", ""), longText.substr(0, 255));
  EXPECT_EQ(settings.GetIniValue("Serial", "None", longText), longText.substr(0, 255));
}

TEST_F(SettingsFileTest, WritesNumbersAndTruthValuesInWords) {
  settings.SaveIniValue("EEPROM", "Play0", 1);
  settings.SaveIniValue("EEPROM", "PLAY0", -32768);
  settings.SaveIniValue("EEPROM", "In7RC", true);
  settings.SaveIniValue("EEPROM", "In7TTL", false);
  settings.SaveIniValue("Serial", "Port", "2  ");
  EXPECT_EQ(ReadBytes(folder / "Loquitor.ini"),
            "[EEPROM]\r\nPlay0=-32768\r\nIn7RC=True\r\nIn7TTL=False\r\n[Serial]\r\nPort=2  \r\n");
  EXPECT_EQ(settings.GetIniValue("Serial", "Port", "1"), "2");
}

TEST_F(SettingsFileTest, PredictsTheValueAfterSaving) {
  for (const char* value : {"", " ", "a b", "  a", "a \t", "\t  a", "\" a\"", "'a\"", "\"", "\"\"",
                            "\n\r\n a\r\rb\n", "\r\"a\"\n", ";a", "[a]", "="}) {
    settings.SaveIniValue("EEPROM", "Phrase0", value);
    EXPECT_EQ(ValueAfterSaving(value), settings.GetIniValue("EEPROM", "Phrase0", "")) << value;
  }
}

TEST_F(SettingsFileTest, KnowsATruthValueByItsWordOrNumber) {
  for (const char* text : {"True", "TRUE", " true ", "-1", "0.5", "1x"}) {
    EXPECT_TRUE(IsTrueText(text)) << text;
  }
  for (const char* text : {"False", "0", "", " ", "yes", "truely"}) {
    EXPECT_FALSE(IsTrueText(text)) << text;
  }
}

TEST_F(SettingsFileTest, WantsFlowControlUnlessANumberSaysOtherwise) {
  EXPECT_TRUE(WantsFlowControl(settings));
  const Rows<const char*, bool> rows{{"1", true},  {"", true},    {"no", true},
                                     {"0x", true}, {"-1", true},  {"99999999999", true},
                                     {"0", false}, {"00", false}, {"2", false}};
  for (const auto& [stored, isOn] : rows) {
    settings.SaveIniValue("Serial", "FlowControl", stored);
    EXPECT_EQ(WantsFlowControl(settings), isOn) << stored;
  }
}

TEST_F(SettingsFileTest, KeepsOneSectionForEachSound) {
  EXPECT_TRUE(sounds.SoundNames().empty());
  for (const int frequency : {440, 441}) {
    sounds.SaveSoundValue(frequency == 440 ? "Bell" : "BELL", "Freq1", frequency);
    sounds.SaveSoundValue("Bell", "Vol1", 20);
    sounds.SaveSoundValue("Low Drum", "Freq1", frequency);
  }
  sounds.SaveSoundValue("a]b", "Freq1", 1);  // no name for a section: nothing happens
  EXPECT_EQ(ReadBytes(folder / "OTSounds.txt"),
            "[Bell]\r\nFreq1=441\r\nVol1=20\r\n[Low Drum]\r\nFreq1=441\r\n");
  EXPECT_EQ(sounds.GetSoundValue("bell", "FREQ1", "0"), "441");
  EXPECT_EQ(sounds.GetSoundValue("Low Drum", "Vol1", "0"), "0");
  WriteBytes(folder / "OTSounds.txt", "k=1\n[Bell]\n [ Drum ]\n[bell]\n[]\n[\xC4\n;[no]\n");
  EXPECT_EQ(sounds.SoundNames(), (std::vector<std::string>{"Bell", "Drum", "", "\xC4"}));
}

}  // namespace
}  // namespace loquitor::testing
