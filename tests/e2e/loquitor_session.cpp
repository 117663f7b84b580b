#include "tests/e2e/loquitor_session.h"

#include <fstream>

namespace loquitor::testing {

namespace {

constexpr std::string_view Dictionary =
    "[words]\r\nhello=\\HE \\EH \\LO \\OWWW\r\nworld=\\WW \\AXRR \\LO \\OD\r\n";

const std::map<std::string, Spot> Spots = {
    {"Phrase Editor", {MainTitle, 74, 24}},
    {"EEPROM Editor", {MainTitle, 212, 24}},
    {"Event Config", {MainTitle, 350, 24}},
    {"Synth Control", {MainTitle, 74, 62}},
    {"Dictionary Editor", {MainTitle, 212, 62}},
    {"Baud Rate and Detune", {MainTitle, 350, 62}},
    {"Serial Port", {MainTitle, 102, 118}},
    {"Use Flow Control", {MainTitle, 267, 122}},
    {"Test Serial Connection", {MainTitle, 190, 116}},
    {"Done of the program", {MainTitle, 380, 130}},
    {"Say It", {PhraseTitle, 644, 420}},
    {"View Codes", {PhraseTitle, 730, 420}},
    {"Shut Up of the phrase", {PhraseTitle, 654, 508}},
    {"Done of the phrase", {PhraseTitle, 724, 508}},
    {"IY", {PhraseTitle, 172, 28}},
    {"Wait", {PhraseTitle, 109, 36}},
    {"Copy to Clipboard", {CodesTitle, 311, 332}},
    {"Done of the codes", {CodesTitle, 446, 332}},
    {"Save Changes", {DictionaryTitle, 645, 414}},
    {"Phrase 3", {EepromTitle, 224, 99}},
    {"Write the phrases", {EepromTitle, 552, 238}},
    {"Shut Up of the phrases", {EepromTitle, 680, 238}},
    {"Done of the phrases", {EepromTitle, 770, 238}},
    {"Write the events", {EventTitle, 655, 407}},
    {"Done of the events", {EventTitle, 655, 481}},
    {"Frequency 1", {SynthTitle, 226, 125}},
    {"Done of the synth", {SynthTitle, 582, 508}},
};

}  // namespace

std::string AsNumbers(const std::string& zCodes) {
  std::string text;
  for (const char code : zCodes) {
    text += (text.empty() ? "" : ", ") + std::to_string(static_cast<unsigned char>(code));
  }
  return text;
}

std::string Repeated(const std::string& zText, std::size_t zCount) {
  std::string text;
  for (std::size_t copies = 0; copies < zCount; ++copies) {
    text += zText;
  }
  return text;
}

void LoquitorSession::SetUp() {
  program.CopyTo(folder.Path());
  WriteBytes(folder / "Loquitor.Dic", Dictionary);
  WriteBytes(folder / "Loquitor.ini", "[Ports]\r\n1=" + ConnectChip() + "\r\n");
}

void LoquitorSession::TearDown() {
  if (loquitor && loquitor->IsRunning() && HasFailure()) {
    RunCommand({"import", "-silent", "-window", "root", "/tmp/loquitor-e2e-failure.png"});
  }
}

std::string LoquitorSession::ConnectChip() {
  chip = std::make_unique<PtyChip>();
  return program.DeviceOf(chip->Path());
}

void LoquitorSession::GivenSettings(const std::string& zSettings) {
  std::ofstream(folder / "Loquitor.ini", std::ios::app | std::ios::binary) << zSettings;
}

void LoquitorSession::Start() {
  loquitor = std::make_unique<ChildProcess>(program.Command(folder.Path()));
  windows[MainTitle] = desktop.AwaitWindow(MainTitle);
  desktop.MoveTo(windows[MainTitle], 10, 30);
}

Spot LoquitorSession::At(const std::string& zName) {
  return Spots.at(zName);
}

void LoquitorSession::Click(const Spot& zSpot, int zTimes) {
  const auto [left, top] = program.FrameOf(zSpot.title == MainTitle);
  desktop.Click(windows.at(zSpot.title), zSpot.x + left, zSpot.y + top, zTimes);
}

void LoquitorSession::Open(const Spot& zOpener, const std::string& zTitle) {
  Click(zOpener);
  windows[zTitle] = desktop.AwaitWindow(zTitle);
  desktop.MoveTo(windows[zTitle], 10, 300);
}

void LoquitorSession::CloseByDone(const std::string& zDone) {
  Click(zDone);
  desktop.AwaitGone(At(zDone).title);
}

void LoquitorSession::CloseByKey(const std::string& zTitle) {
  desktop.CloseWindow(windows.at(zTitle));
  desktop.AwaitGone(zTitle);
}

std::string LoquitorSession::ViewedCodes() {
  Click("View Codes");
  windows[CodesTitle] = desktop.AwaitWindow(CodesTitle);
  const std::string before = desktop.Clipboard();
  Click("Copy to Clipboard");
  Await([&] { return desktop.Clipboard() != before; });
  CloseByDone("Done of the codes");
  return desktop.Clipboard();
}

void LoquitorSession::FillIn(const Spot& zBox, const std::string& zText) {
  Click(zBox);
  desktop.Key("ctrl+a");
  desktop.Type(zText);
  desktop.Key("Tab");
}

void LoquitorSession::Say(const std::string& zSayData) {
  desktop.Type(zSayData);
  Click("Say It");
}

void LoquitorSession::ExpectBytes(const std::string& zBytes) {
  Await([&] { return chip->Received().size() >= zBytes.size(); });
  EXPECT_EQ(chip->Received(), zBytes);
}

void LoquitorSession::ExpectEnd(const std::string& zBytes) {
  EXPECT_TRUE(Await([&] { return chip->Received().ends_with(zBytes); }))
      << chip->Received() << " does not end in " << zBytes;
}

bool LoquitorSession::AwaitPortColour(const std::string& zColour) {
  constexpr int besideTheNumber = 112;
  const int middle = At("Serial Port").y;
  return Await(
      [&] { return desktop.ColourAt(windows[MainTitle], besideTheNumber, middle) == zColour; });
}

void LoquitorSession::Finish() {
  Click("Done of the program");
  EXPECT_EQ(loquitor->WaitForEnd(), 0);
}

}  // namespace loquitor::testing
