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

/// Turns rows into widgets, in row order, which is also the tab order. Captions that are too wide
/// for their place in the desktop's font are narrowed until they fit.
class Form {
 public:
  /// The controls become children of `zWindow` (or of the frames in it), which owns them. Their
  /// places and captions are for reading from left to right, on every desktop.
  explicit Form(QWidget* zWindow);

  void Add(const ControlRow& zRow);
  void Add(std::span<const ControlRow> zRows);

  /// The control of that name. It must exist and be a T; the program ends with a message otherwise.
  template <class T>
  T* Get(const QString& zName) const {
    return static_cast<T*>(Find(zName, T::staticMetaObject));
  }

  /// Runs `zHandler`, anything that connect takes for `zReceiver`, when the button or label of that
  /// name is clicked.
  template <class Receiver, class Handler>
  void OnClick(const QString& zName, Receiver* zReceiver, Handler&& zHandler) const {
    QObject::connect(Get<QAbstractButton>(zName), &QAbstractButton::clicked, zReceiver,
                     std::forward<Handler>(zHandler));
  }

  /// Puts the named controls into this tab order, before all others.
  void SetTabOrder(std::span<const QString> zNames) const;

 private:
  QWidget* Find(const QString& zName, const QMetaObject& zClass) const;

  QWidget* window_;
  QHash<QString, QWidget*> controls_;
  QVector<QWidget*> inOrder_;
};

/// The font of the forms: the desktop's family at 8.25 points (11 logical pixels).
QFont FormFont();

/// `zFont`, narrowed and, if that is not enough, made smaller, until every line of `zText` fits
/// into `zWidth` logical pixels.
QFont FittingFont(const QFont& zFont, const QString& zText, int zWidth);

}  // namespace loquitor
