#include "ui/chip/frm_baud_rate.h"

#include <QTest>
#include <memory>

#include "tests/support/window_test.h"
#include "ui/toolkit/text_box.h"

namespace loquitor::testing {
namespace {

using enum PromptAnswer;

class BaudRateWindow : public WindowTest {
 protected:
  void Open() {
    window = std::make_unique<frmBaudRate>(nullptr, context);
    window->Open();
  }
  void Click(const QString& zName) {
    auto* control = window->findChild<QWidget*>(zName);
    ASSERT_NE(control, nullptr) << zName.toStdString();
    QTest::mouseClick(control, Qt::LeftButton, {}, QPoint(8, control->height() / 2));
  }
  bool IsChosen(int zIndex) {
    return window->findChild<OptionButton*>(Indexed("Option1", zIndex))->isChecked();
  }
  std::string StoredRate() { return settings.GetIniValue("Serial", "BaudRate", "none"); }

  std::unique_ptr<frmBaudRate> window;
};

TEST_F(BaudRateWindow, OpensWithTheStoredRate) {
  const struct {
    const char* stored;
    int chosen;
  } rows[] = {{"2400", 1}, {"4800", 2}, {"9600", 3}, {"19200", 4}, {"300", 0}, {"09600", 0}};
  for (const auto& row : rows) {
    ASSERT_TRUE(settings.SaveIniValue("Serial", "BaudRate", row.stored));
    sender.SendCodesToOrvatone("x", false);
    Open();
    for (int index = 1; index <= 4; ++index) {
      EXPECT_EQ(IsChosen(index), index == row.chosen) << row.stored;
    }
    EXPECT_EQ(port.IsOpen(), row.chosen == 0) << row.stored;
    EXPECT_EQ(StoredRate(), row.stored);
    sender.CloseSerialPort();
  }
}

TEST_F(BaudRateWindow, StoresTheDefaultWhenNothingWasStored) {
  Open();
  EXPECT_EQ(window->windowTitle(), "Orvatone Baud Rate and Detune");
  EXPECT_TRUE(IsChosen(3));
  EXPECT_EQ(StoredRate(), "9600");
}

TEST_F(BaudRateWindow, SendsTheSyncCharacterAtTheChosenRate) {
  Open();
  sender.SendCodesToOrvatone("x", false);
  Sent();
  Click("Option1(4)");
  EXPECT_EQ(StoredRate(), "19200");
  EXPECT_FALSE(port.IsOpen());
  EXPECT_EQ(host.portState, PortState::Closed);
  EXPECT_EQ(Sent(), "");
  Click("btnSendSyncChar");
  EXPECT_EQ(Sent(), "U");
  EXPECT_EQ(port.opened.back().baudRate, "19200");
  EXPECT_FALSE(port.opened.back().hardwareHandshaking);
}

TEST_F(BaudRateWindow, SendsTheDetuneValueOnlyAfterThreeAnswers) {
  const struct {
    std::deque<PromptAnswer> answers;
    std::size_t asked;
    const char* sent;
  } rows[] = {
      {{Yes, No, Yes}, 3, "\\0235J32HFFN"},
      {{No}, 1, ""},
      {{Cancel}, 1, ""},
      {{Yes, Yes}, 2, ""},
      {{Yes, Cancel}, 2, ""},
      {{Yes, No, No}, 3, ""},
      {{Yes, No, Cancel}, 3, ""},
  };
  Open();
  for (const auto& row : rows) {
    sender.CloseSerialPort();
    host.isTimerRunning = false;
    prompts.asked.clear();
    prompts.answers = row.answers;
    Click("btnSendDetuneValue");
    EXPECT_EQ(Sent(), row.sent);
    EXPECT_EQ(prompts.asked.size(), row.asked);
    EXPECT_TRUE(port.IsOpen()) << "an empty command opens the port too";
    EXPECT_TRUE(host.isTimerRunning);
  }
  const char* questions[] = {
      "If you do not know what you are doing...\r\nthen hit Cancel and DO NOT change the Detune "
      "value!\r\n\r\nDo you know how to properly set this value?",
      "Do you want to do abort this function.", "Do you want to set the detune value to &HFF?"};
  for (std::size_t at = 0; at < prompts.asked.size(); ++at) {
    EXPECT_EQ(prompts.asked[at].text, questions[at]);
    EXPECT_EQ(prompts.asked[at].title, ApplicationTitle);
    EXPECT_EQ(prompts.asked[at].buttons, PromptButtons::YesNoCancel);
  }
}

TEST_F(BaudRateWindow, RefusesADetuneValueThatIsNoByte) {
  const struct {
    const char* text;
    std::size_t asked;
    const char* sent;
  } rows[] = {{"&H5", 3, "\\0235J32H05N"},
              {"255", 3, ""},
              {"&hFF", 3, ""},
              {"&H1FF", 4, ""},
              {"&HFFFF", 4, ""}};
  Open();
  for (const auto& row : rows) {
    window->findChild<TextBox*>("txtClockAdj")->SetText(row.text);
    prompts.asked.clear();
    prompts.answers = {Yes, No, Yes};
    Click("btnSendDetuneValue");
    EXPECT_EQ(Sent(), row.sent) << row.text;
    ASSERT_EQ(prompts.asked.size(), row.asked) << row.text;
    EXPECT_TRUE(prompts.asked.back().text.contains(row.text));
  }
}

TEST_F(BaudRateWindow, KeepsNoDetuneValue) {
  Open();
  window->findChild<TextBox*>("txtClockAdj")->SetText("&H10");
  Click("btnDone");
  EXPECT_TRUE(window->IsUnloaded());
  Open();
  EXPECT_EQ(window->findChild<TextBox*>("txtClockAdj")->Text(), "&HFF");
  EXPECT_EQ(ReadBytes(folder / "Loquitor.ini"), "[Serial]\r\nBaudRate=9600\r\n");
}

}  // namespace
}  // namespace loquitor::testing
