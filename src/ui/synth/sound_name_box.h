#pragma once

#include <QObject>
#include <functional>

class QAbstractItemView;
class QKeyEvent;
class QStringListModel;

namespace loquitor {

class TextBox;

/// Helps to type the name of a sound into a text box. Any name can be typed.
///
/// The names that begin with the text are listed below the box while the user types, and when Down
/// is pressed. The list takes neither the focus nor the mouse: a click on a button of
/// the window presses that button although the list is open. Up and Down choose in it, Enter takes
/// the choice and Escape closes the list.
///
/// A name that no sound has, or that no sound can have, is marked by the colour of the box. The
/// tooltip says why.
class SoundNameBox : public QObject {
  Q_OBJECT
 public:
  /// `zNames` returns the names that there are now. The box owns this object.
  SoundNameBox(TextBox* zBox, std::function<QStringList()> zNames);

  /// Updates the mark of the name. To be called after the sounds have changed.
  void UpdateMark();

  bool eventFilter(QObject* zWatched, QEvent* zEvent) override;

 private:
  bool OnKey(QKeyEvent* zEvent);
  bool ListTakes(QKeyEvent* zEvent);
  QString FaultOfName() const;

  TextBox* box_;
  std::function<QStringList()> names_;
  QStringListModel* model_;
  QAbstractItemView* list_;
};

}  // namespace loquitor
