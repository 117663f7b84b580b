#include "tests/e2e/child_process.h"

#include <fcntl.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <stdexcept>

namespace loquitor::testing {

ChildProcess::ChildProcess(const std::vector<std::string>& zCommand,
                           const std::map<std::string, std::string>& zEnvironment) {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) {
    throw std::runtime_error("no pipe");
  }
  pid_ = fork();
  if (pid_ == 0) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    signal(SIGINT, SIG_DFL);  // ignored where the tests themselves run in the background
    dup2(ends[1], STDOUT_FILENO);
    for (const auto& [name, value] : zEnvironment) {
      setenv(name.c_str(), value.c_str(), 1);
    }
    std::vector<char*> arguments;
    for (const std::string& argument : zCommand) {
      arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    execvp(arguments[0], arguments.data());
    _exit(127);
  }
  close(ends[1]);
  outputPipe_ = ends[0];
  fcntl(outputPipe_, F_SETFL, O_NONBLOCK);
}

ChildProcess::~ChildProcess() {
  for (const int signal : {SIGTERM, SIGKILL}) {
    Signal(signal);
    WaitForEnd(3);
  }
  close(outputPipe_);
}

const std::string& ChildProcess::Output() {
  std::array<char, 4096> buffer{};
  ssize_t count = 0;
  while ((count = read(outputPipe_, buffer.data(), buffer.size())) > 0) {
    output_.append(buffer.data(), static_cast<std::size_t>(count));
  }
  return output_;
}

bool ChildProcess::IsRunning() {
  int status = 0;
  if (!hasEnded_ && waitpid(pid_, &status, WNOHANG) == pid_) {
    hasEnded_ = true;
    status_ = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
  }
  return !hasEnded_;
}

void ChildProcess::Signal(int zSignal) {
  if (IsRunning()) {
    kill(pid_, zSignal);
  }
}

int ChildProcess::WaitForEnd(int zSeconds) {
  Await([this] { return Output(), !IsRunning(); }, zSeconds);
  return status_;
}

std::string RunCommand(const std::vector<std::string>& zCommand) {
  ChildProcess child(zCommand);
  child.WaitForEnd();
  const std::string& output = child.Output();
  return output.substr(0, output.find_last_not_of('\n') + 1);
}

}  // namespace loquitor::testing
