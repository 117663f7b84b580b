#include "ui/chip/frm_baud_rate.h"

#include "tests/support/window_test.h"

namespace loquitor::testing {
namespace {

using enum PromptAnswer;

class BaudRateWindow : public ToolWindowTest {
 protected:
  void OpenRates() { Open<frmBaudRate>(); }
  std::string StoredRate() { return settings.GetIniValue("Serial", "BaudRate", "none"); }
};

TEST_F(BaudRateWindow, OpensWithTheStoredRate) {
  const struct {
    const char* stored;
    int chosen;
    const char* storedThen;
  } rows[] = {{"", 3, "9600"},       {"2400", 1, "2400"}, {"4800", 2, "4800"},  {"9600", 3, "9600"},
              {"19200", 4, "19200"}, {"300", 0, "300"},   {"09600", 0, "09600"}};
  for (const auto& row : rows) {
    ASSERT_TRUE(settings.SaveIniValue("Serial", "BaudRate", row.stored));
    sender.SendCodesToOrvatone("x", false);
    OpenRates();
    for (int index = 1; index <= 4; ++index) {
      EXPECT_EQ(Get<OptionButton>(Indexed("Option1", index))->isChecked(), index == row.chosen)
          << row.stored;
    }
    EXPECT_EQ(port.IsOpen(), row.chosen == 0) << row.stored;
    EXPECT_EQ(StoredRate(), row.storedThen);
    sender.CloseSerialPort();
  }
  EXPECT_EQ(window->windowTitle(), "Orvatone Baud Rate and Detune");
}

TEST_F(BaudRateWindow, SendsTheSyncCharacterAtTheChosenRate) {
  OpenRates();
  sender.SendCodesToOrvatone("x", false);
  Sent();
  Click("Option1(4)");
  EXPECT_EQ(StoredRate(), "19200");
  EXPECT_EQ(host.portState, PortState::Closed);
  EXPECT_EQ(Sent(), "");
  Click("btnSendSyncChar");
  EXPECT_EQ(Sent(), "U");
  EXPECT_EQ(port.opened.back().baudRate, "19200");
  EXPECT_FALSE(port.opened.back().hardwareHandshaking);
}

TEST_F(BaudRateWindow, SendsTheDetuneValueOnlyAfterThreeAnswers) {
  const struct {
    const char* text;
    std::deque<PromptAnswer> answers;
    std::size_t asked;
    const char* sent;
  } rows[] = {{"&H5", {Yes, No, Yes}, 3, "\\0235J32H05N"},
              {"&HFF", {No}, 1, ""},
              {"&HFF", {Cancel}, 1, ""},
              {"&HFF", {Yes, Yes}, 2, ""},
              {"&HFF", {Yes, Cancel}, 2, ""},
              {"&HFF", {Yes, No, No}, 3, ""},
              {"&HFF", {Yes, No, Cancel}, 3, ""},
              {"255", {Yes, No, Yes}, 3, ""},
              {"&H1FF", {Yes, No, Yes}, 4, ""},
              {"&HFF", {Yes, No, Yes}, 3, "\\0235J32HFFN"}};
  OpenRates();
  for (const auto& row : rows) {
    sender.CloseSerialPort();
    host.isTimerRunning = false;
    prompts.asked.clear();
    prompts.answers = row.answers;
    Type("txtClockAdj", row.text);
    Click("btnSendDetuneValue");
    EXPECT_EQ(Sent(), row.sent) << row.text;
    EXPECT_EQ(prompts.asked.size(), row.asked) << row.text;
    EXPECT_TRUE(port.IsOpen()) << "an empty command opens the port too";
    EXPECT_TRUE(host.isTimerRunning);
  }
  const char* questions[] = {
      "If you do not know what you are doing...\r\nthen hit Cancel and DO NOT change the Detune "
      "value!\r\n\r\nDo you know how to properly set this value?",
      "Do you want to do abort this function.", "Do you want to set the detune value to &HFF?"};
  for (std::size_t at = 0; at < std::size(questions); ++at) {
    EXPECT_EQ(prompts.asked.at(at).text, questions[at]);
    EXPECT_EQ(prompts.asked[at].title, ApplicationTitle);
    EXPECT_EQ(prompts.asked[at].buttons, PromptButtons::YesNoCancel);
  }
}

TEST_F(BaudRateWindow, KeepsNoDetuneValue) {
  OpenRates();
  Type("txtClockAdj", "&H10");
  Click("btnDone");
  EXPECT_TRUE(window->IsUnloaded());
  OpenRates();
  EXPECT_EQ(Get<TextBox>("txtClockAdj")->text(), "&HFF");
  EXPECT_EQ(ReadBytes(folder / "Loquitor.ini"), "[Serial]\r\nBaudRate=9600\r\n");
}

}  // namespace
}  // namespace loquitor::testing
