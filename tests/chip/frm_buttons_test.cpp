#include "ui/chip/frm_buttons.h"

#include <QLabel>
#include <QTest>
#include <array>
#include <map>
#include <memory>

#include "link/scp.h"
#include "sim/virtual_chip.h"
#include "tests/support/window_test.h"

namespace loquitor::testing {
namespace {

/// What the window sends when nothing was ever stored.
std::string FirstUse() {
  EventConfiguration configuration;
  configuration.isAutoSilent = true;
  return EventConfigurationString(configuration);
}

class EventWindow : public WindowTest {
 protected:
  void Stored(const std::string& zKey, std::string_view zValue) {
    ASSERT_TRUE(settings.SaveIniValue("EEPROM", zKey, zValue));
  }
  void Open() {
    window = std::make_unique<frmButtons>(nullptr, context);
    window->Open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }
  template <class T>
  T* Find(const QString& zName) {
    T* control = window->findChild<T*>(zName);
    EXPECT_NE(control, nullptr) << zName.toStdString();
    return control;
  }
  void Click(const QString& zName) {
    auto* control = Find<QWidget>(zName);
    QTest::mouseClick(control, Qt::LeftButton, {}, QPoint(8, control->height() / 2));
  }
  void ClickCheck(const char* zStem, int zRow) {
    QTest::mouseClick(Find<QWidget>(Indexed(zStem, zRow)), Qt::LeftButton);
  }
  TextBox* Phrase(int zRow) { return Find<TextBox>(Indexed("txtPhrase", zRow)); }
  void Type(TextBox* zBox, const QString& zText) {
    zBox->setFocus();
    zBox->selectAll();
    QTest::keyClicks(zBox, zText);
  }
  std::string Written() {
    Click("btnWrite");
    return Sent();
  }
  std::vector<int> ChosenOptions() {
    std::vector<int> chosen;
    for (int index = 0; index < OptionCount; ++index) {
      if (Find<OptionButton>(Indexed("optIO", index))->isChecked()) {
        chosen.push_back(index);
      }
    }
    return chosen;
  }

  std::unique_ptr<frmButtons> window;
};

TEST_F(EventWindow, WritesTheDefaultsOnFirstUse) {
  Open();
  EXPECT_EQ(window->windowTitle(), "Orvatone Event Configuration");
  EXPECT_EQ(Find<QLabel>("Label1(16)")->text(), "Power up & Reset");
  EXPECT_TRUE(ChosenOptions().empty());
  EXPECT_EQ(Written(), FirstUse());
  EXPECT_FALSE(port.opened.at(0).hardwareHandshaking);
  EXPECT_EQ(host.longPhraseQuestions, 0);
}

TEST_F(EventWindow, TheChipThenHoldsWhatWasClickedAndTyped) {
  Open();
  for (const char* stem : {"chPlay", "chClear", "chRestart"}) {
    ClickCheck(stem, 0);
  }
  ClickCheck("chInt", 1);
  ClickCheck("chPlay", 16);
  Type(Phrase(0), "5");
  Type(Phrase(1), "20");
  Type(Phrase(16), "-1");
  for (int index = 0; index < OptionCount; index += 2) {
    Click(Indexed("optIO", index));
  }
  Click("optIO(9)");
  Type(Find<TextBox>("txtSCPNode"), "5");
  VirtualChip chip;
  chip.Receive(Written());
  EXPECT_EQ(chip.Pending(), std::nullopt);
  const std::array<int, 19> expected{0x7F, 0xFB, 0xDF, 0x05, 0xF4, 0xD0, 0xD0, 0xD0, 0xD0, 0xD0,
                                     0xD0, 0xD0, 0xD0, 0xD0, 0xD0, 0xD0, 0xD0, 0xD0, 0xD0};
  for (std::size_t at = 0; at < expected.size(); ++at) {
    EXPECT_EQ(chip.Eeprom(237 + static_cast<int>(at)), expected[at]) << at;
  }
}

TEST_F(EventWindow, ShowsTheNextRunWhatThisOneHeld) {
  Open();
  for (int row = 0; row < InputEventCount; ++row) {
    ClickCheck(row % 2 == 0 ? "chPlay" : "chClear", row);
    ClickCheck(row % 3 == 0 ? "chInt" : "chRestart", row);
    Type(Phrase(row), QString::number(15 - row));
  }
  ClickCheck("chPlay", 16);
  Type(Phrase(16), "12.5");
  for (const int option : {1, 2, 5, 6, 9, 10, 15}) {
    Click(Indexed("optIO", option));
  }
  Click("chAutoSil");
  const std::string sent = Written();
  const std::vector<int> chosen = ChosenOptions();
  window->close();
  const std::string file = ReadBytes(folder / "Loquitor.ini");
  EXPECT_TRUE(
      file.starts_with("[EEPROM]\r\nPlay0=1\r\nClear0=0\r\nRestart0=0\r\nInterupt0=1\r\n"
                       "PhraseToPlay0=15\r\nPlay1=0\r\nClear1=1\r\nRestart1=1\r\n"))
      << file;
  EXPECT_TRUE(
      file.ends_with("Play16=1\r\nPhraseToPlay16=12.5\r\n"
                     "In7RC=False\r\nIn7TTL=True\r\nIn6RC=True\r\nIn6TTL=False\r\n"
                     "Out0Chip=False\r\nOut0Phrase=True\r\nOut1Chip=True\r\n"
                     "Out1Phrase=False\r\nOut2Chip=False\r\nOut2Phrase=True\r\n"
                     "Out0On=True\r\nOut0Off=False\r\nOut1On=False\r\nOut1Off=False\r\n"
                     "Out2On=False\r\nOut2Off=True\r\nAutoSilence=0\r\n"))
      << file;
  Open();
  EXPECT_EQ(ChosenOptions(), chosen);
  EXPECT_EQ(Written(), sent);
  window->close();
  EXPECT_EQ(ReadBytes(folder / "Loquitor.ini"), file);
}

TEST_F(EventWindow, ReadsStoredStatesAsTheyAreMeant) {
  Stored("Play0", "2");
  Stored("Clear0", "-1");
  Stored("Restart0", "True");
  Stored("Interupt0", "junk");
  Stored("AutoSilence", "0");
  Stored("In7RC", "true");
  Stored("In7TTL", "1");  // both of a pair: the later one
  Stored("Out0Chip", "-1");
  Stored("Out0Phrase", "0");
  Stored("Unknown", "kept");
  Open();
  EXPECT_EQ(ChosenOptions(), (std::vector<int>{1, 4}));
  const std::string sent = Written();
  EXPECT_TRUE(sent.starts_with(R"(\0RX\0240J32H00N)")) << sent;
  EXPECT_NE(sent.find(R"(\0238J32HC1N)"), std::string::npos) << sent;
  window->close();
  EXPECT_EQ(settings.GetIniValue("EEPROM", "Unknown", ""), "kept");
  EXPECT_EQ(settings.GetIniValue("EEPROM", "Play0", ""), "1");
}

TEST_F(EventWindow, NormalisesANumberThatIsLeft) {
  Open();
  for (const auto& [typed, left] : std::map<QString, QString>{
           {"7x", "7"}, {"12.5", "12.5"}, {"abc", "0"}, {".5", "0.5"}, {"1E3", "1000"}}) {
    Type(Phrase(2), typed);
    QTest::keyClick(Phrase(2), Qt::Key_Tab);
    EXPECT_EQ(Phrase(2)->text(), left);
  }
}

TEST_F(EventWindow, NamesTheRowsWhoseNumbersCannotBeSent) {
  const struct {
    const char* key;
    const char* value;
    const char* row;
  } rows[] = {{"PhraseToPlay3", "abc", "Input #1 - Goes Low: \"abc\""},
              {"PhraseToPlay16", "7x", "Power up & Reset: \"7x\""},
              {"PhraseToPlay0", "2147483648", "Input #0 - Goes High: \"2147483648\""}};
  for (const auto& row : rows) {
    Stored(row.key, row.value);
    Open();
    EXPECT_EQ(Written(), "");
    ASSERT_EQ(prompts.asked.size(), 1U) << row.value;
    EXPECT_TRUE(prompts.asked[0].text.contains(row.row)) << prompts.asked[0].text.toStdString();
    EXPECT_TRUE(Find<QWidget>("btnWrite")->isEnabled());
    window->close();
    EXPECT_EQ(settings.GetIniValue("EEPROM", row.key, ""), row.value) << "stored as it is shown";
    Stored(row.key, "0");
    prompts.asked.clear();
  }
  Open();
  Type(Find<TextBox>("txtSCPNode"), "99999999999");
  EXPECT_EQ(Written(), "");
  EXPECT_TRUE(prompts.asked.at(0).text.contains("SCP Node: \"99999999999\""));
  Type(Find<TextBox>("txtSCPNode"), "node");
  EXPECT_EQ(Written(), FirstUse()) << "no number means node 0";
}

TEST_F(EventWindow, ShutUpCutsAWriteAndClosingStopsIt) {
  Open();
  port.onByte = [this] {
    if (port.written.size() == 30) {
      EXPECT_FALSE(Find<QWidget>("btnWrite")->isEnabled());
      Click("btnWrite");
      Click("btnShutUp");
    }
  };
  EXPECT_EQ(Written(), FirstUse().substr(0, 30) + StopSequence());
  EXPECT_TRUE(Find<QWidget>("btnWrite")->isEnabled());
  port.onByte = [this] {
    if (port.written.size() == 30) {
      window->close();
    }
  };
  EXPECT_EQ(Written(), FirstUse().substr(0, 30));
  EXPECT_EQ(settings.GetIniValue("EEPROM", "AutoSilence", ""), "1");
}

TEST_F(EventWindow, StaysUsableWhenThePortFails) {
  Open();
  port.bytesUntilFailure = 10;
  EXPECT_EQ(Written().size(), 10U);
  EXPECT_EQ(host.portState, PortState::Failed);
  port.bytesUntilFailure = -1;
  EXPECT_EQ(Written(), FirstUse());
}

TEST_F(EventWindow, TabsFromRowToRow) {
  Open();
  QStringList order;
  for (QWidget* at = Find<QWidget>("chPlay(0)"); at->objectName() != "btnDone";
       at = at->nextInFocusChain()) {
    if ((at->focusPolicy() & Qt::TabFocus) != 0) {
      order += at->objectName();
    }
  }
  EXPECT_EQ(order.mid(0, 6).join(' '),
            "chPlay(0) txtPhrase(0) chClear(0) chInt(0) chRestart(0) chPlay(1)");
  EXPECT_EQ(order.mid(80).join(' '),
            "chPlay(16) txtPhrase(16) txtSCPNode chAutoSil optIO(0) optIO(2) optIO(4) optIO(6) "
            "optIO(8) optIO(10) optIO(12) optIO(14) btnWrite btnShutUp");
}

}  // namespace
}  // namespace loquitor::testing
