#include <memory>
#include <ostream>
#include <vector>

#include "link/scp.h"
#include "tests/support/window_test.h"
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
}

TEST_P(AWrite, IsStoppedByClosingWhichStoresOnce) {
  AfterBytes(50, [this] {
    Click("btnDone");
    window->close();
  });
  EXPECT_EQ(Written(), FirstBytes(50));
  EXPECT_EQ(closings, 1);
  EXPECT_TRUE(
      ReadBytes(folder / "Loquitor.ini").ends_with(std::string(GetParam().lastStored) + "\r\n"));
}

TEST_P(AWrite, SendsNothingWhenItsWindowIsClosedAsItBegins) {
  After(0, [this] { window->close(); });
  EXPECT_EQ(Written(), "");
}

TEST_P(AWrite, LeavesItsShutUpToALineHeldBackWhenItsWindowIsClosed) {
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
