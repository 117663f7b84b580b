#include "ui/toolkit/check_box.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

namespace loquitor {
namespace {

class CheckBoxes : public ::testing::Test {
 protected:
  CheckBoxes() {
    before.setGeometry(0, 0, 60, 20);
    box.setGeometry(0, 20, 120, 30);
    for (int index = 0; index < 4; ++index) {
      options[index]->setGeometry(0, 60 + 20 * index, 100, 13);
      group.Add(options[index], index);
    }
    after.setGeometry(0, 150, 60, 20);
    QObject::connect(&group, &OptionGroup::Click, &window,
                     [this](int zIndex) { clicks += zIndex; });
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  QWidget window;
  QLineEdit before{&window};
  CheckBox box{"Apply && Go", &window};
  OptionButton* options[4] = {new OptionButton("Saw", &window), new OptionButton("Sine", &window),
                              new OptionButton("Triangle", &window),
                              new OptionButton("Square", &window)};
  QLineEdit after{&window};
  OptionGroup group{&window};
  QVector<int> clicks;
};

TEST_F(CheckBoxes, ClickIsRaisedWhenTheStateChangesByTheUserOrByCode) {
  QSignalSpy clicked(&box, &CheckBox::Click);
  box.SetValue(0);
  EXPECT_EQ(clicked.count(), 0);
  box.SetValue(1);
  box.SetValue(1);
  EXPECT_EQ(clicked.count(), 1);
  QTest::mouseClick(&box, Qt::LeftButton, {}, {115, 3});  // anywhere in it
  EXPECT_EQ(box.Value(), 0);
  QTest::keyClick(&box, Qt::Key_Space);
  EXPECT_EQ(box.Value(), 1);
  EXPECT_EQ(clicked.count(), 3);
}

TEST_F(CheckBoxes, AGroupStartsWithNoneAndHoldsAtMostOne) {
  EXPECT_EQ(group.Chosen(), -1);
  EXPECT_FALSE(group.IsChosen(-1));
  QTest::mouseClick(options[2], Qt::LeftButton);
  EXPECT_EQ(group.Chosen(), 2);
  QTest::mouseClick(options[2], Qt::LeftButton);  // does not clear it
  EXPECT_TRUE(group.IsChosen(2));
  group.SetChosen(0, true);
  EXPECT_EQ(group.Chosen(), 0);
  EXPECT_FALSE(options[2]->isChecked());
  group.SetChosen(0, true);
  group.SetChosen(3, false);
  EXPECT_EQ(group.Chosen(), 0);
  group.SetChosen(0, false);
  EXPECT_EQ(group.Chosen(), -1);
  EXPECT_EQ(clicks, (QVector<int>{2, 0}));
}

TEST_F(CheckBoxes, TabVisitsTheChosenOptionAndArrowsChooseTheNext) {
  for (const auto& [chosen, stop] : {std::pair(-1, 0), {1, 1}, {3, 3}}) {
    group.SetChosen(chosen, true);
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Tab);
    EXPECT_TRUE(options[stop]->hasFocus()) << chosen;
    QTest::keyClick(options[stop], Qt::Key_Tab);
    EXPECT_TRUE(after.hasFocus()) << chosen;
  }
  clicks.clear();
  options[3]->setFocus();
  QTest::keyClick(options[3], Qt::Key_Right);
  EXPECT_TRUE(options[0]->hasFocus());
  QTest::keyClick(options[0], Qt::Key_Down);
  QTest::keyClick(options[1], Qt::Key_Up);
  EXPECT_EQ(clicks, (QVector<int>{0, 1, 0}));
}

}  // namespace
}  // namespace loquitor
