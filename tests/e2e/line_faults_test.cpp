#include "tests/e2e/loquitor_session.h"

namespace loquitor::testing {
namespace {

constexpr std::size_t LongCount = 500;  // codes of the word "long"
constexpr std::size_t EndlessCount = 100 * LongCount;

/// Sixteen stored phrases, of which each but the last has thirteen codes: 2 KB of memory writes.
std::string ManyStoredPhrases() {
  std::string settings = "[EEPROM]\r\n";
  for (int slot = 0; slot < 15; ++slot) {
    settings += "Phrase" + std::to_string(slot) + "=";
    for (int code = 0; code < 13; ++code) {
      settings += "\\" + std::to_string(1 + slot + code * 15);
    }
    settings += "\r\n";
  }
  return settings;
}

class LineFaults : public LoquitorSession {
 protected:
  void GivenLongWords() {
    WriteBytes(folder / "Loquitor.Dic", "[words]\r\nlong=" + Repeated("\\IY", LongCount) +
                                            "\r\nendless=" + Repeated("long ", 100) + "\r\n");
  }

  /// Opens the phrase editor and starts to say `zSayData` while the line is held back.
  void SayWhileHeldBack(const std::string& zSayData) {
    chip->HoldBack();
    OpenPhraseEditor();
    Say(zSayData);
    EXPECT_TRUE(AwaitPortColour("00FF00"));
  }
  void BreakOffEndlessPhrase() {
    SayWhileHeldBack("endless");
    EXPECT_TRUE(chip->LetPass(50));
  }

  /// Expects that the chip gets a beginning of the endless phrase, then `zEnd` and nothing else.
  void ExpectCutBy(const std::string& zEnd) {
    chip->Release();
    ExpectEnd(zEnd);
    const std::string whole = Prefix + std::string(EndlessCount, '\x80');
    const std::size_t cutAt = chip->Received().size() - zEnd.size();
    EXPECT_EQ(chip->Received(), whole.substr(0, cutAt) + zEnd);
    EXPECT_LT(cutAt, whole.size()) << "nothing was cut";
    chip->Forget();
  }
};

TEST_F(LineFaults, ALineThatIsHeldBackForEverLeavesEveryWindowUsableAndTheProgramCloses) {
  GivenSettings(ManyStoredPhrases());
  GivenLongWords();
  Start();
  SayWhileHeldBack("long");
  EXPECT_TRUE(ViewedCodes() == AsNumbers(Prefix + std::string(LongCount, '\x80')));
  Click("Shut Up of the phrase");
  CloseByKey(PhraseTitle);
  Open(At("EEPROM Editor"), EepromTitle);
  Click("Write the phrases");
  CloseByDone("Done of the phrases");
  Open(At("Event Config"), EventTitle);
  Click("Write the events");
  CloseByDone("Done of the events");
  Open(At("Synth Control"), SynthTitle);
  FillIn("Frequency 1", "440");
  CloseByDone("Done of the synth");
  Open(At("Baud Rate and Detune"), BaudRateTitle);
  CloseByKey(BaudRateTitle);
  Open(At("Dictionary Editor"), DictionaryTitle);
  CloseByKey(DictionaryTitle);
  Click("Test Serial Connection");
  Finish();
  EXPECT_EQ(chip->Received(), "");
}

TEST_F(LineFaults, ShutUpAndClosingTheWindowCutAPhraseInMidSend) {
  GivenLongWords();
  Start();
  BreakOffEndlessPhrase();
  Click("Shut Up of the phrase");
  ExpectCutBy(StopBytes);
  CloseByDone("Done of the phrase");
  BreakOffEndlessPhrase();
  CloseByKey(PhraseTitle);
  Click("Test Serial Connection");
  ExpectCutBy(TestBytes);
  Finish();
}

TEST_F(LineFaults, ALineThatIsPulledAwayInMidSendShowsRedAndLeavesEverythingUsable) {
  GivenLongWords();
  Start();
  BreakOffEndlessPhrase();
  chip->HangUp();
  EXPECT_TRUE(AwaitPortColour("FF0000"));
  WriteBytes(folder / "Loquitor.ini", "[Ports]\r\n1=" + ConnectChip() + "\r\n");
  Click("Shut Up of the phrase");
  ExpectBytes(StopBytes);
  EXPECT_TRUE(AwaitPortColour("00FF00"));
  CloseByDone("Done of the phrase");
  Finish();
}

}  // namespace
}  // namespace loquitor::testing
