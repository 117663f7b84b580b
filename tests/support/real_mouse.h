#pragma once

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <QWindow>

namespace loquitor::testing {

/// A mouse like that of the desktop. Its presses go to the window under it, so an open modal box
/// swallows them. They carry the real time, so Qt itself distinguishes a double click from two
/// clicks. QTest's own presses never make a double click.
class RealMouse {
 public:
  RealMouse() : origin_(QTest::lastMouseTimestamp + 10'000) { clock_.start(); }

  void Click(const QWidget* zWidget) { ClickAt(Now(), zWidget); }

  /// The steps of a drag, each at a place in the widget.
  void Press(const QWidget* zWidget, QPoint zAt) {
    QTest::lastMouseTimestamp = Now();
    QTest::mousePress(Window(zWidget), Qt::LeftButton, {}, InWindow(zWidget, zAt));
  }
  void Move(const QWidget* zWidget, QPoint zAt) {
    QTest::mouseMove(Window(zWidget), InWindow(zWidget, zAt));
  }
  void Release(const QWidget* zWidget, QPoint zAt) {
    QTest::mouseRelease(Window(zWidget), Qt::LeftButton, {}, InWindow(zWidget, zAt));
  }

  /// Clicks, and clicks again `zMilliseconds` later from the event loop that runs then. Returns
  /// when the first click has been handled. On a slow machine the second click comes later, but
  /// carries the time at which it was due.
  void ClickTwice(QWidget* zWidget, int zMilliseconds) {
    const int begin = Now();
    ClickLater(zMilliseconds, begin + zMilliseconds, zWidget);
    ClickAt(begin, zWidget);  // to start a timer may take longer than the timer
  }

 private:
  int Now() const { return origin_ + static_cast<int>(clock_.elapsed()); }
  void ClickLater(int zMilliseconds, int zTime, QWidget* zWidget) {
    QTimer::singleShot(zMilliseconds, Qt::PreciseTimer, zWidget, [=, this] {
      // QTest lets timers run even between a press and its release.
      isDown_ ? ClickLater(1, zTime, zWidget) : ClickAt(zTime, zWidget);
    });
  }
  void ClickAt(int zTime, const QWidget* zWidget) {
    QTest::lastMouseTimestamp = zTime;
    isDown_ = true;
    QTest::mousePress(Window(zWidget), Qt::LeftButton, {}, Middle(zWidget));
    QTest::lastMouseTimestamp = Now();
    isDown_ = false;
    QTest::mouseRelease(Window(zWidget), Qt::LeftButton, {}, Middle(zWidget));
  }
  static QWindow* Window(const QWidget* zWidget) { return zWidget->window()->windowHandle(); }
  static QPoint InWindow(const QWidget* zWidget, QPoint zAt) {
    return zWidget->mapTo(zWidget->window(), zAt);
  }
  static QPoint Middle(const QWidget* zWidget) {
    return InWindow(zWidget, zWidget->rect().center());
  }

  int origin_;
  QElapsedTimer clock_;
  bool isDown_ = false;
};

}  // namespace loquitor::testing
