#pragma once

#include <memory>
#include <string>

#include "tests/e2e/child_process.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {

/// An X server of the test's own with a window manager, and a pair of hands at it. Programs that
/// the test starts appear there.
class Desktop {
 public:
  Desktop();

  /// Waits for a visible window with exactly that title and brings it to the front; its number.
  /// Throws when none comes.
  std::string AwaitWindow(const std::string& zTitle);

  /// Waits until that window has closed. Throws when it stays, for what follows would miss its aim.
  void AwaitGone(const std::string& zTitle);

  /// Mouse and keyboard, on a point of a window's client area in pixels.
  void Click(const std::string& zWindow, int zX, int zY, int zTimes = 1);
  void Type(const std::string& zText) { RunCommand({"xdotool", "type", "--delay", "12", zText}); }
  void Key(const std::string& zKey) { RunCommand({"xdotool", "key", zKey}); }

  /// Moves a window's top left corner to a point of the screen, so that none covers another, and
  /// waits until it is there.
  void MoveTo(const std::string& zWindow, int zX, int zY);

  /// The close box.
  void CloseWindow(const std::string& zWindow);

  /// The colour of a point as RRGGBB.
  std::string ColourAt(const std::string& zWindow, int zX, int zY);

  std::string Clipboard() { return RunCommand({"xclip", "-selection", "clipboard", "-out"}); }

  /// What a window tells the window manager under `zName`, in the words of xprop.
  std::string Property(const std::string& zWindow, const std::string& zName);

 private:
  /// Asks the window manager for so many desktops, until it has handled all that came before.
  static void AwaitWindowManager(const std::string& zDesktopCount);
  static std::string FindWindow(const std::string& zTitle);

  TempFolder runtimeFolder_;
  std::unique_ptr<ChildProcess> server_;
  std::unique_ptr<ChildProcess> windowManager_;
};

}  // namespace loquitor::testing
