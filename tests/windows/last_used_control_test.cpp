#include "ui/windows/last_used_control.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <memory>

namespace loquitor::testing {
namespace {

TEST(LastUsedControl, IsTheOneUnderTheMouseOrTheOneWithTheFocus) {
  const LastUsedControl lastUsed;
  QWidget window;
  auto* box = new QLineEdit(&window);
  auto label = std::make_unique<QLabel>("takes no press", &window);
  label->move(0, 50);
  window.show();
  box->setFocus();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QTest::mouseClick(label.get(), Qt::LeftButton);
  EXPECT_EQ(lastUsed.Get(), label.get());
  QTest::keyClick(box, Qt::Key_Return);  // goes on to the window
  EXPECT_EQ(lastUsed.Get(), box);
  QTest::mouseClick(label.get(), Qt::LeftButton);
  label.reset();
  EXPECT_EQ(lastUsed.Get(), box);
  box->clearFocus();
  EXPECT_EQ(lastUsed.Get(), &window);
  window.hide();
}

}  // namespace
}  // namespace loquitor::testing
