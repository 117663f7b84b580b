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

std::vector<std::string> TestedProgram::Command(const fs::path& zFolder) const {
  std::vector<std::string> command = {zFolder / file_.filename()};
  if (isForWindows_) {
    command.insert(command.begin(), "/usr/lib/wine/wine64");
  }
  return command;
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
