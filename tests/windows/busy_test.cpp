#include "ui/windows/busy.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>

namespace loquitor::testing {
namespace {

class Busy : public ::testing::Test {
 protected:
  Busy() {
    window->resize(300, 200);
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }
  void ExpectBusy(bool zIsBusy) const {
    EXPECT_EQ(button->isEnabled(), !zIsBusy);
    EXPECT_EQ(window->cursor().shape(), zIsBusy ? Qt::WaitCursor : Qt::ArrowCursor);
  }
  static void Post(std::function<void()> zStep) { QTimer::singleShot(0, qApp, std::move(zStep)); }

  std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
  QPushButton* button = new QPushButton(window.get());
  QLineEdit* box = new QLineEdit(window.get());
};

TEST_F(Busy, DisablesTheButtonAndShowsTheHourglassMeanwhile) {
  button->setFocus();
  EXPECT_TRUE(RunBusy(window.get(), button, [&] {
    ExpectBusy(true);
    EXPECT_FALSE(box->hasFocus()) << "disabling moved the focus";
    EXPECT_TRUE(RunBusy(window.get(), button, [&] { ExpectBusy(true); }));
    ExpectBusy(true);
  }));
  ExpectBusy(false);
  EXPECT_TRUE(button->hasFocus());
  RunBusy(window.get(), button, [&] { box->setFocus(); });
  EXPECT_TRUE(box->hasFocus()) << "the user put it there";
}

TEST_F(Busy, LetsEventsRunBeforeAndAfter) {
  int runs = 0;
  Post([&] { ++runs; });
  RunBusy(window.get(), nullptr, [&] {
    EXPECT_EQ(runs, 1);
    Post([&] { ++runs; });
  });
  EXPECT_EQ(runs, 2);
}

TEST_F(Busy, DoesNoWorkWhenTheWindowIsClosedBefore) {
  bool isDone = false;
  Post([&] { window->close(); });
  EXPECT_FALSE(RunBusy(window.get(), button, [&] { isDone = true; }));
  EXPECT_FALSE(isDone);
}

TEST_F(Busy, TellsThatTheWindowWasClosedOrDestroyedMeanwhile) {
  EXPECT_FALSE(RunBusy(window.get(), button, [&] { Post([&] { window->close(); }); }));
  window->show();
  EXPECT_FALSE(RunBusy(window.get(), button, [&] { window.reset(); }));
}

TEST_F(Busy, LimitsHowDeepHandlersNest) {
  int handlers = 0;
  int depth = 0;
  int deepest = 0;
  std::function<void()> handler = [&] {
    deepest = std::max(deepest, ++depth);
    if (++handlers < 100) {
      Post([&] { handler(); });  // as a click that came meanwhile
    }
    RunBusy(window.get(), nullptr, [] {});
    --depth;
  };
  handler();
  EXPECT_TRUE(QTest::qWaitFor([&] { return handlers == 100; }));
  EXPECT_LT(deepest, 20);
}

}  // namespace
}  // namespace loquitor::testing
