#include "tests/e2e/desktop.h"

#include <cstdlib>
#include <regex>
#include <stdexcept>

namespace loquitor::testing {

namespace {

constexpr int WidestFrame = 40;  // pixels that the window manager puts around a window

using Command = std::vector<std::string>;

void Require(bool zHolds, const std::string& zComplaint) {
  if (!zHolds) {
    throw std::runtime_error(zComplaint);
  }
}

/// Whether the number after `zLabel` is from `zFrom` to `zFrom` + WidestFrame.
bool IsAt(const std::string& zText, const std::string& zLabel, int zFrom) {
  const std::size_t at = zText.find(zLabel);
  const int number = at == std::string::npos ? -1 : std::atoi(&zText[at + zLabel.size()]);
  return number >= zFrom && number <= zFrom + WidestFrame;
}

}  // namespace

Desktop::Desktop() {
  server_ = std::make_unique<ChildProcess>(Command{"Xvfb", "-displayfd", "1", "-screen", "0",
                                                   "1600x1200x24", "-nolisten", "tcp", "-noreset"});
  Require(Await([this] { return server_->Output().find('\n') != std::string::npos; }),
          "Xvfb does not start; ./test installs what it needs");
  const std::string display = ":" + server_->Output().substr(0, server_->Output().find('\n'));
  setenv("DISPLAY", display.c_str(), 1);
  setenv("QT_QPA_PLATFORM", "xcb", 1);
  setenv("XDG_RUNTIME_DIR", runtimeFolder_.Path().c_str(), 1);
  windowManager_ = std::make_unique<ChildProcess>(Command{"openbox"});
  AwaitWindowManager("2");
  // At the first key of a server, the window manager gives up its own keys for a moment. One of
  // them would be lost then.
  Key("shift");
  AwaitWindowManager("1");
}

void Desktop::AwaitWindowManager(const std::string& zDesktopCount) {
  Require(Await([&] {
            RunCommand({"xdotool", "set_num_desktops", zDesktopCount});
            return RunCommand({"xdotool", "get_num_desktops"}) == zDesktopCount;
          }),
          "openbox does not answer; ./test installs what it needs");
}

std::string Desktop::FindWindow(const std::string& zTitle) {
  const std::regex special(R"([.^$|()\[\]{}*+?\\])");
  // A long send puts its progress before the title.
  const std::string title =
      "^([0-9]+% to go - )?" + std::regex_replace(zTitle, special, R"(\$&)") + "$";
  const std::string found = RunCommand({"xdotool", "search", "--onlyvisible", "--name", title});
  return found.substr(0, found.find('\n'));
}

std::string Desktop::AwaitWindow(const std::string& zTitle) {
  std::string window;
  Require(Await([&] { return !(window = FindWindow(zTitle)).empty(); }), "no window " + zTitle);
  RunCommand({"xdotool", "windowactivate", "--sync", window});
  // A program of Wine takes the keyboard some time after the window manager has offered it.
  Require(Await([&] {
            return RunCommand({"xdotool", "getwindowfocus"}) == window;
          }),
          zTitle + " does not get the keyboard");
  return window;
}

void Desktop::AwaitGone(const std::string& zTitle) {
  Require(Await([&] { return FindWindow(zTitle).empty(); }), zTitle + " does not close");
}

// Without --sync, which waits for ever when the mouse is there already.
void Desktop::Click(const std::string& zWindow, int zX, int zY, int zTimes) {
  RunCommand({"xdotool", "mousemove", "--window", zWindow, std::to_string(zX), std::to_string(zY),
              "click", "--repeat", std::to_string(zTimes), "--delay", "100", "1"});
}

void Desktop::MoveTo(const std::string& zWindow, int zX, int zY) {
  RunCommand({"xdotool", "windowmove", zWindow, std::to_string(zX), std::to_string(zY)});
  // xdotool's own --sync waits for ever. The client area is inside the window's frame.
  Await([&] {
    const std::string place = RunCommand({"xwininfo", "-id", zWindow});
    return IsAt(place, "Absolute upper-left X:", zX) && IsAt(place, "Absolute upper-left Y:", zY);
  });
}

void Desktop::CloseWindow(const std::string& zWindow) {
  RunCommand({"xdotool", "windowactivate", "--sync", zWindow, "key", "alt+F4"});
}

std::string Desktop::ColourAt(const std::string& zWindow, int zX, int zY) {
  const std::string point = "1x1+" + std::to_string(zX) + "+" + std::to_string(zY);
  const std::string pixel =
      RunCommand({"import", "-silent", "-window", zWindow, "-crop", point, "-depth", "8", "txt:-"});
  return pixel.substr(pixel.rfind('#') + 1, 6);
}

std::string Desktop::Property(const std::string& zWindow, const std::string& zName) {
  return RunCommand({"xprop", "-id", zWindow, zName});
}

}  // namespace loquitor::testing
