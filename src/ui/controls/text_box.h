#pragma once

#include <QColor>
#include <QLineEdit>
#include <string>
#include <string_view>

namespace loquitor {

/// A one-line text box. Characters outside Windows-1252 that are typed or pasted are refused with a
/// hint. Enter presses no button of the window.
class TextBox : public QLineEdit {
  Q_OBJECT
 public:
  explicit TextBox(QWidget* zParent);

  /// The text as Windows-1252 bytes. SetText leaves line breaks out. It raises textChanged if the
  /// text changes, and never textEdited.
  std::string Text() const;
  void SetText(std::string_view zBytes);

  /// The background; an invalid colour gives the normal one back. The text colour follows so that
  /// it stays readable.
  void SetBackground(const QColor& zColor);

 signals:
  /// The focus has moved to another control of the program (not to a menu or another program).
  void LostFocus();

 protected:
  void contextMenuEvent(QContextMenuEvent* zEvent) override;
  void focusOutEvent(QFocusEvent* zEvent) override;
  void keyPressEvent(QKeyEvent* zEvent) override;
};

}  // namespace loquitor
