#include <functional>
#include <memory>
#include <ostream>
#include <utility>
#include <vector>

#include "line/scp.h"
#include "tests/support/window_test.h"
#include "ui/chip/eeprom_image.h"
#include "ui/chip/frm_buttons.h"
#include "ui/chip/frm_eeprom.h"

namespace loquitor::testing {
namespace {

/// A window that writes to the chip, and what it writes when nothing was ever stored.
struct WritingWindow {
  const char* name;
  std::unique_ptr<ToolWindow> (*make)(const EditorContext&);
  std::string whole;
  const char* lastStored;

  friend void PrintTo(const WritingWindow& zWindow, std::ostream* zOut) { *zOut << zWindow.name; }
};

template <class Window>
std::unique_ptr<ToolWindow> Make(const EditorContext& zContext) {
  return std::make_unique<Window>(nullptr, zContext);
}

std::vector<WritingWindow> WritingWindows() {
  EventConfiguration events;
  events.isAutoSilent = true;
  return {{"Eeprom", Make<frmEEPROM>, EepromWriteString(BuildEepromImage({})), "Phrase15="},
          {"Events", Make<frmButtons>, EventConfigurationString(events), "AutoSilence=1"}};
}

class AWrite : public ToolWindowTest, public ::testing::WithParamInterface<WritingWindow> {
 protected:
  void SetUp() override {
    window = GetParam().make(context);
    window->Open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QObject::connect(window.get(), &ToolWindow::Closed, [this] { ++closings; });
  }
  std::string Written() {
    Click("btnWrite");
    EXPECT_TRUE(Get("btnWrite")->isEnabled());
    EXPECT_NE(window->cursor().shape(), Qt::WaitCursor);
    return Sent();
  }
  /// Writes while the line is held back, closes the window and does `zSteps` in a new one.
  void WriteWithWindowOpenedMeanwhile(const std::function<void()>& zSteps) {
    port.isHeldBack = true;
    std::unique_ptr<ToolWindow> first;
    After(20, [&] {
      window->close();
      first = std::exchange(window, GetParam().make(context));
      window->Open();
      zSteps();
    });
    Click("btnWrite");
    EXPECT_NE(first, nullptr);
  }
  /// Expects that the window shows, or does not show, a write that goes on. While it does, the
  /// controls that would cut the write are disabled.
  void ExpectShown(bool zIsShown) {
    EXPECT_EQ(window->cursor().shape() == Qt::WaitCursor, zIsShown);
    for (const char* name : {"btnWrite", "lbs(0)", "Phrase(15)"}) {
      if (auto* control = window->findChild<QWidget*>(name)) {
        EXPECT_EQ(control->isEnabled(), !zIsShown) << name;
      }
    }
    EXPECT_TRUE(Get("btnShutUp")->isEnabled());
  }
  static std::string FirstBytes(std::size_t zCount) { return GetParam().whole.substr(0, zCount); }

  int closings = 0;
};

TEST_P(AWrite, IsCutByShutUpAndByNothingElse) {
  AfterBytes(30, [this] {
    EXPECT_FALSE(Get("btnWrite")->isEnabled());
    EXPECT_EQ(window->cursor().shape(), Qt::WaitCursor);
    Click("btnWrite");
  });
  EXPECT_EQ(Written(), GetParam().whole);
  AfterBytes(30, [this] { Click("btnShutUp"); });
  EXPECT_EQ(Written(), FirstBytes(30) + StopSequence());
  AfterBytes(30, [this] { QTest::keyClick(window.get(), Qt::Key_F8); });
  EXPECT_EQ(Written(), FirstBytes(30) + StopSequence());
}

TEST_P(AWrite, GoesOnToItsLastByteWhenItsWindowIsClosedWhichStoresOnce) {
  AfterBytes(50, [this] {
    Click("btnDone");
    window->close();
  });
  EXPECT_EQ(Written(), GetParam().whole);
  EXPECT_EQ(closings, 1);
  EXPECT_TRUE(
      ReadBytes(folder / "Loquitor.ini").ends_with(std::string(GetParam().lastStored) + "\r\n"));
}

TEST_P(AWrite, IsShownByAWindowThatIsOpenedMeanwhileUntilItsLastByte) {
  WriteWithWindowOpenedMeanwhile([this] {
    ExpectShown(true);
    port.isHeldBack = false;
    while (!sender.PendingOutput().empty()) {
      sender.Tick();  // the open window holds up the loop of the send
    }
    EXPECT_TRUE(QTest::qWaitFor([this] { return Get("btnWrite")->isEnabled(); }));
    ExpectShown(false);
    EXPECT_EQ(Written(), GetParam().whole + GetParam().whole);
  });
}

TEST_P(AWrite, IsCutByTheShutUpOfAWindowThatIsOpenedMeanwhile) {
  WriteWithWindowOpenedMeanwhile([this] {
    After(10, [this] { port.isHeldBack = false; });
    Click("btnShutUp");
    EXPECT_TRUE(QTest::qWaitFor([this] { return Get("btnWrite")->isEnabled(); }));
    EXPECT_EQ(Sent(), StopSequence());
  });
}

TEST_P(AWrite, SendsNothingWhenItsWindowIsClosedAsItBegins) {
  After(0, [this] { window->close(); });
  EXPECT_EQ(Written(), "");
}

TEST_P(AWrite, SendsItsShutUpWhenTheLineIsFreeAlthoughItsWindowIsClosed) {
  port.isHeldBack = true;
  After(20, [this] { Click("btnShutUp"); });
  After(40, [this] { Click("btnDone"); });
  After(60, [this] { port.isHeldBack = false; });
  EXPECT_EQ(Written(), StopSequence());
  EXPECT_EQ(closings, 1);
}

TEST_P(AWrite, CanBeRepeatedAfterThePortHasFailed) {
  port.bytesUntilFailure = 20;
  EXPECT_EQ(Written(), FirstBytes(20));
  EXPECT_EQ(host.portState, PortState::Failed);
  EXPECT_TRUE(Get("btnWrite")->hasFocus());
  port.bytesUntilFailure = -1;
  EXPECT_EQ(Written(), GetParam().whole);
}

INSTANTIATE_TEST_SUITE_P(Of, AWrite, ::testing::ValuesIn(WritingWindows()),
                         [](const auto& zInfo) { return std::string(zInfo.param.name); });

}  // namespace
}  // namespace loquitor::testing
