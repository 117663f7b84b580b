#pragma once

#include <QAbstractButton>
#include <QFont>
#include <QHash>
#include <QString>
#include <QVector>
#include <QWidget>
#include <span>
#include <utility>

#include "ui/controls/control_row.h"

namespace loquitor {

/// The name of a member of an indexed group: Indexed("Command1", 17) is "Command1(17)".
QString Indexed(const char* zStem, int zIndex);

/// Turns rows into widgets. The row order is the tab order. Captions that are too wide for their
/// place in the desktop's font are narrowed until they fit.
class Form {
 public:
  /// The controls become children of `zWindow` or of the frames in it. The window is laid out from
  /// left to right, on every desktop.
  explicit Form(QWidget* zWindow);

  /// Makes the control of `zRow`. Its frame must exist; the program ends with a message otherwise.
  void Add(const ControlRow& zRow);
  void Add(std::span<const ControlRow> zRows);

  /// The control of that name, also one that the window made without a row. It must exist and be a
  /// T; the program ends with a message otherwise.
  template <class T>
  T* Get(const QString& zName) const {
    return static_cast<T*>(Find(zName, T::staticMetaObject));
  }

  /// Runs `zHandler` when the button or label of that name is clicked. It is anything that
  /// QObject::connect takes for `zReceiver`.
  template <class Receiver, class Handler>
  void OnClick(const QString& zName, Receiver* zReceiver, Handler&& zHandler) const {
    QObject::connect(Get<QAbstractButton>(zName), &QAbstractButton::clicked, zReceiver,
                     std::forward<Handler>(zHandler));
  }

  /// Puts the named controls into this tab order, before all others. They must exist; the program
  /// ends with a message otherwise.
  void SetTabOrder(std::span<const QString> zNames) const;

 private:
  QWidget* Find(const QString& zName, const QMetaObject& zClass) const;

  QWidget* window_;
  QHash<QString, QWidget*> controls_;
  QVector<QWidget*> inOrder_;
};

/// The font of the forms: the desktop's family at 8.25 points (11 logical pixels).
QFont FormFont();

}  // namespace loquitor
