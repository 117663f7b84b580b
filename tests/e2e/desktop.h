#pragma once

#include <map>
#include <memory>
#include <string>

#include "tests/e2e/child_process.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {

/// An X server of the test's own with a window manager, and a pair of hands at it.
class Desktop {
 public:
  Desktop();

  /// What a program needs in its environment to appear here.
  std::map<std::string, std::string> Environment() const;

  /// Waits for a visible window with exactly that title; its number, or "" when none comes.
  std::string AwaitWindow(const std::string& zTitle);
  bool AwaitGone(const std::string& zTitle);

  /// Mouse and keyboard, on a point of a window's client area in pixels.
  void Click(const std::string& zWindow, int zX, int zY);
  void DoubleClick(const std::string& zWindow, int zX, int zY);
  void Type(const std::string& zText);
  void Key(const std::string& zKey);

  /// Moves a window's top left corner to a point of the screen, so that none covers another, and
  /// waits until it is there.
  void MoveTo(const std::string& zWindow, int zX, int zY);

  /// The close box.
  void CloseWindow(const std::string& zWindow);

  /// The colour of a point as RRGGBB.
  std::string ColourAt(const std::string& zWindow, int zX, int zY);

  std::string Clipboard();

  /// What a window tells the window manager under `zName`, in the words of xprop.
  std::string Property(const std::string& zWindow, const std::string& zName);

 private:
  std::string FindWindow(const std::string& zTitle);
  std::string Do(std::vector<std::string> zCommand);

  TempFolder runtimeFolder_;
  std::unique_ptr<ChildProcess> server_;
  std::unique_ptr<ChildProcess> windowManager_;
  std::string display_;
};

}  // namespace loquitor::testing
