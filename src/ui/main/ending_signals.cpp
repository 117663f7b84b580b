#include "ui/main/ending_signals.h"

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <utility>
#endif

namespace loquitor {

#ifdef Q_OS_UNIX

namespace {

// A global, because a signal handler gets no other data. Never closed: signals may come until the
// program ends.
std::atomic<int> pipeEnd = -1;
static_assert(std::atomic<int>::is_always_lock_free);

void OnSignal(int) {
  const int error = errno;
  const char byte = 0;
  static_cast<void>(!::write(pipeEnd, &byte, 1));  // a full pipe already holds a request
  errno = error;
}

void SetHandlerUnlessIgnored(int zSignal) {
  struct sigaction action {};
  static_cast<void>(::sigaction(zSignal, nullptr, &action));  // cannot fail for these signals
  if (action.sa_handler != SIG_IGN) {
    action = {};
    action.sa_handler = OnSignal;
    action.sa_flags = SA_RESTART;
    static_cast<void>(::sigaction(zSignal, &action, nullptr));
  }
}

void Drain(int zPipe) {
  std::array<char, 64> bytes{};
  while (::read(zPipe, bytes.data(), bytes.size()) > 0) {
  }
}

}  // namespace

void HandleEndingSignals(QObject* zContext, std::function<void()> zHandler) {
  std::array<int, 2> ends{};
  if (::pipe(ends.data()) != 0) {
    return;  // the signals then end the program at once
  }
  for (const int end : ends) {
    static_cast<void>(::fcntl(end, F_SETFD, FD_CLOEXEC));  // cannot fail for a fresh descriptor
    static_cast<void>(::fcntl(end, F_SETFL, O_NONBLOCK));
  }
  pipeEnd = ends[1];
  auto* notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, zContext);
  QObject::connect(notifier, &QSocketNotifier::activated, zContext,
                   [pipe = ends[0], handler = std::move(zHandler)] {
                     Drain(pipe);
                     handler();
                   });
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    SetHandlerUnlessIgnored(signal);
  }
}

#else

void HandleEndingSignals(QObject*, std::function<void()>) {}

#endif

}  // namespace loquitor
