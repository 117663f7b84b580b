#include <gmock/gmock.h>
#include <sys/resource.h>

#include "tests/e2e/loquitor_session.h"

namespace loquitor::testing {
namespace {

// hello, world  \PITCH \100 in the session's dictionary: the words, a comma with its pause, two
// blanks.
const std::string HelloWorldCodes =
    "\xb7\x83\x92\xa4"
    "\x02"
    "\x93\x97\x92\xb1"
    "\x06"
    "\x16\x64";

TEST_F(LoquitorSession, SaysAPhraseShowsItsCodesAndClosesThePort) {
  StartLoquitor();
  EXPECT_TRUE(AwaitPortColour("FFFFFF"));
  OpenPhraseEditor();
  TypeSayData("hello, world  \\PITCH \\100");
  ClickOn(phraseWindow, place::SayIt, place::SayDataFrame);
  AwaitBytes(Prefix + HelloWorldCodes);
  EXPECT_TRUE(AwaitPortColour("00FF00"));

  EXPECT_EQ(ViewedCodes(), AsNumbers(Prefix + HelloWorldCodes));

  EXPECT_TRUE(AwaitPortColour("FFFFFF")) << "the port closes a second after the last byte";
  ClickOn(phraseWindow, place::PhraseDone);
  EXPECT_TRUE(desktop.AwaitGone(PhraseTitle));
  EXPECT_EQ(Finish(), 0);
  EXPECT_EQ(ReadBytes(folder / "Loquitor.ini"),
            "[Ports]\r\n1=" + chip->Path() + "\r\n[Serial]\r\nPort=1\r\nFlowControl=1\r\n");
}

TEST_F(LoquitorSession, ShutUpCutsAPhraseThatTheChipHoldsBack) {
  std::string entry;
  for (int copies = 0; copies < 250; ++copies) {
    entry += "\\IY\\EH";
  }
  std::string words;
  for (int level = 0; level < 7; ++level) {  // 500 codes doubled seven times
    words += "w" + std::to_string(level) + "=w" + std::to_string(level + 1) + " w" +
             std::to_string(level + 1) + "\r\n";
  }
  WriteBytes(folder / "Loquitor.Dic", "[words]\r\n" + words + "w7=" + entry + "\r\n");
  StartLoquitor();
  OpenPhraseEditor();
  TypeSayData("w0");
  ClickOn(phraseWindow, place::SayIt, place::SayDataFrame);
  EXPECT_TRUE(AwaitPortColour("00FF00"));
  const timespec lineFills{1, 0};
  nanosleep(&lineFills, nullptr);
  ClickOn(phraseWindow, place::PhraseShutUp);

  EXPECT_TRUE(Await([&] { return chip->Received().ends_with(StopBytes); }));
  const std::string& received = chip->Received();
  std::string phrase = Prefix;
  while (phrase.size() < received.size()) {
    phrase += "\x80\x83";
  }
  const std::size_t cutAt = received.size() - StopBytes.size();
  EXPECT_EQ(received, phrase.substr(0, cutAt) + StopBytes);
  EXPECT_LT(cutAt, 64008u) << "nothing was cut";
}

TEST_F(LoquitorSession, ALineThatIsPulledAwayInMidSendShowsRedAndLeavesEverythingUsable) {
  std::string words;
  for (int level = 0; level < 16; ++level) {
    words += "w" + std::to_string(level) + "=w" + std::to_string(level + 1) + " w" +
             std::to_string(level + 1) + "\r\n";
  }
  WriteBytes(folder / "Loquitor.Dic", "[words]\r\n" + words + "w16=\\IY\r\n");
  StartLoquitor();
  OpenPhraseEditor();
  TypeSayData("w0");
  ClickOn(phraseWindow, place::SayIt, place::SayDataFrame);
  EXPECT_TRUE(AwaitPortColour("00FF00"));
  chip->HangUp();
  EXPECT_TRUE(AwaitPortColour("FF0000"));

  chip = std::make_unique<PtyChip>();
  WriteBytes(folder / "Loquitor.ini", "[Ports]\r\n1=" + chip->Path() + "\r\n");
  ClickOn(phraseWindow, place::PhraseShutUp);
  AwaitBytes(StopBytes);
  EXPECT_TRUE(AwaitPortColour("00FF00"));
  ClickOn(phraseWindow, place::PhraseDone);
  EXPECT_TRUE(desktop.AwaitGone(PhraseTitle));
  EXPECT_EQ(Finish(), 0);
}

TEST_F(LoquitorSession, ARealDoubleClickPlaysOnceAndInsertsOnce) {
  StartLoquitor();
  OpenPhraseEditor();
  DoubleClickOn(phraseWindow, place::VowelIy, place::VowelsFrame);
  AwaitBytes(Prefix + "\x80");
  chip->Forget();
  ClickOn(phraseWindow, place::SayIt, place::SayDataFrame);
  AwaitBytes(Prefix + "\x80");
}

TEST_F(LoquitorSession, ARealDoubleClickOnWaitAsksAndInserts) {
  StartLoquitor();
  OpenPhraseEditor();
  DoubleClickOn(phraseWindow, place::Wait, place::PausesFrame);
  ASSERT_NE(desktop.AwaitWindow("Notice"), "");
  desktop.Key("Return");
  AwaitBytes(Prefix + "\x10");
  EXPECT_TRUE(desktop.AwaitGone("Notice"));
  chip->Forget();
  ClickOn(phraseWindow, place::SayIt, place::SayDataFrame);
  AwaitBytes(Prefix + "\x10");
}

TEST_F(LoquitorSession, APortThatCannotBeOpenedIsRedUntilTheNumberChanges) {
  StartLoquitor();
  ClickOn(mainWindow, place::PortBox, place::CommunicationFrame);
  desktop.Key("ctrl+a");
  desktop.Type("99999999999");
  ClickOn(mainWindow, place::TestButton, place::CommunicationFrame);
  EXPECT_TRUE(AwaitPortColour("FF0000"));
  ClickOn(mainWindow, place::PortBox, place::CommunicationFrame);
  desktop.Key("ctrl+a");
  desktop.Type("1");
  desktop.Key("Tab");
  EXPECT_TRUE(AwaitPortColour("FFFFFF"));
  ClickOn(mainWindow, place::TestButton, place::CommunicationFrame);
  AwaitBytes("\x1f\\0VX");
  EXPECT_TRUE(AwaitPortColour("00FF00"));
}

TEST_F(LoquitorSession, ASaveBeyondTheSystemsFileSizeIsToldAndHarmsNothing) {
  const std::string before = ReadBytes(folder / "Loquitor.Dic");
  StartLoquitor();
  const rlimit tooSmall{8, RLIM_INFINITY};
  ASSERT_EQ(prlimit(loquitor->Pid(), RLIMIT_FSIZE, &tooSmall, nullptr), 0);
  ClickOn(mainWindow, place::DictionaryEditorButton);
  const std::string editor = desktop.AwaitWindow(DictionaryTitle);
  ASSERT_NE(editor, "");
  ClickOn(editor, place::DictionarySave);
  EXPECT_NE(desktop.AwaitWindow("Loquitor"), "");
  EXPECT_TRUE(loquitor->IsRunning());
  EXPECT_EQ(ReadBytes(folder / "Loquitor.Dic"), before);
}

}  // namespace
}  // namespace loquitor::testing
