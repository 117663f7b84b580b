#include <sys/resource.h>

#include "tests/e2e/loquitor_session.h"

namespace loquitor::testing {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

/// Waits until a program has printed this after its first `zFrom` bytes, and expects nothing else.
/// The lines of Windows end in CR LF.
void ExpectPrinted(ChildProcess& zProgram, std::size_t zFrom, const std::string& zText) {
  std::string printed;
  Await([&] {
    printed = zProgram.Output().substr(zFrom);
    std::erase(printed, '\r');
    return printed.size() >= zText.size();
  });
  EXPECT_TRUE(printed == zText) << printed;
}

TEST_F(LoquitorSession, SaysAPhraseShowsItsCodesAndClosesThePort) {
  const std::string codes = Prefix +
                            "\xb7\x83\x92\xa4"
                            "\x02"
                            "\x93\x97\x92\xb1"
                            "\x06"
                            "\x16\x64";  // the words, a comma with its pause, two blanks, the pitch
  Start();
  EXPECT_TRUE(AwaitPortColour("FFFFFF"));
  OpenPhraseEditor();
  Say("hello, world  \\PITCH \\100");
  ExpectBytes(codes);
  EXPECT_TRUE(AwaitPortColour("00FF00"));
  EXPECT_EQ(ViewedCodes(), AsNumbers(codes));
  EXPECT_TRUE(AwaitPortColour("FFFFFF")) << "the port closes a second after the last byte";
  CloseByDone("Done of the phrase");
  Finish();
  EXPECT_EQ(ReadBytes(folder / "Loquitor.ini"), "[Ports]\r\n1=" + program.DeviceOf(chip->Path()) +
                                                    "\r\n[Serial]\r\nPort=1\r\nFlowControl=1\r\n");
}

TEST_F(LoquitorSession, StoresAPhraseInTheChipAndFindsTheSettingsAgain) {
  const std::string image =
      R"(\00J32HFFN\01J32HFFN\02J32HFFN\03J32H10N\04J32HFFN\05J32HFFN\06J32HFFN\07J32HFFN)"
      R"(\08J32HFFN\09J32HFFN\010J32HFFN\011J32HFFN\012J32HFFN\013J32HFFN\014J32HFFN)"
      R"(\015J32HFFN\016J32H80N\017J32H83N\018J32HFFN\0VX)";
  WriteBytes(folder / "Loquitor.ini",
             "[Ports]\r\n1=none\r\n2=" + program.DeviceOf(chip->Path()) + "\r\n");
  Start();
  FillIn("Serial Port", "2");
  Click("Use Flow Control");
  Open(At("EEPROM Editor"), EepromTitle);
  Open(At("Phrase 3"), PhraseTitle);
  desktop.Type("\\IY \\EH");
  CloseByDone("Done of the phrase");
  Click("Write the phrases");
  ExpectBytes(image);
  CloseByDone("Done of the phrases");
  Finish();
  EXPECT_THAT(ReadBytes(folder / "Loquitor.ini"),
              HasSubstr("\r\n[Serial]\r\nPort=2\r\nFlowControl=0\r\n"));
  chip->Forget();
  Start();
  Open(At("EEPROM Editor"), EepromTitle);
  Click("Write the phrases");
  ExpectBytes(image);
}

TEST_F(LoquitorSession, IsHeardByTheVirtualOrvatone) {
  ChildProcess virtualChip(program.VirtualOrvatone(folder.Path()));
  ASSERT_TRUE(Await([&] { return virtualChip.Output().ends_with('\n'); }));
  ASSERT_THAT(virtualChip.Output(), HasSubstr("listening"));
  const std::size_t greeting = virtualChip.Output().size();
  WriteBytes(folder / "Loquitor.ini",
             "[Ports]\r\n1=" + program.DeviceOfVirtualOrvatone(folder.Path()) + "\r\n");
  WriteBytes(folder / "Loquitor.Dic", "[words]\r\nlong=" + Repeated("\\IY", 500) + "\r\n");
  Start();
  OpenPhraseEditor();
  Say("long");
  std::string heard =
      "control 20 \\VOLUME 96\ncontrol 21 \\SPEED 114\ncontrol 22 \\PITCH 88\n"
      "control 23 \\BEND 5\n" +
      Repeated("code 128 \\IY\n", 500);
  ExpectPrinted(virtualChip, greeting, heard);
  Click("Shut Up of the phrase");
  heard += "SCP reset\ncode 31 \\RESET\ncode 0 \\P0\n";
  ExpectPrinted(virtualChip, greeting, heard);
}

TEST_F(LoquitorSession, ARealDoubleClickPlaysOnceAndInsertsOnce) {
  Start();
  OpenPhraseEditor();
  DoubleClick("IY");
  ExpectBytes(Prefix + "\x80");
  DoubleClick("Wait");
  desktop.AwaitWindow("Notice");
  desktop.Key("Return");
  ExpectBytes(Prefix + "\x80" + Prefix + "\x10");
  desktop.AwaitGone("Notice");
  chip->Forget();
  Click("Say It");
  ExpectBytes(Prefix + "\x80\x10");
}

TEST_F(LoquitorSession, ASaveBeyondTheSystemsFileSizeIsToldAndHarmsNothing) {
  const std::string before = ReadBytes(folder / "Loquitor.Dic");
  Start();
  const rlimit tooSmall{8, RLIM_INFINITY};
  ASSERT_EQ(prlimit(loquitor->Pid(), RLIMIT_FSIZE, &tooSmall, nullptr), 0);
  Open(At("Dictionary Editor"), DictionaryTitle);
  Click("Save Changes");
  desktop.AwaitWindow("Loquitor");
  EXPECT_TRUE(loquitor->IsRunning());
  EXPECT_EQ(ReadBytes(folder / "Loquitor.Dic"), before);
}

class WindowManager : public LoquitorSession {
 protected:
  std::string Property(const std::string& zTitle, const std::string& zName) {
    return desktop.Property(windows.at(zTitle), zName);
  }

  /// What the user may do to the window: the second number of the hints.
  unsigned Functions(const std::string& zTitle) {
    const std::string hints = Property(zTitle, "_MOTIF_WM_HINTS");
    return static_cast<unsigned>(std::stoul(hints.substr(hints.find(',') + 1), nullptr, 16));
  }

  /// Editors: a close box alone, not in the task bar (a utility window that belongs to another).
  void ExpectToolWindow(const std::string& zTitle) {
    EXPECT_EQ(Functions(zTitle) & ~Resize, unsigned{Move | Close});
    EXPECT_THAT(Property(zTitle, "_NET_WM_WINDOW_TYPE"), HasSubstr("TYPE_UTILITY"));
    EXPECT_THAT(Property(zTitle, "_NET_WM_STATE"), HasSubstr("STATE_MODAL"));
    EXPECT_THAT(Property(zTitle, "WM_TRANSIENT_FOR"), HasSubstr("window id"));
  }

  enum : unsigned { Resize = 2, Move = 4, Minimise = 8, Close = 32 };
};

TEST_F(WindowManager, LearnsWhatMayBeDoneToEachWindow) {
  Start();
  EXPECT_EQ(Functions(MainTitle), unsigned{Resize | Move | Minimise | Close});
  OpenPhraseEditor();
  ExpectToolWindow(PhraseTitle);
  Open(At("View Codes"), CodesTitle);
  ExpectToolWindow(CodesTitle);
  EXPECT_THAT(Property(PhraseTitle, "WM_NORMAL_HINTS"),
              AllOf(HasSubstr("minimum size: 780 by 529"), HasSubstr("maximum size: 780 by 529")));
  for (const std::string& title : {MainTitle, CodesTitle}) {
    EXPECT_THAT(Property(title, "WM_NORMAL_HINTS"), ::testing::Not(HasSubstr("maximum size: ")));
  }
}

TEST_F(WindowManager, FindsTheDesktopEntryAndTheIcon) {
  Start();
  const std::string windowClass = Property(MainTitle, "WM_CLASS");
  const std::string name = windowClass.substr(windowClass.rfind(", \"") + 3);
  EXPECT_THAT(ReadBytes(DESKTOP_ENTRY),
              HasSubstr("\nStartupWMClass=" + name.substr(0, name.size() - 1) + "\n"));
  const std::string icon = Property(MainTitle, "_NET_WM_ICON");
  for (const char* size : {"16 x 16", "32 x 32", "48 x 48", "128 x 128"}) {
    EXPECT_THAT(icon, HasSubstr("Icon (" + std::string(size) + ")"));
  }
}

}  // namespace
}  // namespace loquitor::testing
