#include <csignal>

#include "tests/e2e/loquitor_session.h"

namespace loquitor::testing {
namespace {

using ::testing::HasSubstr;

class EndingSignals : public LoquitorSession {
 protected:
  void ExpectOrderlyEnd(int zSignal) {
    loquitor->Signal(zSignal);
    EXPECT_EQ(loquitor->WaitForEnd(10), 0);
    EXPECT_THAT(ReadBytes(folder / "Loquitor.ini"),
                HasSubstr("[Serial]\r\nPort=1\r\nFlowControl=1\r\n"));
  }
};

TEST_F(EndingSignals, EachStoresTheSettingsOfTheWindowsThatAreOpen) {
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    GivenSettings("[EEPROM]\r\nPhrase3=kept\r\n");
    Start();
    Open(At("EEPROM Editor"), EepromTitle);
    ExpectOrderlyEnd(signal);
    EXPECT_THAT(ReadBytes(folder / "Loquitor.ini"), HasSubstr("\r\nPhrase15=\r\n")) << signal;
    WriteBytes(folder / "Loquitor.ini", "[Ports]\r\n1=" + chip->Path() + "\r\n");
  }
}

TEST_F(EndingSignals, AMessageBoxAndASendUnderWayDoNotStopIt) {
  WriteBytes(folder / "Loquitor.Dic", "[words]\r\nlong=" + Repeated("\\IY", 500) + "\r\n");
  chip->HoldBack();
  Start();
  OpenPhraseEditor();
  Say("long");
  EXPECT_TRUE(AwaitPortColour("00FF00"));
  Click("Wait");
  desktop.AwaitWindow("Notice");
  ExpectOrderlyEnd(SIGTERM);
}

TEST_F(EndingSignals, OneThatIsIgnoredAtTheStartStaysIgnored) {
  loquitor = std::make_unique<ChildProcess>(
      std::vector<std::string>{"nohup", (folder / "Loquitor").string()});
  desktop.AwaitWindow(MainTitle);
  loquitor->Signal(SIGHUP);
  EXPECT_EQ(loquitor->WaitForEnd(1), -1);
  ExpectOrderlyEnd(SIGTERM);
}

TEST(WithoutADisplay, TheProgramEndsWithASentence) {
  ChildProcess loquitor(
      {"sh", "-c", "exec \"$0\" 2>&1", LOQUITOR_PROGRAM},
      {{"DISPLAY", ":none"}, {"WAYLAND_DISPLAY", "none"}, {"QT_QPA_PLATFORM", "xcb"}});
  EXPECT_EQ(loquitor.WaitForEnd(), 1);
  EXPECT_THAT(loquitor.Output(), HasSubstr("Loquitor: no window can be opened"));
}

}  // namespace
}  // namespace loquitor::testing
