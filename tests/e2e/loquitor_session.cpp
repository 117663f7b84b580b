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

void LoquitorSession::OpenPhraseEditor() {
  ClickOn(mainWindow, place::PhraseEditorButton);
  phraseWindow = desktop.AwaitWindow(PhraseTitle);
  ASSERT_NE(phraseWindow, "");
  desktop.MoveTo(phraseWindow, 10, 300);
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
