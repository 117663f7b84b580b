#pragma once

#include <QDialog>

#include "ui/controls/twips.h"

namespace loquitor {

/// Base of the editors: a modal tool window with a close box, owned by the window that opened it,
/// centred on the screen, not in the task bar. Enter presses no button and Escape closes nothing.
/// It ignores a double click whose first press went to another window.
class ToolWindow : public QDialog {
  Q_OBJECT
 public:
  enum class Sizing { Fixed, Resizable };

  /// `zCaption`: the title, blanks at its ends kept. `zClientSize`: the client area.
  ToolWindow(QWidget* zOwner, const QString& zCaption, TwipSize zClientSize,
             Sizing zSizing = Sizing::Fixed);

  /// Loads and shows the window modally and returns when it has been closed.
  void ShowModal();

  /// Loads and shows the window and returns at once (tests).
  void Open();

  /// Whether it has been closed after having been shown.
  bool IsUnloaded() const { return isUnloaded_; }

 signals:
  /// The window has been closed, in whatever way, and unloaded. Raised once.
  void Closed();

 protected:
  /// The window's own steps: once before it is shown, once when it has been closed (it is hidden
  /// then, and its owner takes input again) however that came about, and each time that it becomes
  /// the active window.
  virtual void Load() {}
  virtual void Unload() {}
  virtual void Activate() {}

  void keyPressEvent(QKeyEvent* zEvent) override;
  void changeEvent(QEvent* zEvent) override;
  void done(int zResult) override;

 private:
  void LoadOnce();

  bool isLoaded_ = false;
  bool isUnloaded_ = false;
};

}  // namespace loquitor
