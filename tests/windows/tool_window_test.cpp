#include "ui/windows/tool_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <functional>

#include "tests/support/real_mouse.h"
#include "ui/controls/text_box.h"

namespace loquitor::testing {
namespace {

/// A window that writes down its steps.
class NotingWindow : public ToolWindow {
 public:
  explicit NotingWindow(QWidget* zOwner, Sizing zSizing = Sizing::Fixed)
      : ToolWindow(zOwner, QStringLiteral(" Orvatone Test"), {3000, 1500}, zSizing) {
    button.setGeometry(10, 10, 80, 20);
    QObject::connect(this, &ToolWindow::Closed, this, [this] { steps += "closed "; });
  }

  std::string steps;
  QPushButton button{this};

 protected:
  void Load() override { steps += isVisible() ? "late load " : "load "; }
  void Activate() override { steps += "activate "; }
  void Unload() override {
    steps += QApplication::activeModalWidget() == nullptr ? "unload " : "unload while modal ";
  }
};

class ToolWindowTest : public ::testing::Test {
 protected:
  ToolWindowTest() {
    owner.resize(300, 200);
    owner.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&owner));
  }
  static void ShowAndWait(ToolWindow& zWindow) {
    zWindow.Open();
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &zWindow; }));
  }

  QWidget owner;
};

TEST_F(ToolWindowTest, LoadsOnceAndUnloadsOnceHoweverItIsClosed) {
  const std::function<void(ToolWindow&)> ways[] = {[](ToolWindow& zWindow) { zWindow.close(); },
                                                   [](ToolWindow& zWindow) { zWindow.reject(); },
                                                   [](ToolWindow& zWindow) { zWindow.accept(); }};
  for (const auto& close : ways) {
    NotingWindow window(&owner);
    close(window);
    EXPECT_EQ(window.steps, "") << "nothing is unloaded that was never shown";
    ShowAndWait(window);
    EXPECT_EQ(window.steps, "load activate ");
    EXPECT_FALSE(window.IsUnloaded());
    close(window);
    close(window);
    EXPECT_TRUE(window.IsUnloaded());
    EXPECT_EQ(window.steps, "load activate unload closed ");
  }
}

TEST_F(ToolWindowTest, ADoubleClickThatOpensOrClosesItReachesNothingElse) {
  NotingWindow opener(&owner);
  ShowAndWait(opener);
  NotingWindow window(&opener);
  QSignalSpy opened(&opener.button, &QPushButton::clicked);
  QSignalSpy pressed(&window.button, &QPushButton::clicked);
  QObject::connect(&opener.button, &QPushButton::clicked, &window, [&] { ShowAndWait(window); });
  RealMouse mouse;
  mouse.Click(&opener.button);
  ASSERT_TRUE(window.isVisible());
  window.move(opener.pos());
  mouse.Click(&window.button);
  EXPECT_EQ(pressed.count(), 0);
  mouse.Click(&window.button);
  mouse.Click(&window.button);
  EXPECT_EQ(pressed.count(), 2);
  QTest::qWait(QApplication::doubleClickInterval() + 1);
  QObject::connect(&window.button, &QPushButton::clicked, &window, &QWidget::close);
  mouse.Click(&window.button);
  mouse.Click(&opener.button);
  EXPECT_EQ(opened.count(), 1);
  mouse.Click(&opener.button);
  EXPECT_EQ(opened.count(), 2);
}

TEST_F(ToolWindowTest, LooksLikeAToolWindowInTheMiddleOfTheScreen) {
  NotingWindow fixed(&owner);
  NotingWindow resizable(&owner, ToolWindow::Sizing::Resizable);
  ShowAndWait(fixed);
  EXPECT_EQ(fixed.windowTitle(), " Orvatone Test");
  EXPECT_EQ(fixed.size(), QSize(200, 100));
  EXPECT_EQ(fixed.minimumSize(), fixed.maximumSize());
  EXPECT_FALSE(fixed.windowFlags() &
               (Qt::WindowMinMaxButtonsHint | Qt::WindowContextHelpButtonHint));
  EXPECT_TRUE(fixed.windowFlags() & Qt::WindowCloseButtonHint);
  const QPoint offset = fixed.geometry().center() - owner.screen()->availableGeometry().center();
  EXPECT_LE(offset.manhattanLength(), 40);  // give or take the title bar
  fixed.close();
  ShowAndWait(resizable);
  resizable.resize(500, 5);
  EXPECT_EQ(resizable.size(), QSize(500, 5));
}

TEST_F(ToolWindowTest, DoesNotOpenOverAnOwnerThatHasBeenClosed) {
  NotingWindow window(&owner);
  QTimer::singleShot(0, &window, &QWidget::close);  // in case it opens after all
  owner.close();
  window.ShowModal();
  EXPECT_EQ(window.steps, "");
}

TEST_F(ToolWindowTest, IsUnloadedWithItsOwnerFreeBeforeShowModalReturns) {
  NotingWindow window(&owner);
  bool isShownModal = false;
  QTimer::singleShot(0, &window, [&] {
    // A handler of the window that waits, like a send on a line that is held back.
    isShownModal = QApplication::activeModalWidget() == &window;
    QTimer::singleShot(0, &window, &QWidget::close);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.IsUnloaded(); }, 2000));
    EXPECT_TRUE(window.steps.ends_with(" unload closed ")) << window.steps;
  });
  window.ShowModal();
  EXPECT_TRUE(isShownModal);
}

TEST_F(ToolWindowTest, EnterAndEscapeDoNothingAndClosingMovesNoFocus) {
  NotingWindow window(&owner);
  TextBox box(&window);
  QSignalSpy lost(&box, &TextBox::LostFocus);
  QSignalSpy pressed(&window.button, &QPushButton::clicked);
  ShowAndWait(window);
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter}) {
    QTest::keyClick(&window, key);
  }
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(pressed.count(), 0);
  box.setFocus();
  window.close();
  QCoreApplication::processEvents();
  EXPECT_EQ(lost.count(), 0);
}

}  // namespace
}  // namespace loquitor::testing
