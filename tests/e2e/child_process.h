#pragma once

#include <sys/types.h>

#include <map>
#include <string>
#include <vector>

#include "tests/support/await.h"

namespace loquitor::testing {

/// A program that a test starts. The destructor ends it. Its standard output is read through a
/// pipe.
class ChildProcess {
 public:
  /// `zEnvironment` is added to the test's own.
  ChildProcess(const std::vector<std::string>& zCommand,
               const std::map<std::string, std::string>& zEnvironment = {});
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  /// Everything that it has printed so far.
  const std::string& Output();

  bool IsRunning();
  void Signal(int zSignal);

  /// Waits at most `zSeconds` for its end. Returns the exit status. For a signal that ended it,
  /// returns minus the number of the signal. Returns -1 when it still runs.
  int WaitForEnd(int zSeconds = 30);

  pid_t Pid() const { return pid_; }

 private:
  pid_t pid_ = -1;
  int outputPipe_ = -1;
  std::string output_;
  bool hasEnded_ = false;
  int status_ = -1;
};

/// Runs a command to its end and returns what it printed, without line ends at the end.
std::string RunCommand(const std::vector<std::string>& zCommand);

}  // namespace loquitor::testing
