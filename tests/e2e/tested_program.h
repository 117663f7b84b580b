#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace loquitor::testing {

/// Loquitor as the tests start it: the program that was built beside them. If the environment
/// variable LOQUITOR_FOR_WINDOWS names a Loquitor.exe, then that one, under Wine. scripts/windows
/// prepares Wine's folder, $WINEPREFIX, where COM1 leads to the file `com1`.
class TestedProgram {
 public:
  struct Frame {
    int left, top;
  };

  TestedProgram();

  /// Ends what Wine has started for itself, so that nothing of it is left to the next test.
  ~TestedProgram();
  TestedProgram(const TestedProgram&) = delete;
  TestedProgram& operator=(const TestedProgram&) = delete;

  void CopyTo(const std::filesystem::path& zFolder) const;

  /// Starts the copy in `zFolder`.
  std::vector<std::string> Command(const std::filesystem::path& zFolder) const;

  /// What the settings name for a chip on this pseudo-terminal. The last one is COM1 of Wine.
  std::string DeviceOf(const std::string& zTerminal) const;

  /// The command that starts the virtual Orvatone which was built with the program. It prints
  /// everything on its standard output.
  std::vector<std::string> VirtualOrvatone(const std::filesystem::path& zFolder) const;

  /// What the settings name for this virtual Orvatone: a link in `zFolder`, or a pipe.
  std::string DeviceOfVirtualOrvatone(const std::filesystem::path& zFolder) const;

  /// What a window itself draws around its client area, in pixels. Wine draws the frames of tool
  /// windows. The window manager draws those of all others, outside the windows.
  Frame FrameOf(bool zIsMainWindow) const;

 private:
  std::vector<std::string> CommandOf(const std::filesystem::path& zProgram) const;

  std::filesystem::path file_;
  bool isForWindows_;
};

}  // namespace loquitor::testing
