#include "tests/e2e/tested_program.h"

#include <cstdlib>

#include "tests/e2e/child_process.h"

namespace loquitor::testing {

namespace fs = std::filesystem;

TestedProgram::TestedProgram()
    : file_(LOQUITOR_PROGRAM), isForWindows_(std::getenv("LOQUITOR_FOR_WINDOWS") != nullptr) {
  if (isForWindows_) {
    file_ = std::getenv("LOQUITOR_FOR_WINDOWS");
  }
}

TestedProgram::~TestedProgram() {
  if (isForWindows_) {
    RunCommand({"/usr/lib/wine/wineserver64", "-k"});
  }
}

void TestedProgram::CopyTo(const fs::path& zFolder) const {
  fs::copy_file(file_, zFolder / file_.filename());
}

std::vector<std::string> TestedProgram::CommandOf(const fs::path& zProgram) const {
  return isForWindows_ ? std::vector<std::string>{"/usr/lib/wine/wine64", zProgram}
                       : std::vector<std::string>{zProgram};
}

std::vector<std::string> TestedProgram::Command(const fs::path& zFolder) const {
  return CommandOf(zFolder / file_.filename());
}

std::vector<std::string> TestedProgram::VirtualOrvatone(const fs::path& zFolder) const {
  std::vector<std::string> command = {"sh", "-c", "exec \"$0\" \"$@\" 2>&1"};
  const std::vector<std::string> chip = CommandOf(
      isForWindows_ ? file_.parent_path() / "virtual-orvatone.exe" : fs::path(VIRTUAL_ORVATONE));
  command.insert(command.end(), chip.begin(), chip.end());
  command.insert(command.end(), {"--link", DeviceOfVirtualOrvatone(zFolder)});
  return command;
}

std::string TestedProgram::DeviceOfVirtualOrvatone(const fs::path& zFolder) const {
  return isForWindows_ ? R"(\\.\pipe\)" + zFolder.filename().string() : (zFolder / "chip").string();
}

std::string TestedProgram::DeviceOf(const std::string& zTerminal) const {
  if (!isForWindows_) {
    return zTerminal;
  }
  const fs::path link = fs::path(std::getenv("WINEPREFIX")) / "com1";
  fs::remove(link);
  fs::create_symlink(zTerminal, link);
  return "COM1";
}

TestedProgram::Frame TestedProgram::FrameOf(bool zIsMainWindow) const {
  return isForWindows_ && !zIsMainWindow ? Frame{4, 20} : Frame{0, 0};
}

}  // namespace loquitor::testing
