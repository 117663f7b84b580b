#include "ui/toolkit/scroll_bar.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QStyleOptionSlider>
#include <QTest>
#include <QWheelEvent>
#include <functional>

namespace loquitor {
namespace {

/// A bar from 0 to 127 (page 8) at 96 in a window, writing down its events as "what:value".
class ScrollBarTest : public ::testing::Test {
 protected:
  ScrollBarTest() {
    other.setGeometry(5, 5, 60, 20);
    bar.setGeometry(5, 40, 300, 17);
    window.resize(320, 80);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    other.setFocus();
    const auto note = [this](const char* zWhat) {
      return [this, zWhat] {
        events += QStringLiteral("%1:%2 ").arg(QLatin1String(zWhat)).arg(bar.value());
      };
    };
    QObject::connect(&bar, &ScrollBar::Scroll, note("scroll"));
    QObject::connect(&bar, &ScrollBar::Change, note("change"));
    QObject::connect(&bar, &ScrollBar::GotFocus, note("focus"));
  }

  QRect Part(QStyle::SubControl zPart) {
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = Qt::Horizontal;
    option.state |= QStyle::State_Horizontal;
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.pageStep = bar.pageStep();
    option.sliderPosition = bar.sliderPosition();
    return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, zPart, &bar);
  }
  QPoint Thumb() { return Part(QStyle::SC_ScrollBarSlider).center(); }
  void Press(QPoint zAt) { QTest::mousePress(&bar, Qt::LeftButton, {}, zAt); }
  void DragTo(QPoint zAt) {
    QMouseEvent move(QEvent::MouseMove, zAt, bar.mapToGlobal(zAt), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&bar, &move);
  }
  void Release(QPoint zAt) { QTest::mouseRelease(&bar, Qt::LeftButton, {}, zAt); }
  void Wheel(int zDelta) {
    QWheelEvent turn(QPointF(50, 8), bar.mapToGlobal(QPointF(50, 8)), {}, {0, zDelta}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&bar, &turn);
  }
  QString Events() { return std::exchange(events, {}).trimmed(); }

  QWidget window;
  QLineEdit other{&window};
  ScrollBar bar{127, 8, 96, &window};
  QString events;
};

TEST_F(ScrollBarTest, ADragScrollsAndChangesOnceAtItsEnd) {
  const QPoint from = Thumb();
  Press(from);
  EXPECT_EQ(Events(), "focus:96");
  DragTo(from - QPoint(40, 0));
  const int first = bar.value();
  DragTo(from - QPoint(80, 0));
  const int second = bar.value();
  EXPECT_LT(second, first);
  EXPECT_LT(first, 96);
  EXPECT_EQ(Events(), QString("scroll:%1 scroll:%2").arg(first).arg(second));
  Release(from - QPoint(80, 0));
  EXPECT_EQ(Events(), QString("change:%1").arg(second));
}

TEST_F(ScrollBarTest, ADragThatEndsWhereItBeganOrIsSetByCodeChangesNothingMore) {
  const QPoint from = Thumb();
  Press(from);
  DragTo(from - QPoint(40, 0));
  DragTo(from);
  Events();
  Release(from);
  EXPECT_EQ(Events(), "");
  EXPECT_EQ(bar.value(), 96);
  Press(from);
  bar.setValue(50);
  EXPECT_EQ(Events(), "change:50");
  Release(from);
  EXPECT_EQ(Events(), "");
}

TEST_F(ScrollBarTest, EveryOtherWayChangesOncePerStepAndNotAtTheValueThatStands) {
  const auto key = [this](Qt::Key zKey) { return [this, zKey] { QTest::keyClick(&bar, zKey); }; };
  const auto press = [this](QStyle::SubControl zPart) {
    return [this, zPart] { QTest::mouseClick(&bar, Qt::LeftButton, {}, Part(zPart).center()); };
  };
  struct Row {
    const char* what;
    std::function<void()> act;
    const char* events;
  };
  const Row rows[] = {
      {"code", [this] { bar.setValue(100); }, "change:100"},
      {"code, unchanged", [this] { bar.setValue(100); }, ""},
      {"code, beyond the range", [this] { bar.setValue(999); }, "change:127"},
      {"right key at the end", key(Qt::Key_Right), ""},
      {"left key", key(Qt::Key_Left), "change:126"},
      {"page", key(Qt::Key_PageUp), "change:118"},
      {"home", key(Qt::Key_Home), "change:0"},
      {"end", key(Qt::Key_End), "change:127"},
      {"left arrow", press(QStyle::SC_ScrollBarSubLine), "change:126"},
      {"beside the thumb", press(QStyle::SC_ScrollBarSubPage), "change:118"},
      {"right arrow", press(QStyle::SC_ScrollBarAddLine), "change:119"},
      {"thumb without moving", press(QStyle::SC_ScrollBarSlider), ""},
  };
  bar.setFocus();
  Events();
  for (const Row& row : rows) {
    row.act();
    EXPECT_EQ(Events(), row.events) << row.what;
  }
}

TEST_F(ScrollBarTest, TheFocusComesBeforeWhatBringsIt) {
  QTest::mouseClick(&bar, Qt::LeftButton, {}, Part(QStyle::SC_ScrollBarSubLine).center());
  EXPECT_EQ(Events(), "focus:96 change:95");
  other.setFocus();
  QTest::keyClick(&other, Qt::Key_Tab);
  EXPECT_EQ(Events(), "focus:95");
  other.setFocus();
  Wheel(120);
  EXPECT_TRUE(Events().startsWith("focus:95 change:"));
  Wheel(120);
  EXPECT_TRUE(Events().startsWith("change:"));
  QFocusEvent toFront(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
  QCoreApplication::sendEvent(&bar, &toFront);
  EXPECT_EQ(Events(), "") << "the window, not the bar";
  const QImage focused = bar.grab().toImage();
  other.setFocus();
  EXPECT_NE(bar.grab().toImage().pixelColor(150, 0), focused.pixelColor(150, 0));
}

}  // namespace
}  // namespace loquitor
