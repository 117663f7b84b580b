#pragma once

#include <QDialog>

#include "ui/controls/twips.h"

namespace loquitor {

/// The base of the editors: a modal tool window with a close box, owned by the window that opened
/// it, centred on the screen, not in the task bar. Enter presses no button, and Escape does not
/// close it. It ignores a double click whose first press went to another window.
class ToolWindow : public QDialog {
  Q_OBJECT
 public:
  enum class Sizing { Fixed, Resizable };

  /// `zCaption` is the title, with the blanks at its ends. `zClientSize` is the size of the client
  /// area. `zOwner` may be null.
  ToolWindow(QWidget* zOwner, const QString& zCaption, TwipSize zClientSize,
             Sizing zSizing = Sizing::Fixed);

  /// Loads and shows the window modally and returns when it has been closed. Does nothing when its
  /// owner is not shown: events that ran during the click may have closed it, or have ended the
  /// program.
  void ShowModal();

  /// Loads and shows the window and returns at once (tests).
  void Open();

  /// Whether it has been closed after it was shown. Already true while Unload runs.
  bool IsUnloaded() const { return isUnloaded_; }

 signals:
  /// The window has been closed in any way, and Unload has run. Raised once.
  void Closed();

 protected:
  /// Called once, before the window is shown.
  virtual void Load() {}

  /// Called once, when the window has been closed in any way. It is hidden then, and its owner
  /// takes input again.
  virtual void Unload() {}

  /// Called each time that the window becomes the active one, between Load and Unload.
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
