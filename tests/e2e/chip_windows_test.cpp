#include <gmock/gmock.h>

#include <array>

#include "sim/virtual_chip.h"
#include "tests/e2e/loquitor_session.h"

namespace loquitor::testing {
namespace {

/// The windows that set the chip up, and a chip that keeps what it is told.
class ChipWindows : public LoquitorSession {
 protected:
  /// Waits until `zEnd` has come in, then hands everything received to the chip; what it meant.
  std::vector<ChipEvent> Receive(std::string_view zEnd) {
    EXPECT_TRUE(Await([&] { return chip->Received().ends_with(zEnd); }))
        << chip->Received() << " does not end in " << zEnd;
    std::vector<ChipEvent> events = orvatone.Receive(chip->Received());
    chip->Forget();
    return events;
  }

  std::vector<int> Eeprom(int zFirst, int zLast) {
    std::vector<int> bytes;
    for (int location = zFirst; location <= zLast; ++location) {
      bytes.push_back(orvatone.Eeprom(location));
    }
    return bytes;
  }

  /// The frequency and the volume of oscillator 1.
  std::array<int, 2> Oscillator1() { return {orvatone.Register(1), orvatone.Register(11)}; }

  VirtualChip orvatone;
};

TEST_F(ChipWindows, StoredPhrasesPlayWithTheCodesThatTheirEditorShowed) {
  const std::vector<std::pair<int, std::string>> phrases = {
      {0, "hello"}, {7, "hello,world"}, {15, "\\PITCH \\100  world"}};
  StartLoquitor();
  const std::string window = Open(mainWindow, place::EepromEditorButton, EepromTitle);
  std::map<int, std::string> shown;
  for (const auto& [slot, sayData] : phrases) {
    phraseWindow = Open(window, place::SlotPhrase(slot), PhraseTitle);
    TypeSayData(sayData);
    shown[slot] = ViewedCodes();
    ClickOn(phraseWindow, place::PhraseDone);
    EXPECT_TRUE(desktop.AwaitGone(PhraseTitle));
  }
  ClickOn(window, place::EepromWrite);
  EXPECT_THAT(Receive("\\0VX"), ::testing::SizeIs(16 + 5 + 10 + 8 + 1));

  for (const auto& [slot, sayData] : phrases) {
    ClickOn(window, place::SlotNumber(slot));
    const std::vector<ChipEvent> played = Receive(std::string{29, static_cast<char>(slot)});
    ASSERT_THAT(played, ::testing::SizeIs(1));
    EXPECT_EQ(played[0].kind, ChipEventKind::Play);
    EXPECT_EQ(AsNumbers(Prefix + played[0].codes), shown[slot]) << sayData;
  }
  ClickOn(window, place::EepromDone);
  EXPECT_TRUE(desktop.AwaitGone(EepromTitle));
  EXPECT_EQ(Finish(), 0);
  EXPECT_THAT(ReadBytes(folder / "Loquitor.ini"), ::testing::HasSubstr("Phrase7=hello,world\r\n"));
}

TEST_F(ChipWindows, TheEventConfigurationReachesLocations237To255) {
  StartLoquitor();
  const std::string window = Open(mainWindow, place::EventConfigButton, EventTitle);
  const auto tick = [&](int zRow, int zColumn) {
    ClickOn(window, place::EventControl(zRow, zColumn), place::EventsFrame);
  };
  tick(0, 0);   // input 0 going high plays
  tick(15, 2);  // input 7 going low clears the buffer,
  tick(15, 3);  // calls
  tick(15, 4);  // and restarts
  tick(16, 0);  // power-up plays
  FillIn(window, "9", place::EventControl(0, 1), place::EventsFrame);
  FillIn(window, "15", place::EventControl(15, 1), place::EventsFrame);
  FillIn(window, "3", place::EventControl(16, 1), place::EventsFrame);
  FillIn(window, "5", place::ScpNode, place::MiscellaneousFrame);
  ClickOn(window, place::AutoSilence, place::MiscellaneousFrame);  // no longer
  ClickOn(window, place::Option(0, 0), place::InputStyleFrame);    // input 7 by level
  ClickOn(window, place::Option(1, 0), place::OutputControlFrame);
  ClickOn(window, place::Option(2, 0), place::OutputStartupFrame);
  ClickOn(window, place::EventWrite);
  EXPECT_EQ(Receive("\\0VX").front().kind, ChipEventKind::Reset);

  std::vector<int> expected(19, 0xd0);  // 237 to 255: an input's event that does nothing
  expected[0] = 0x73;                   // power-up
  expected[1] = 0xd2;                   // input style, output control
  expected[2] = 0xdc;                   // start-up states, node
  expected[3] = 0x59;
  expected[18] = 0xaf;
  EXPECT_EQ(Eeprom(237, 255), expected);
  EXPECT_EQ(orvatone.Eeprom(236), 0xff) << "not one more than that";
  ClickOn(window, place::EventDone);
  EXPECT_EQ(Finish(), 0);
}

TEST_F(ChipWindows, ASynthSoundIsPlayedKeptShutUpAndPlayedAgain) {
  StartLoquitor();
  const std::string window = Open(mainWindow, place::SynthButton, SynthTitle);
  FillIn(window, "100", place::MasterVolume, place::MainsFrame);
  FillIn(window, "440", place::FrequencyBox, place::Oscillator1Frame);
  FillIn(window, "20", place::VolumeBox, place::Oscillator1Frame);
  ClickOn(window, place::EnvelopeSine, place::MainsFrame);
  Receive("\\08J 1NX");
  EXPECT_EQ(orvatone.Register(7), 100);
  EXPECT_THAT(Oscillator1(), ::testing::ElementsAre(440, 20));

  FillIn(window, "Bell", place::SoundName, {});
  ClickOn(window, place::SoundSave);
  ClickOn(window, place::SynthShutUp);
  Receive("\\08J 0NX");
  EXPECT_EQ(orvatone.Register(7), 96);
  EXPECT_THAT(Oscillator1(), ::testing::ElementsAre(0, 0));

  ClickOn(window, place::SoundLoad);
  Receive("\\011J 20NX");
  EXPECT_THAT(Oscillator1(), ::testing::ElementsAre(440, 20));
  ClickOn(window, place::SynthDone);
  EXPECT_TRUE(desktop.AwaitGone(SynthTitle));
  Receive("\\08J 0NX");
  EXPECT_EQ(Finish(), 0);
}

}  // namespace
}  // namespace loquitor::testing
