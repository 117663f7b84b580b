#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace loquitor {

/// Knows which control the user has used last. Needs a QApplication, whose events it watches.
class LastUsedControl : public QObject {
 public:
  LastUsedControl();

  /// After a press of the mouse or a turn of the wheel, the control under the mouse. After a key,
  /// or when that control is no longer shown, the control that has the focus, or else the active
  /// window. Null when the program has no active window.
  QWidget* Get() const;

 protected:
  bool eventFilter(QObject* zWatched, QEvent* zEvent) override;

 private:
  void TakeFirst(QWidget* zWidget, quint64 zTimestamp);

  QPointer<QWidget> control_;
  quint64 timestamp_ = 0;  // of the press of `control_`
};

}  // namespace loquitor
