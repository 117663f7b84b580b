#include "tests/e2e/desktop.h"

#include <cstdlib>
#include <stdexcept>

namespace loquitor::testing {

namespace {

constexpr const char* HumanPause = "12";  // milliseconds between keys

constexpr int WidestFrame = 40;  // pixels that the window manager puts around a window

int NumberAfter(const std::string& zText, const std::string& zLabel) {
  const std::size_t at = zText.find(zLabel);
  return at == std::string::npos ? -1 : std::atoi(zText.c_str() + at + zLabel.size());
}

std::string Quoted(const std::string& zText) {
  std::string pattern = "^";
  for (const char character : zText) {
    if (std::string(R"(\.^$*+?()[]{}|)").find(character) != std::string::npos) {
      pattern += '\\';
    }
    pattern += character;
  }
  return pattern + "$";
}

}  // namespace

Desktop::Desktop() {
  server_ = std::make_unique<ChildProcess>(std::vector<std::string>{
      "Xvfb", "-displayfd", "1", "-screen", "0", "1600x1200x24", "-nolisten", "tcp", "-noreset"});
  if (!Await([this] { return server_->Output().find('\n') != std::string::npos; })) {
    throw std::runtime_error("Xvfb does not start; ./test installs what it needs");
  }
  display_ = ":" + server_->Output().substr(0, server_->Output().find('\n'));
  windowManager_ =
      std::make_unique<ChildProcess>(std::vector<std::string>{"openbox"},
                                     std::map<std::string, std::string>{{"DISPLAY", display_}});
  const bool hasManager = Await([this] {
    return Do({"xprop", "-root", "_NET_SUPPORTING_WM_CHECK"}).find("window id") !=
           std::string::npos;
  });
  if (!hasManager) {
    throw std::runtime_error("openbox does not start; ./test installs what it needs");
  }
}

std::map<std::string, std::string> Desktop::Environment() const {
  return {{"DISPLAY", display_},
          {"QT_QPA_PLATFORM", "xcb"},
          {"XDG_RUNTIME_DIR", runtimeFolder_.Path()}};
}

std::string Desktop::Do(std::vector<std::string> zCommand) {
  return RunCommand(zCommand, {{"DISPLAY", display_}});
}

std::string Desktop::FindWindow(const std::string& zTitle) {
  const std::string found = Do({"xdotool", "search", "--onlyvisible", "--name", Quoted(zTitle)});
  return found.substr(0, found.find('\n'));
}

std::string Desktop::AwaitWindow(const std::string& zTitle) {
  std::string window;
  Await([&] { return !(window = FindWindow(zTitle)).empty(); });
  if (!window.empty()) {
    Do({"xdotool", "windowactivate", "--sync", window});
  }
  return window;
}

bool Desktop::AwaitGone(const std::string& zTitle) {
  return Await([&] { return FindWindow(zTitle).empty(); });
}

// Without --sync, which waits for ever for a mouse that is there already.
void Desktop::Click(const std::string& zWindow, int zX, int zY) {
  Do({"xdotool", "mousemove", "--window", zWindow, std::to_string(zX), std::to_string(zY), "click",
      "1"});
}

void Desktop::DoubleClick(const std::string& zWindow, int zX, int zY) {
  Do({"xdotool", "mousemove", "--window", zWindow, std::to_string(zX), std::to_string(zY), "click",
      "--repeat", "2", "--delay", "100", "1"});
}

void Desktop::Type(const std::string& zText) {
  Do({"xdotool", "type", "--delay", HumanPause, zText});
}

void Desktop::Key(const std::string& zKey) {
  Do({"xdotool", "key", zKey});
}

void Desktop::MoveTo(const std::string& zWindow, int zX, int zY) {
  Do({"xdotool", "windowmove", zWindow, std::to_string(zX), std::to_string(zY)});
  // xdotool's own --sync waits for ever. The client area lies within the window's frame.
  Await([&] {
    const std::string place = Do({"xwininfo", "-id", zWindow});
    const int right = NumberAfter(place, "Absolute upper-left X:") - zX;
    const int down = NumberAfter(place, "Absolute upper-left Y:") - zY;
    return right >= 0 && right <= WidestFrame && down >= 0 && down <= WidestFrame;
  });
}

void Desktop::CloseWindow(const std::string& zWindow) {
  Do({"xdotool", "windowactivate", "--sync", zWindow, "key", "alt+F4"});
}

std::string Desktop::ColourAt(const std::string& zWindow, int zX, int zY) {
  const std::string picture =
      Do({"import", "-silent", "-window", zWindow, "-crop",
          "1x1+" + std::to_string(zX) + "+" + std::to_string(zY), "-depth", "8", "rgb:-"});
  std::string colour;
  constexpr std::string_view digits = "0123456789ABCDEF";
  for (const char byte : picture.substr(0, 3)) {
    const auto value = static_cast<unsigned char>(byte);
    colour += digits[value >> 4];
    colour += digits[value & 15];
  }
  return colour;
}

std::string Desktop::Clipboard() {
  return Do({"xclip", "-selection", "clipboard", "-out"});
}

std::string Desktop::Property(const std::string& zWindow, const std::string& zName) {
  return Do({"xprop", "-id", zWindow, zName});
}

}  // namespace loquitor::testing
