#include "ui/windows/pressed_control.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <memory>

namespace loquitor::testing {
namespace {

TEST(PressedControlTest, IsTheOneUnderTheMouseOrTheOneWithTheFocus) {
  const PressedControl pressed;
  QWidget window;
  auto* box = new QLineEdit(&window);
  auto label = std::make_unique<QLabel>("takes no press", &window);
  label->move(0, 50);
  window.show();
  box->setFocus();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QTest::mouseClick(label.get(), Qt::LeftButton);
  EXPECT_EQ(pressed.Get(), label.get());
  QTest::keyClick(box, Qt::Key_Return);  // goes on to the window
  EXPECT_EQ(pressed.Get(), box);
  QTest::mouseClick(label.get(), Qt::LeftButton);
  label.reset();
  EXPECT_EQ(pressed.Get(), box);
  box->clearFocus();
  EXPECT_EQ(pressed.Get(), &window);
  window.hide();
}

}  // namespace
}  // namespace loquitor::testing
