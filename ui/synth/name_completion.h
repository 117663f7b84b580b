#pragma once

#include <QObject>
#include <functional>

class QAbstractItemView;
class QKeyEvent;
class QStringListModel;

namespace loquitor {

class TextBox;

/// Offers names below a text box while the user types in it; any other name can still be typed.
///
/// The list takes neither the focus nor the mouse for itself: a click on a button of the window
/// presses that button although the list is open. Up and Down choose in it, Enter takes the choice
/// and Escape closes the list.
class NameCompletion : public QObject {
  Q_OBJECT
 public:
  /// `zNames` is asked each time that the box takes the focus. The box owns the completion.
  NameCompletion(TextBox* zBox, std::function<QStringList()> zNames);

  bool eventFilter(QObject* zWatched, QEvent* zEvent) override;

 private:
  bool IsForList(QKeyEvent* zEvent);

  std::function<QStringList()> names_;
  QStringListModel* model_;
  QAbstractItemView* list_;
};

}  // namespace loquitor
