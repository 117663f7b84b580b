#pragma once

#include <sys/types.h>
#include <time.h>

#include <map>
#include <string>
#include <vector>

namespace loquitor::testing {

/// A program started by a test; ended with it. Its standard output is read through a pipe.
class ChildProcess {
 public:
  /// `zEnvironment` is added to the test's own.
  ChildProcess(const std::vector<std::string>& zCommand,
               const std::map<std::string, std::string>& zEnvironment = {});
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  /// What it has printed so far, in all.
  const std::string& Output();

  bool IsRunning();
  void Signal(int zSignal);

  /// Waits for its end, at most `zSeconds`; the exit status, or the signal that ended it below 0,
  /// or -1 when it still runs.
  int WaitForEnd(int zSeconds = 30);

  pid_t Pid() const { return pid_; }

 private:
  pid_t pid_ = -1;
  int outputPipe_ = -1;
  std::string output_;
  bool hasEnded_ = false;
  int status_ = -1;
};

/// Runs a command to its end and returns what it printed, without the last line end.
std::string RunCommand(const std::vector<std::string>& zCommand);

/// Asks `zCondition` every few milliseconds until it holds; false after `zSeconds`.
template <class Condition>
bool Await(Condition zCondition, double zSeconds = 30) {
  constexpr timespec step{0, 10'000'000};
  for (double waited = 0; waited < zSeconds && !zCondition(); waited += 0.01) {
    nanosleep(&step, nullptr);
  }
  return zCondition();
}

}  // namespace loquitor::testing
