#include "sim/virtual_chip.h"
#include "tests/e2e/loquitor_session.h"

namespace loquitor::testing {
namespace {

/// The windows that set the chip up, and a chip that keeps what it is told.
class ChipWindows : public LoquitorSession {
 protected:
  /// Waits until `zEnd` has come in, then hands everything received to the chip; what it meant.
  std::vector<ChipEvent> Receive(std::string_view zEnd) {
    ExpectEnd(std::string(zEnd));
    std::vector<ChipEvent> events = orvatone.Receive(chip->Received());
    chip->Forget();
    return events;
  }

  VirtualChip orvatone;
};

/// A slot's number in the EEPROM editor; its phrase lies 199 pixels to the right.
Spot SlotNumber(int zSlot) {
  return {EepromTitle, 25 + zSlot / 8 * 408, 21 + zSlot % 8 * 26};
}

/// A control of an event's row: column 0 Play, 1 the phrase's number, 2 Clear, 3 Call, 4 Restart.
Spot EventControl(int zRow, int zColumn) {
  return {EventTitle, 190 + zColumn * 72, 72 + zRow * 22};
}

TEST_F(ChipWindows, StoredPhrasesPlayWithTheCodesThatTheirEditorShowed) {
  const std::map<int, std::string> phrases = {
      {0, "hello"}, {7, "hello,world"}, {15, "\\PITCH \\100  world"}};
  Start();
  Open(At("EEPROM Editor"), EepromTitle);
  std::map<int, std::string> shown;
  for (const auto& [slot, sayData] : phrases) {
    Spot phrase = SlotNumber(slot);
    phrase.x += 199;
    Open(phrase, PhraseTitle);
    desktop.Type(sayData);
    shown[slot] = ViewedCodes();
    CloseByDone("Done of the phrase");
  }
  Click("Write the phrases");
  EXPECT_THAT(Receive("\\0VX"), ::testing::SizeIs(16 + 5 + 10 + 8 + 1));

  for (const auto& [slot, sayData] : phrases) {
    Click(SlotNumber(slot));
    const std::vector<ChipEvent> played = Receive(std::string{29, static_cast<char>(slot)});
    ASSERT_THAT(played, ::testing::SizeIs(1));
    EXPECT_EQ(played[0].kind, ChipEventKind::Play);
    EXPECT_EQ(AsNumbers(Prefix + played[0].codes), shown[slot]) << sayData;
  }
  CloseByDone("Done of the phrases");
  Finish();
  EXPECT_THAT(ReadBytes(folder / "Loquitor.ini"), ::testing::HasSubstr("Phrase7=hello,world\r\n"));
}

TEST_F(ChipWindows, TheEventConfigurationReachesLocations237To255) {
  Start();
  Open(At("Event Config"), EventTitle);
  Click(EventControl(0, 0));   // input 0 going high plays
  Click(EventControl(15, 2));  // input 7 going low clears the buffer,
  Click(EventControl(15, 3));  // calls
  Click(EventControl(15, 4));  // and restarts
  Click(EventControl(16, 0));  // power-up plays
  FillIn(EventControl(0, 1), "9");
  FillIn(EventControl(15, 1), "15");
  FillIn(EventControl(16, 1), "3");
  FillIn("SCP Node", "5");
  for (const char* name : {"Auto Silence", "Input 7 by level", "Output 1 by the chip",
                           "Output 2 on at first", "Write the events"}) {
    Click(name);
  }
  EXPECT_EQ(Receive("\\0VX").front().kind, ChipEventKind::Reset);

  std::vector<int> expected(20, 0xd0);  // an input's event that does nothing
  expected[0] = 0xff;                   // location 236: not written
  expected[1] = 0x73;                   // power-up
  expected[2] = 0xd2;                   // input style, output control
  expected[3] = 0xdc;                   // start-up states, node
  expected[4] = 0x59;
  expected[19] = 0xaf;
  for (int location = 236; location <= 255; ++location) {
    EXPECT_EQ(orvatone.Eeprom(location), expected.at(location - 236)) << location;
  }
  CloseByDone("Done of the events");
  Finish();
}

}  // namespace
}  // namespace loquitor::testing
