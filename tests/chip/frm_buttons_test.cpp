#include "ui/chip/frm_buttons.h"

#include <QLabel>

#include "sim/virtual_chip.h"
#include "tests/support/window_test.h"

namespace loquitor::testing {
namespace {

/// What the window sends when nothing was ever stored.
const std::string FirstUse =
    R"(\0RX\0240J32HD0N\0241J32HD0N\0242J32HD0N\0243J32HD0N\0244J32HD0N\0245J32HD0N\0246J32HD0N)"
    R"(\0247J32HD0N\0248J32HD0N\0249J32HD0N\0250J32HD0N\0251J32HD0N\0252J32HD0N\0253J32HD0N)"
    R"(\0254J32HD0N\0255J32HD0N\0237J32HF0N\0238J32HC8N\0239J32H88N\0W)" +
    std::string(5, '\0') + R"(\0VX)";

class EventWindow : public ToolWindowTest {
 protected:
  void ClickRow(const char* zStem, int zRow) { Click(Indexed(zStem, zRow)); }
  void TypePhrase(int zRow, const QString& zText) { Type(Indexed("txtPhrase", zRow), zText); }
  std::string Written() {
    Click("btnWrite");
    return Sent();
  }
  std::vector<int> ChosenOptions() {
    std::vector<int> chosen;
    for (int index = 0; index < OptionCount; ++index) {
      if (Get<OptionButton>(Indexed("optIO", index))->isChecked()) {
        chosen.push_back(index);
      }
    }
    return chosen;
  }
};

TEST_F(EventWindow, WritesTheDefaultsOnFirstUse) {
  Open<frmButtons>();
  EXPECT_EQ(window->windowTitle(), "Orvatone Event Configuration");
  EXPECT_EQ(Get<QLabel>("Label1(16)")->text(), "Power up & Reset");
  EXPECT_TRUE(ChosenOptions().empty());
  EXPECT_EQ(Written(), FirstUse);
  EXPECT_FALSE(port.opened.at(0).hardwareHandshaking);
  EXPECT_EQ(host.longPhraseQuestions, 0);
}

TEST_F(EventWindow, TheChipThenHoldsWhatWasClickedAndTyped) {
  Open<frmButtons>();
  for (const auto& [stem, row] : Rows<const char*, int>{
           {"chPlay", 0}, {"chRestart", 0}, {"chInt", 1}, {"chClear", 2}, {"chPlay", 16}}) {
    ClickRow(stem, row);
  }
  TypePhrase(0, "5");
  TypePhrase(1, "20");
  TypePhrase(15, "7");
  TypePhrase(16, "-1");
  for (int index = 0; index < OptionCount; index += 2) {
    ClickRow("optIO", index);
  }
  Click("optIO(9)");
  Type("txtSCPNode", "5");
  VirtualChip chip;
  chip.Receive(Written());
  EXPECT_EQ(chip.Pending(), std::nullopt);
  const int expected[] = {0x7F, 0xFB, 0xDF, 0x45, 0xF4, 0x90, 0xD0, 0xD0, 0xD0, 0xD0,
                          0xD0, 0xD0, 0xD0, 0xD0, 0xD0, 0xD0, 0xD0, 0xD0, 0xD7};
  int location = 237;
  for (const int byte : expected) {
    EXPECT_EQ(chip.Eeprom(location), byte) << location;
    ++location;
  }
}

TEST_F(EventWindow, ShowsWhatTheLastRunStored) {
  Open<frmButtons>();
  for (int row = 0; row < InputEventCount; ++row) {
    ClickRow(row % 2 == 0 ? "chPlay" : "chClear", row);
    ClickRow(row % 3 == 0 ? "chInt" : "chRestart", row);
    TypePhrase(row, QString::number(15 - row));
  }
  ClickRow("chPlay", 16);
  TypePhrase(16, "12.5");
  for (const int option : {1, 2, 5, 6, 9, 10, 15}) {
    ClickRow("optIO", option);
  }
  Click("chAutoSil");
  const std::string sent = Written();
  const std::vector<int> chosen = ChosenOptions();
  window->close();
  const std::string file = ReadBytes(folder / "Loquitor.ini");
  EXPECT_THAT(
      file, ::testing::StartsWith("[EEPROM]\r\nPlay0=1\r\nClear0=0\r\nRestart0=0\r\nInterupt0=1\r\n"
                                  "PhraseToPlay0=15\r\nPlay1=0\r\nClear1=1\r\nRestart1=1\r\n"));
  EXPECT_THAT(
      file, ::testing::EndsWith("Play16=1\r\nPhraseToPlay16=12.5\r\n"
                                "In7RC=False\r\nIn7TTL=True\r\nIn6RC=True\r\nIn6TTL=False\r\n"
                                "Out0Chip=False\r\nOut0Phrase=True\r\nOut1Chip=True\r\n"
                                "Out1Phrase=False\r\nOut2Chip=False\r\nOut2Phrase=True\r\n"
                                "Out0On=True\r\nOut0Off=False\r\nOut1On=False\r\nOut1Off=False\r\n"
                                "Out2On=False\r\nOut2Off=True\r\nAutoSilence=0\r\n"));
  Open<frmButtons>();
  EXPECT_EQ(ChosenOptions(), chosen);
  EXPECT_EQ(Written(), sent);
  window->close();
  EXPECT_EQ(ReadBytes(folder / "Loquitor.ini"), file);
}

TEST_F(EventWindow, ReadsEveryFormOfAStoredState) {
  WriteBytes(folder / "Loquitor.ini",
             "[eeprom]\nPLAY0=1\nClear0= 1x\nRestart0=01\nInterupt0=2\nAutoSilence=-1\n"
             "Play1=2\nClear1=-1\nRestart1=True\nInterupt1=junk\n"
             "In7RC=true\nIn7TTL=1\n"  // both of a pair: the later one counts
             "Out0Chip=-1\nOut0Phrase=0\nUnknown=kept\n");
  Open<frmButtons>();
  EXPECT_EQ(ChosenOptions(), (std::vector<int>{1, 4}));
  const std::string sent = Written();
  EXPECT_THAT(sent, ::testing::StartsWith(R"(\0RX\0240J32H00N\0241J32HD0N)"));
  EXPECT_THAT(sent, ::testing::HasSubstr(R"(\0238J32HC1N)"));
  window->close();
  EXPECT_EQ(settings.GetIniValue("EEPROM", "Unknown", ""), "kept");
  EXPECT_EQ(settings.GetIniValue("EEPROM", "Play0", ""), "1");
}

TEST_F(EventWindow, NormalisesANumberWhenItsBoxIsLeft) {
  Open<frmButtons>();
  for (const auto& [typed, left] : {std::pair("7x", "7"), {"12.5", "12.5"}, {"abc", "0"}}) {
    TypePhrase(2, typed);
    QTest::keyClick(Get("txtPhrase(2)"), Qt::Key_Tab);
    EXPECT_EQ(Get<TextBox>("txtPhrase(2)")->text(), left);
  }
}

TEST_F(EventWindow, NamesTheRowsWhoseNumbersCannotBeSent) {
  WriteBytes(folder / "Loquitor.ini",
             "[EEPROM]\nPhraseToPlay0=2147483648\nPhraseToPlay3=abc\nPhraseToPlay5=07\n"
             "PhraseToPlay6=+5\nPhraseToPlay7=1E1\nPhraseToPlay16=-\n");
  Open<frmButtons>();
  Type("txtSCPNode", "99999999999");
  EXPECT_EQ(Written(), "");
  EXPECT_EQ(Told().join("|"),
            "Nothing was sent, because this is not a number that can be written:\r\n\r\n"
            "Input #0 - Goes High: \"2147483648\"\r\nInput #1 - Goes Low: \"abc\"\r\n"
            "Power up & Reset: \"-\"\r\nSCP Node: \"99999999999\"\r\n\r\n"
            "Type a phrase number from 0 to 15 (an SCP node from 0 to 7) and write again.");
  EXPECT_TRUE(Get("txtPhrase(0)")->hasFocus());
  EXPECT_TRUE(Get("btnWrite")->isEnabled());
  Reopen<frmButtons>();
  EXPECT_EQ(Get<TextBox>("txtPhrase(3)")->text(), "abc") << "stored as it was shown";
  for (const int row : {0, 3, 16}) {
    TypePhrase(row, "0");
  }
  Type("txtSCPNode", "node");  // a text without a number means node 0
  std::string expected = FirstUse;
  for (const auto& [none, number] : {std::pair("245J32HD0", "245J32HD7"),
                                     {"246J32HD0", "246J32HD5"},
                                     {"247J32HD0", "247J32HDA"}}) {
    expected.replace(expected.find(none), 9, number);
  }
  EXPECT_EQ(Written(), expected);
}

TEST_F(EventWindow, TellsAtEachNumberWhichPhraseItMeans) {
  WriteBytes(folder / "Loquitor.ini",
             "[EEPROM]\nPhrase4=fish & <b>\nPhraseToPlay0=4\nPhraseToPlay1=20\n");
  Open<frmButtons>();
  const auto described = [this](int zRow) {
    return Box(Indexed("txtPhrase", zRow))->accessibleDescription();
  };
  EXPECT_EQ(described(0), "Phrase 4: fish & <b>");
  EXPECT_THAT(Box("txtPhrase(0)")->toolTip().toStdString(),
              ::testing::HasSubstr("Phrase 4: fish &amp; &lt;b&gt;"));
  const QColor plain = ColourOf(Box("txtPhrase(0)"));
  EXPECT_TRUE(described(1).endsWith("Phrase 4: fish & <b>"));
  EXPECT_NE(ColourOf(Box("txtPhrase(1)")), plain);
  TypePhrase(1, "3");
  EXPECT_EQ(described(1), "Phrase 3 is empty.");
  EXPECT_EQ(ColourOf(Box("txtPhrase(1)")), plain);
}

}  // namespace
}  // namespace loquitor::testing
