#include "ui/windows/send_progress.h"

#include "tests/support/window_test.h"
#include "ui/main/frm_utility.h"

namespace loquitor::testing {
namespace {

const QString Title = "Quenlith Phrase Translator for Orvatone  V.1.4";

/// The program on a line that the chip holds back after each byte, so that a send lasts.
class LongSend : public WindowTest {
 protected:
  LongSend() {
    WriteBytes(folder / "Loquitor.ini", "[Ports]\r\n1=/scripted/one\r\n");
    main.Open();
  }
  /// Sends 100 bytes, of which `zCount` leave at once. Does `zSteps` while the rest waits for more
  /// than a second.
  void SendThatWaits(std::size_t zCount, const std::function<void()>& zSteps) {
    AfterBytes(zCount, [this] { port.isHeldBack = true; });
    After(1500, [this, zSteps] {
      zSteps();
      port.isHeldBack = false;
    });
    main.Context().sender.SendCodesToOrvatone(std::string(100, 'x'), false);
  }

  frmUtility main{port, settings, dictionary, prompts};
};

TEST_F(LongSend, ShowsInTheTitleHowMuchIsStillToGo) {
  SendThatWaits(60, [this] { EXPECT_EQ(main.windowTitle(), "40% to go - " + Title); });
  EXPECT_EQ(main.windowTitle(), Title);
}

TEST_F(LongSend, ShowsItInTheWindowInFrontAndLeavesOthersAsTheyWere) {
  SendThatWaits(10, [this] {
    After(300, [this] {
      QWidget* editor = QApplication::activeModalWidget();
      EXPECT_EQ(editor->windowTitle(), "90% to go - Orvatone Event Configuration");
      EXPECT_EQ(main.windowTitle(), Title);
      port.isHeldBack = false;
      EXPECT_TRUE(
          QTest::qWaitFor([=] { return editor->windowTitle() == "Orvatone Event Configuration"; }));
      editor->close();
    });
    QTest::mouseClick(main.findChild<QWidget*>("btnSetSerialPort"), Qt::LeftButton);
  });
  EXPECT_EQ(main.windowTitle(), Title);
}

TEST_F(LongSend, LeavesAShortOneAlone) {
  port.isHeldBack = true;
  After(600, [this] {
    EXPECT_EQ(main.windowTitle(), Title);
    port.isHeldBack = false;
  });
  main.Context().sender.SendCodesToOrvatone("short", false);
}

}  // namespace
}  // namespace loquitor::testing
