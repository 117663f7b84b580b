// Check boxes, option groups, labels that can be clicked, scroll bars.

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStyleOptionSlider>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <functional>
#include <utility>

#include "tests/support/real_mouse.h"
#include "tests/support/rows.h"
#include "ui/controls/check_box.h"
#include "ui/controls/click_label.h"
#include "ui/controls/scroll_bar.h"

namespace loquitor::testing {
namespace {

/// A window with controls that write down their events.
class ControlsTest : public ::testing::Test {
 protected:
  void Show() {
    window.resize(320, 200);
    other.setGeometry(5, 5, 60, 20);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    other.setFocus();
  }
  QString Events() { return std::exchange(events, {}).trimmed(); }

  QWidget window;
  QLineEdit other{&window};
  QString events;
};

class CheckBoxTest : public ControlsTest {
 protected:
  CheckBoxTest() {
    box.setGeometry(0, 30, 120, 30);
    for (int index = 0; index < 4; ++index) {
      options[index].setGeometry(0, 60 + 20 * index, 100, 13);
      group.Add(&options[index], index);
    }
    QObject::connect(&box, &CheckBox::Click, [this] { events += "box "; });
    QObject::connect(&group, &OptionGroup::Click,
                     [this](int zIndex) { events += QString::number(zIndex) + ' '; });
    Show();
  }

  CheckBox box{"Apply && Go", &window};
  OptionButton options[4] = {
      {"Saw", &window}, {"Sine", &window}, {"Triangle", &window}, {"Square", &window}};
  OptionGroup group{&window};
};

TEST_F(CheckBoxTest, ClickIsRaisedWhenTheStateChangesByTheUserOrByCode) {
  for (const auto& [value, raised] : Rows<int, const char*>{{0, ""}, {1, "box"}, {1, ""}}) {
    box.SetValue(value);
    EXPECT_EQ(Events(), raised);
  }
  QTest::mouseClick(&box, Qt::LeftButton, {}, {115, 3});  // anywhere in it
  EXPECT_EQ(box.Value(), 0);
  EXPECT_EQ(Events(), "box");
}

TEST_F(CheckBoxTest, AGroupStartsWithNoneAndHoldsAtMostOne) {
  EXPECT_EQ(group.Chosen(), -1);
  for (int click = 0; click < 2; ++click) {  // the second does not clear it
    QTest::mouseClick(&options[2], Qt::LeftButton);
    EXPECT_TRUE(group.IsChosen(2));
  }
  for (int choice = 0; choice < 2; ++choice) {
    group.Choose(0);
    EXPECT_EQ(group.Chosen(), 0);
    EXPECT_FALSE(group.IsChosen(2));
  }
  EXPECT_EQ(Events(), "2 0");
}

/// A label that notes c for clicked and d for DoubleClick.
class ClickLabelTest : public ControlsTest {
 protected:
  ClickLabelTest() {
    label->setGeometry(10, 40, 60, 20);
    QObject::connect(label, &ClickLabel::clicked, [this] {
      events += 'c';
      whenClicked();
    });
    QObject::connect(label, &ClickLabel::DoubleClick, [this] { events += 'd'; });
    Show();
  }

  ClickLabel* label = new ClickLabel("IY", &window);
  RealMouse mouse;
  std::function<void()> whenClicked = [] {};
};

TEST_F(ClickLabelTest, ASecondPressInTimeIsADoubleClickEvenWhileTheFirstIsStillAtWork) {
  whenClicked = [] { QTest::qWait(350); };
  for (const auto& [interval, expected] :
       Rows<int, const char*>{{150, "cd"}, {300, "cd"}, {600, "cc"}}) {
    mouse.ClickTwice(label, interval);
    QTest::qWait(750);  // so that the next press is a first one
    EXPECT_EQ(Events(), expected) << interval;
  }
}

TEST_F(ClickLabelTest, AClickThatOpensABoxWaitsForTheSecondPress) {
  label->SetHoldsClick(true);
  whenClicked = [] {
    QMessageBox box;
    QTimer::singleShot(300, &box, &QMessageBox::accept);
    box.exec();
  };
  mouse.ClickTwice(label, 150);
  EXPECT_TRUE(QTest::qWaitFor([this] { return events == "cd"; }, 3000)) << qPrintable(events);
  QTest::qWait(450);
  Events();
  mouse.Click(label);
  EXPECT_EQ(events, "") << "held back";
  EXPECT_TRUE(QTest::qWaitFor([this] { return events == "c"; }, 3000)) << qPrintable(events);
}

TEST_F(ClickLabelTest, AHeldClickIsRaisedBeforeTheNextPressActs) {
  label->SetHoldsClick(true);
  QPushButton button("Say It", &window);
  button.setGeometry(100, 40, 60, 20);
  button.show();
  QObject::connect(&button, &QPushButton::clicked, [this] { events += 'b'; });
  QObject::connect(&other, &QLineEdit::textEdited, [this] { events += 't'; });
  for (const auto& [next, expected] :
       Rows<std::function<void()>, const char*>{{[&] { mouse.Click(&button); }, "cb"},
                                                {[&] { QTest::keyClick(&other, Qt::Key_X); }, "ct"},
                                                {[&] { mouse.Click(&other); }, "c"}}) {
    mouse.Click(label);
    EXPECT_EQ(events, "");
    next();
    EXPECT_EQ(Events(), expected);
    QTest::qWait(450);
    EXPECT_EQ(Events(), "") << "it came twice";
  }
}

TEST_F(ClickLabelTest, ShowsItsBackgroundWithReadableText) {
  const auto pixel = [this] { return label->grab().toImage().pixelColor(1, 1); };
  const QColor plain = pixel();
  for (const auto& [background, text] :
       Rows<QColor, QColor>{{QColor(0, 0, 128), Qt::white}, {QColor(255, 0, 0), Qt::black}}) {
    label->SetBackground(background);
    EXPECT_EQ(pixel(), background);
    EXPECT_EQ(label->palette().color(QPalette::Text), text);
  }
  label->SetBackground({});
  EXPECT_EQ(pixel(), plain);
}

/// A bar from 0 to 127 (page 8) at 96 that notes its events as "what:value".
class ScrollBarTest : public ControlsTest {
 protected:
  ScrollBarTest() {
    bar.setGeometry(5, 40, 300, 17);
    Show();
    const auto note = [this](const char* zWhat) {
      return [this, zWhat] { events += QString("%1:%2 ").arg(zWhat).arg(bar.value()); };
    };
    QObject::connect(&bar, &ScrollBar::Scroll, note("scroll"));
    QObject::connect(&bar, &ScrollBar::Change, note("change"));
    QObject::connect(&bar, &ScrollBar::GotFocus, note("focus"));
  }

  QPoint Part(QStyle::SubControl zPart) {
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = Qt::Horizontal;
    option.state |= QStyle::State_Horizontal;
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.pageStep = bar.pageStep();
    option.sliderPosition = bar.sliderPosition();
    return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, zPart, &bar).center();
  }
  void PressThumb() {
    from = Part(QStyle::SC_ScrollBarSlider);
    QTest::mousePress(&bar, Qt::LeftButton, {}, from);
  }
  /// Drags the thumb to `zPixels` left of where it was pressed. Returns the value there.
  int DragLeft(int zPixels) {
    const QPoint at = from - QPoint(zPixels, 0);
    QMouseEvent move(QEvent::MouseMove, at, bar.mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&bar, &move);
    return bar.value();
  }
  void Release(int zPixels) {
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, from - QPoint(zPixels, 0));
  }
  void Press(QStyle::SubControl zPart) { QTest::mouseClick(&bar, Qt::LeftButton, {}, Part(zPart)); }
  void Wheel() {
    const QPointF at(50, 8);
    QWheelEvent turn(at, bar.mapToGlobal(at), {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&bar, &turn);
  }

  ScrollBar bar{127, 8, 96, &window};
  QPoint from;
  RealMouse mouse;
};

TEST_F(ScrollBarTest, ADragScrollsAndChangesOnceAtItsEnd) {
  PressThumb();
  EXPECT_EQ(Events(), "focus:96");
  const int first = DragLeft(40);
  const int second = DragLeft(80);
  EXPECT_TRUE(second < first && first < 96);
  EXPECT_EQ(Events(), QString("scroll:%1 scroll:%2").arg(first).arg(second));
  Release(80);
  EXPECT_EQ(Events(), QString("change:%1").arg(second));
}

TEST_F(ScrollBarTest, ADragThatEndsWhereItBeganOrIsSetByCodeRaisesNoChangeAtItsEnd) {
  PressThumb();
  DragLeft(40);
  EXPECT_EQ(DragLeft(0), 96);
  Events();
  Release(0);
  EXPECT_EQ(Events(), "");
  PressThumb();
  bar.setValue(50);
  Release(0);
  EXPECT_EQ(Events(), "change:50");
}

TEST_F(ScrollBarTest, ADragGoesOnFromWhereTheFocusHasMovedTheThumb) {
  QObject::connect(&bar, &ScrollBar::GotFocus, [this] { bar.setValue(20); });
  const QPoint thumb = Part(QStyle::SC_ScrollBarSlider);
  mouse.Press(&bar, thumb);
  EXPECT_EQ(Events(), "focus:96 change:20");
  mouse.Move(&bar, thumb + QPoint(1, 0));
  EXPECT_LE(bar.value(), 21);
  mouse.Move(&bar, thumb + QPoint(30, 0));
  const int moved = bar.value();
  EXPECT_TRUE(moved > 30 && moved < 60) << moved;
  mouse.Release(&bar, thumb + QPoint(30, 0));
  EXPECT_EQ(bar.value(), moved);
  EXPECT_TRUE(Events().endsWith(QString("change:%1").arg(moved)));
}

TEST_F(ScrollBarTest, EveryOtherWayRaisesOneChangePerStepAndNoneWithoutAChange) {
  const auto set = [this](int zValue) { return [this, zValue] { bar.setValue(zValue); }; };
  const auto key = [this](Qt::Key zKey) { return [this, zKey] { QTest::keyClick(&bar, zKey); }; };
  const auto press = [this](QStyle::SubControl zPart) { return [this, zPart] { Press(zPart); }; };
  bar.setFocus();
  Events();
  for (const auto& [what, act, expected] : Rows<const char*, std::function<void()>, const char*>{
           {"code", set(100), "change:100"},
           {"code, unchanged", set(100), ""},
           {"code, beyond the range", set(999), "change:127"},
           {"right key at the end", key(Qt::Key_Right), ""},
           {"left key", key(Qt::Key_Left), "change:126"},
           {"page", key(Qt::Key_PageUp), "change:118"},
           {"home", key(Qt::Key_Home), "change:0"},
           {"end", key(Qt::Key_End), "change:127"},
           {"left arrow", press(QStyle::SC_ScrollBarSubLine), "change:126"},
           {"beside the thumb", press(QStyle::SC_ScrollBarSubPage), "change:118"},
           {"right arrow", press(QStyle::SC_ScrollBarAddLine), "change:119"},
           {"thumb without moving", press(QStyle::SC_ScrollBarSlider), ""}}) {
    act();
    EXPECT_EQ(Events(), expected) << what;
  }
}

TEST_F(ScrollBarTest, GotFocusIsRaisedBeforeThePressOrTheWheelActs) {
  Press(QStyle::SC_ScrollBarSubLine);
  EXPECT_EQ(Events(), "focus:96 change:95");
  other.setFocus();
  QTest::keyClick(&other, Qt::Key_Tab);
  EXPECT_EQ(Events(), "focus:95");
  other.setFocus();
  Wheel();
  EXPECT_TRUE(Events().startsWith("focus:95 change:"));
  Wheel();
  EXPECT_TRUE(Events().startsWith("change:"));
  QFocusEvent toFront(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
  QCoreApplication::sendEvent(&bar, &toFront);
  EXPECT_EQ(Events(), "") << "the window, not the bar";
  const QImage focused = bar.grab().toImage();
  other.setFocus();
  EXPECT_NE(bar.grab().toImage().pixelColor(150, 0), focused.pixelColor(150, 0));
}

}  // namespace
}  // namespace loquitor::testing
