#include "ui/toolkit/click_label.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <functional>
#include <utility>

#include "tests/support/real_mouse.h"

namespace loquitor {
namespace {

/// A label in a window, writing down its events: c for Click, d for DoubleClick.
class ClickLabelTest : public ::testing::Test {
 protected:
  ClickLabelTest() {
    label->setGeometry(10, 10, 60, 20);
    window.resize(100, 60);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    QObject::connect(label, &ClickLabel::Click, &window, [this] {
      events += 'c';
      if (whenClicked) {
        whenClicked();
      }
    });
    QObject::connect(label, &ClickLabel::DoubleClick, &window, [this] { events += 'd'; });
  }

  QWidget window;
  ClickLabel* label = new ClickLabel("IY", &window);
  testing::RealMouse mouse;
  std::string events;
  std::function<void()> whenClicked;
};

TEST_F(ClickLabelTest, ClicksWhenReleasedInsideWithTheLeftButton) {
  QTest::mouseClick(label, Qt::LeftButton);
  EXPECT_EQ(events, "c");
  QTest::mousePress(label, Qt::LeftButton);
  QTest::mouseRelease(label, Qt::LeftButton, {}, {200, 200});
  QTest::mouseClick(label, Qt::RightButton);
  QTest::mouseRelease(label, Qt::LeftButton);
  EXPECT_EQ(events, "c");
}

TEST_F(ClickLabelTest, ASecondPressInTimeIsADoubleClickEvenWhileTheFirstIsStillAtWork) {
  whenClicked = [] { QTest::qWait(350); };
  for (const auto& [interval, expected] : {std::pair(50, "cd"), {300, "cd"}, {600, "cc"}}) {
    events.clear();
    mouse.ClickTwice(label, interval);
    QTest::qWait(750);  // the next press is no second one
    EXPECT_EQ(events, expected) << interval;
  }
}

/// Answers the box that the click opens, after a while.
void AskAndAnswer() {
  QMessageBox box;
  QTimer::singleShot(300, &box, &QMessageBox::accept);
  box.exec();
}

TEST_F(ClickLabelTest, AClickThatOpensABoxWaitsForTheSecondPress) {
  label->SetDelaysClick(true);
  whenClicked = AskAndAnswer;
  mouse.ClickTwice(label, 150);
  EXPECT_TRUE(QTest::qWaitFor([this] { return events == "cd"; }, 3000)) << events;
  events.clear();
  QTest::qWait(450);
  mouse.Click(label);
  EXPECT_EQ(events, "") << "held back";
  EXPECT_TRUE(QTest::qWaitFor([this] { return events == "c"; }, 3000)) << events;
}

TEST_F(ClickLabelTest, CanBePressedByAssistiveProgramsAndDisappearInItsOwnClick) {
  QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(label);
  EXPECT_EQ(accessible->role(), QAccessible::Button);
  EXPECT_EQ(accessible->text(QAccessible::Name), "IY");
  QAccessibleActionInterface* actions = accessible->actionInterface();
  actions->doAction(QAccessibleActionInterface::pressAction());
  actions->doAction("Double press");
  EXPECT_EQ(events, "ccd");
  whenClicked = [this] { delete std::exchange(label, nullptr); };
  actions->doAction("Double press");
  EXPECT_EQ(events, "ccdc");
}

TEST_F(ClickLabelTest, ShowsItsBackgroundAndItsPlaceInTheGroup) {
  const QColor plain = label->grab().toImage().pixelColor(1, 1);
  for (const auto& [background, text] :
       {std::pair(QColor(0, 0, 128), Qt::white), {QColor(255, 0, 0), Qt::black}}) {
    label->SetBackground(background);
    EXPECT_EQ(label->grab().toImage().pixelColor(1, 1), background);
    EXPECT_EQ(label->palette().color(QPalette::Text), QColor(text));
  }
  label->SetBackground({});
  EXPECT_EQ(label->grab().toImage().pixelColor(1, 1), plain);
  label->SetCurrent(true);
  EXPECT_NE(label->grab().toImage().pixelColor(0, 0), plain);
}

}  // namespace
}  // namespace loquitor
