#include "ui/phrase/sound_command.h"

#include <gtest/gtest.h>

namespace loquitor {
namespace {

const PaletteMember& Member(std::string_view zCaption) {
  for (const PaletteMember& member : PaletteTable) {
    if (member.caption.Text() == zCaption) {
      return member;
    }
  }
  throw std::invalid_argument("no member " + std::string(zCaption));
}

TEST(SoundCommand, SendsCodeValueAndPitch) {
  struct Case {
    const char* caption;
    const char* boxText;
    std::optional<std::string> codes;
  };
  CodeTable table;
  table.BuildCodeTable();
  for (const Case& expected : {
           Case{"P0", "", std::string(1, '\0')},
           Case{"IY", "77", "\x80"},
           Case{"M2", "", "\xFE"},
           Case{"Wait", "", "\x10"},
           Case{"NTC1", "9", "\x16\x21"},
           Case{"NTF#2", "", "\x16\x5D"},
           Case{"Call", "3", "\x1C\x03"},
           Case{"Play", "", std::string("\x1D\0", 2)},
           Case{"PCtrl", "2.5", "\x18\x02"},
           Case{"POut", "3.5", "\x19\x04"},
           Case{"Repeat", "7abc", "\x1A\x07"},
           Case{"Delay", " 2 5 5 ", "\x1E\xFF"},
           Case{"Delay", "&HfF", "\x1E\xFF"},
           Case{"Delay", "-0.5", std::string("\x1E\0", 2)},
           Case{"Delay", "255.4", "\x1E\xFF"},
           Case{"Delay", "255.5", std::nullopt},
           Case{"Delay", "256", std::nullopt},
           Case{"Delay", "-1", std::nullopt},
           Case{"Delay", "1E999", std::nullopt},
       }) {
    EXPECT_EQ(SoundCodes(table, Member(expected.caption), expected.boxText), expected.codes)
        << expected.caption << " with " << expected.boxText;
  }
}

TEST(SoundCommand, AsksBeforeTheChipIsStopped) {
  EXPECT_EQ(WaitNotice(),
            "This control code will cause set the Orvatone to stop until restarted.\r\n"
            "To restart the Orvatone you must do one of the following;\r\n"
            "\r\n"
            " 1. Activate an event that has been tied to the Restart function.\r\n"
            " 2. Send an SCP Restart command.\r\n"
            " 3. Reset the Orvatone with the Reset line. \r\n"
            " 4. Reset the Orvatone with the SCP Reset command.\r\n"
            "       Note that the \"Shut Up\" Button in the phrase editor\r\n"
            "       sends the SCP Reset command.\r\n"
            "\r\n"
            "-OR-\r\n"
            "\r\n"
            " Press the Cancel button to not send this command to the Orvatone.");
}

}  // namespace
}  // namespace loquitor
