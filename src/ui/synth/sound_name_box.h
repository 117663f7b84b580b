#pragma once

#include <QObject>
#include <QStringList>
#include <functional>

class QAbstractItemView;
class QKeyEvent;
class QStringListModel;

namespace loquitor {

class TextBox;

/// Helps to type the name of a sound into a text box. Any name can be typed.
///
/// The names that begin with the text are listed below the box while the user types, and when Down
/// is pressed. The list takes neither the focus nor clicks outside it: a click on a button of the
/// window presses that button although the list is open. Up, Down, Page Up and Page Down choose in
/// it and show the choice in the box. Enter and Escape close it.
///
/// The colour of the box marks a name that no sound has, or that no sound can have. The tooltip
/// says why.
class SoundNameBox : public QObject {
  Q_OBJECT
 public:
  /// `zNames` returns the present names of the sounds. The box owns this object.
  SoundNameBox(TextBox* zBox, std::function<QStringList()> zNames);

  /// Marks the name, or removes its mark. To be called after the sounds have changed.
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
