#include "tests/e2e/loquitor_session.h"

namespace loquitor::testing {

namespace {

constexpr int TwipsPerPixel = 15;

constexpr std::string_view Dictionary =
    "[words]\r\nhello=\\HE \\EH \\LO \\OWWW\r\nworld=\\WW \\AXRR \\LO \\OD\r\n";

int MiddleX(const Place& zPlace, const Place& zFrame) {
  return (zFrame.left + zPlace.left + zPlace.width / 2) / TwipsPerPixel;
}

int MiddleY(const Place& zPlace, const Place& zFrame) {
  return (zFrame.top + zPlace.top + zPlace.height / 2) / TwipsPerPixel;
}

}  // namespace

std::string AsNumbers(const std::string& zCodes) {
  std::string text;
  for (const char code : zCodes) {
    text += (text.empty() ? "" : ", ") + std::to_string(static_cast<unsigned char>(code));
  }
  return text;
}

void LoquitorSession::SetUp() {
  chip = std::make_unique<PtyChip>();
  std::filesystem::copy_file(LOQUITOR_PROGRAM, folder / "Loquitor");
  WriteBytes(folder / "Loquitor.Dic", Dictionary);
  WriteBytes(folder / "Loquitor.ini", "[Ports]\r\n1=" + chip->Path() + "\r\n");
}

void LoquitorSession::TearDown() {
  if (loquitor && loquitor->IsRunning() && HasFailure()) {
    RunCommand({"import", "-silent", "-window", "root", "/tmp/loquitor-e2e-failure.png"},
               desktop.Environment());
  }
}

void LoquitorSession::StartLoquitor() {
  loquitor = std::make_unique<ChildProcess>(std::vector<std::string>{folder / "Loquitor"},
                                            desktop.Environment());
  mainWindow = desktop.AwaitWindow(MainTitle);
  ASSERT_NE(mainWindow, "");
  desktop.MoveTo(mainWindow, 10, 30);
}

void LoquitorSession::ClickOn(const std::string& zWindow, const Place& zPlace,
                              const Place& zFrame) {
  desktop.Click(zWindow, MiddleX(zPlace, zFrame), MiddleY(zPlace, zFrame));
}

void LoquitorSession::DoubleClickOn(const std::string& zWindow, const Place& zPlace,
                                    const Place& zFrame) {
  desktop.DoubleClick(zWindow, MiddleX(zPlace, zFrame), MiddleY(zPlace, zFrame));
}

std::string LoquitorSession::Open(const std::string& zOpener, const Place& zPlace,
                                  const std::string& zTitle) {
  ClickOn(zOpener, zPlace);
  const std::string window = desktop.AwaitWindow(zTitle);
  EXPECT_NE(window, "") << zTitle;
  desktop.MoveTo(window, 10, 300);
  return window;
}

void LoquitorSession::OpenPhraseEditor() {
  phraseWindow = Open(mainWindow, place::PhraseEditorButton, PhraseTitle);
  ASSERT_NE(phraseWindow, "");
}

std::string LoquitorSession::ViewedCodes() {
  ClickOn(phraseWindow, place::ViewCodes, place::SayDataFrame);
  const std::string codesWindow = desktop.AwaitWindow(CodesTitle);
  const std::string before = desktop.Clipboard();
  ClickOn(codesWindow, place::CodesCopy);
  Await([&] { return desktop.Clipboard() != before; });
  ClickOn(codesWindow, place::CodesDone);
  EXPECT_TRUE(desktop.AwaitGone(CodesTitle));
  return desktop.Clipboard();
}

void LoquitorSession::FillIn(const std::string& zWindow, const std::string& zText,
                             const Place& zPlace, const Place& zFrame) {
  ClickOn(zWindow, zPlace, zFrame);
  desktop.Key("ctrl+a");
  desktop.Type(zText);
  desktop.Key("Tab");
}

bool LoquitorSession::AwaitCount(std::size_t zCount) {
  return Await([&] { return chip->Received().size() >= zCount; });
}

bool LoquitorSession::AwaitBytes(std::string_view zBytes) {
  AwaitCount(zBytes.size());
  EXPECT_EQ(chip->Received(), zBytes);
  return chip->Received() == zBytes;
}

bool LoquitorSession::AwaitPortColour(const std::string& zColour) {
  const int right =
      (place::CommunicationFrame.left + place::PortBox.left + place::PortBox.width) / TwipsPerPixel;
  return Await([&] {
    return desktop.ColourAt(mainWindow, right - 4,
                            MiddleY(place::PortBox, place::CommunicationFrame)) == zColour;
  });
}

int LoquitorSession::Finish() {
  ClickOn(mainWindow, place::MainDone);
  return loquitor->WaitForEnd();
}

}  // namespace loquitor::testing
