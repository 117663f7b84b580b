#include "ui/chip/frm_baud_rate.h"

#include "tests/support/window_test.h"

namespace loquitor::testing {
namespace {

using enum PromptAnswer;

class BaudRateWindow : public ToolWindowTest {
 protected:
  std::string StoredRate() { return settings.GetIniValue("Serial", "BaudRate", "none"); }
};

TEST_F(BaudRateWindow, OpensWithTheStoredRate) {
  const Rows<const char*, int> rates = {{"", 3},      {"2400", 1}, {"4800", 2}, {"9600", 3},
                                        {"19200", 4}, {"300", 0},  {"09600", 0}};
  for (const auto& [stored, chosen] : rates) {
    settings.SaveIniValue("Serial", "BaudRate", stored);
    sender.SendCodesToOrvatone("x", false);
    Open<frmBaudRate>();
    for (int index = 1; index <= 4; ++index) {
      EXPECT_EQ(Get<OptionButton>(Indexed("Option1", index))->isChecked(), index == chosen)
          << stored;
    }
    EXPECT_EQ(port.IsOpen(), chosen == 0) << stored;
    EXPECT_EQ(StoredRate(), *stored == '\0' ? "9600" : stored);
    sender.CloseSerialPort();
  }
  EXPECT_EQ(window->windowTitle(), "Orvatone Baud Rate and Detune");
}

TEST_F(BaudRateWindow, SendsTheSyncCharacterAtTheChosenRate) {
  Open<frmBaudRate>();
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

TEST_F(BaudRateWindow, SendsTheDetuneValueOnlyAfterThreeAnswersAndKeepsNone) {
  Open<frmBaudRate>();
  for (const auto& [text, answers, asked, sent] :
       Rows<const char*, std::deque<PromptAnswer>, std::size_t, const char*>{
           {"&H5", {Yes, No, Yes}, 3, "\\0235J32H05N"},
           {"&HFF", {No}, 1, ""},
           {"&HFF", {Cancel}, 1, ""},
           {"&HFF", {Yes, Yes}, 2, ""},
           {"&HFF", {Yes, Cancel}, 2, ""},
           {"&HFF", {Yes, No, No}, 3, ""},
           {"&HFF", {Yes, No, Cancel}, 3, ""},
           {"255", {Yes, No, Yes}, 3, ""},
           {"&H1FF", {Yes, No, Yes}, 4, ""},
           {"&H10", {Yes, No, Yes}, 3, "\\0235J32H10N"}}) {
    sender.CloseSerialPort();
    host.isTimerRunning = false;
    prompts.asked.clear();
    prompts.answers = answers;
    Type("txtClockAdj", text);
    Click("btnSendDetuneValue");
    EXPECT_EQ(Sent(), sent) << text;
    EXPECT_EQ(prompts.asked.size(), asked) << text;
    EXPECT_TRUE(port.IsOpen()) << "an empty command opens the port too";
    EXPECT_TRUE(host.isTimerRunning);
  }
  EXPECT_EQ(Told(),
            QStringList({"If you do not know what you are doing...\r\nthen hit Cancel and DO NOT "
                         "change the Detune value!\r\n\r\nDo you know how to properly set this "
                         "value?",
                         "Do you want to do abort this function.",
                         "Do you want to set the detune value to &H10?"}));
  for (const auto& question : prompts.asked) {
    EXPECT_EQ(question.title, ApplicationTitle);
    EXPECT_EQ(question.buttons, PromptButtons::YesNoCancel);
  }
  Click("btnDone");
  EXPECT_TRUE(window->IsUnloaded());
  Open<frmBaudRate>();
  EXPECT_EQ(Get<TextBox>("txtClockAdj")->text(), "&HFF");
  EXPECT_EQ(ReadBytes(folder / "Loquitor.ini"), "[Serial]\r\nBaudRate=9600\r\n");
}

}  // namespace
}  // namespace loquitor::testing
