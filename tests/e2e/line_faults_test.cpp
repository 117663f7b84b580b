#include <gtest/gtest.h>

#include <fstream>

#include "tests/e2e/loquitor_session.h"

namespace loquitor::testing {
namespace {

constexpr std::size_t LongCount = 500;  // codes

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
  void GivenSettings(const std::string& zSettings) {
    std::ofstream(folder / "Loquitor.ini", std::ios::app | std::ios::binary) << zSettings;
  }

  /// Starts to say `zSayData` while the line is held back; its word "long" has 500 codes, "endless"
  /// 50,000.
  void SayWhileHeldBack(const std::string& zSayData) {
    WriteBytes(folder / "Loquitor.Dic", "[words]\r\nlong=" + Repeated("\\IY", LongCount) +
                                            "\r\nendless=" + Repeated("long ", 100) + "\r\n");
    StartLoquitor();
    chip->HoldBack();
    OpenPhraseEditor();
    TypeSayData(zSayData);
    ClickOn(phraseWindow, place::SayIt, place::SayDataFrame);
    EXPECT_TRUE(AwaitPortColour("00FF00"));
  }

  static std::string Repeated(const std::string& zText, std::size_t zCount) {
    std::string text;
    for (std::size_t copies = 0; copies < zCount; ++copies) {
      text += zText;
    }
    return text;
  }

  void CloseWithKey(const std::string& zWindow, const std::string& zTitle) {
    desktop.CloseWindow(zWindow);
    EXPECT_TRUE(desktop.AwaitGone(zTitle)) << zTitle;
  }
};

TEST_F(LineFaults, ALineThatIsHeldBackForEverLeavesEveryWindowUsableAndTheProgramCloses) {
  GivenSettings(ManyStoredPhrases());
  SayWhileHeldBack("long");
  EXPECT_TRUE(ViewedCodes() == AsNumbers(Prefix + std::string(LongCount, '\x80')));
  ClickOn(phraseWindow, place::PhraseShutUp);
  CloseWithKey(phraseWindow, PhraseTitle);

  const std::string eeprom = Open(mainWindow, place::EepromEditorButton, EepromTitle);
  ClickOn(eeprom, place::EepromWrite);
  ClickOn(eeprom, place::EepromDone);
  EXPECT_TRUE(desktop.AwaitGone(EepromTitle));
  const std::string event = Open(mainWindow, place::EventConfigButton, EventTitle);
  ClickOn(event, place::EventWrite);
  ClickOn(event, place::EventDone);
  EXPECT_TRUE(desktop.AwaitGone(EventTitle));
  const std::string synth = Open(mainWindow, place::SynthButton, SynthTitle);
  FillIn(synth, "440", place::FrequencyBox, place::Oscillator1Frame);
  ClickOn(synth, place::SynthDone);
  EXPECT_TRUE(desktop.AwaitGone(SynthTitle));
  CloseWithKey(Open(mainWindow, place::BaudRateButton, BaudRateTitle), BaudRateTitle);
  CloseWithKey(Open(mainWindow, place::DictionaryEditorButton, DictionaryTitle), DictionaryTitle);

  ClickOn(mainWindow, place::TestButton, place::CommunicationFrame);
  EXPECT_EQ(Finish(), 0);
  EXPECT_EQ(chip->Received(), "");
}

TEST_F(LineFaults, ANewPortNumberLeavesWhatTheOldPortHeldBack) {
  PtyChip second;
  GivenSettings("2=" + second.Path() + "\r\n");
  StartLoquitor();
  chip->HoldBack();
  ClickOn(mainWindow, place::TestButton, place::CommunicationFrame);
  EXPECT_TRUE(AwaitPortColour("00FF00"));
  FillIn(mainWindow, "2", place::PortBox, place::CommunicationFrame);
  EXPECT_TRUE(AwaitPortColour("FFFFFF"));
  ClickOn(mainWindow, place::TestButton, place::CommunicationFrame);
  EXPECT_TRUE(Await([&] { return second.Received() == TestBytes; })) << second.Received();
  EXPECT_EQ(Finish(), 0);
  chip->Release();
  EXPECT_EQ(chip->Received(), "");
}

TEST_F(LineFaults, ClosingThePhraseEditorInMidSendEndsTheSend) {
  SayWhileHeldBack("endless");
  EXPECT_TRUE(chip->LetPass(50));
  CloseWithKey(phraseWindow, PhraseTitle);
  ClickOn(mainWindow, place::TestButton, place::CommunicationFrame);
  chip->Release();
  EXPECT_TRUE(Await([&] { return chip->Received().ends_with(TestBytes); }));
  const std::string phrase = Prefix + std::string(100 * LongCount, '\x80');
  const std::size_t cutAt = chip->Received().size() - TestBytes.size();
  EXPECT_EQ(chip->Received(), phrase.substr(0, cutAt) + TestBytes);
  EXPECT_LT(cutAt, phrase.size()) << "nothing was cut";
  EXPECT_EQ(Finish(), 0);
}

}  // namespace
}  // namespace loquitor::testing
