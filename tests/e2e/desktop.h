#pragma once

#include <memory>
#include <string>

#include "tests/e2e/child_process.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {

/// An X server of the test's own with a window manager, and what a user does there. Programs that
/// the test starts appear there.
class Desktop {
 public:
  Desktop();

  /// Waits for a visible window with exactly this title and brings it to the front. Returns its
  /// number. Throws when no such window appears.
  std::string AwaitWindow(const std::string& zTitle);

  /// Waits until no window has this title. Throws when it stays open.
  void AwaitGone(const std::string& zTitle);

  /// Clicks a point of a window's client area, in pixels.
  void Click(const std::string& zWindow, int zX, int zY, int zTimes = 1);
  void Type(const std::string& zText) { RunCommand({"xdotool", "type", "--delay", "12", zText}); }
  void Key(const std::string& zKey) { RunCommand({"xdotool", "key", zKey}); }

  /// Moves a window's top left corner to a point of the screen, so that none covers another, and
  /// waits until it is there.
  void MoveTo(const std::string& zWindow, int zX, int zY);

  /// Closes a window by the window manager's key.
  void CloseWindow(const std::string& zWindow);

  /// The colour of a point of a window, as RRGGBB in hexadecimal.
  std::string ColourAt(const std::string& zWindow, int zX, int zY);

  std::string Clipboard() { return RunCommand({"xclip", "-selection", "clipboard", "-out"}); }

  /// The window's property `zName`, as xprop prints it.
  std::string Property(const std::string& zWindow, const std::string& zName);

 private:
  /// Waits until the window manager has handled everything so far: asks it for `zDesktopCount`
  /// desktops and waits until it has them.
  static void AwaitWindowManager(const std::string& zDesktopCount);
  static std::string FindWindow(const std::string& zTitle);

  TempFolder runtimeFolder_;
  std::unique_ptr<ChildProcess> server_;
  std::unique_ptr<ChildProcess> windowManager_;
};

}  // namespace loquitor::testing
