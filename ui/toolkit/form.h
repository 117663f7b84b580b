#pragma once

#include <QFont>
#include <QHash>
#include <QString>
#include <QVector>
#include <QWidget>
#include <span>

#include "ui/toolkit/twips.h"

namespace loquitor {

/// The kinds of control that a form row can ask for, and the class that each becomes.
enum class ControlKind {
  Frame,           ///< Frame
  Button,          ///< QPushButton, never the default button; caption may break in two lines
  Label,           ///< QLabel, left-aligned
  RightLabel,      ///< QLabel, right-aligned
  CentredLabel,    ///< QLabel, centred
  ClickLabel,      ///< ClickLabel
  TextBox,         ///< TextBox; caption is its starting text
  TextArea,        ///< TextArea; caption is its starting text
  CheckBox,        ///< CheckBox, not ticked
  OptionButton,    ///< OptionButton, not chosen
  ScrollBar,       ///< ScrollBar; bar fields below
  HorizontalLine,  ///< a line in the button-shadow colour
  VerticalLine,
};

/// One control of a form. Texts are UTF-8 literals of the program's own.
struct ControlRow {
  ControlKind kind;
  const char* name;     ///< becomes the objectName, for example "bntSayIt"
  const char* parent;   ///< name of the frame that holds it; "" for the window itself
  const char* caption;  ///< "&&" shows as one "&"
  TwipRect place;
  const char* tooltip = "";
  const char* accessibleName = "";  ///< where empty, the caption
  int barMaximum = 0;
  int barPage = 1;
  int barValue = 0;
  int index =
      -1;  ///< from 0 on: a member of an indexed group, the objectName is Indexed(name, index)
};

/// The name of a member of an indexed group: Indexed("Command1", 17) is "Command1(17)".
QString Indexed(const char* zStem, int zIndex);

/// Turns rows into widgets, in row order, which is also the tab order. Captions that are too wide
/// for their place in the desktop's font are narrowed until they fit.
class Form {
 public:
  /// The controls become children of `zWindow` (or of the frames in it), which owns them.
  explicit Form(QWidget* zWindow) : window_(zWindow) {}

  void Add(const ControlRow& zRow);
  void Add(std::span<const ControlRow> zRows);

  /// The control of that name. It must exist and be a T; the program ends with a message otherwise.
  template <class T>
  T* Get(const QString& zName) const {
    return static_cast<T*>(Find(zName, T::staticMetaObject));
  }

  /// Puts the named controls into this tab order; others follow behind.
  void SetTabOrder(std::span<const QString> zNames) const;

 private:
  QWidget* Find(const QString& zName, const QMetaObject& zClass) const;

  QWidget* window_;
  QHash<QString, QWidget*> controls_;
  QVector<QWidget*> inOrder_;
};

/// The font of the forms: the desktop's family at 8.25 points (11 logical pixels).
QFont FormFont();

/// `zFont`, narrowed (and at last made smaller) until `zText` fits `zWidth` logical pixels; each
/// line of it counts for itself.
QFont FittingFont(const QFont& zFont, const QString& zText, int zWidth);

}  // namespace loquitor
