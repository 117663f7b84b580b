#include <poll.h>
#include <signal.h>

#include <array>
#include <cerrno>
#include <ctime>
#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "sim/pseudo_terminal.h"
#include "sim/virtual_chip.h"

namespace {

using loquitor::DeviceLink;
using loquitor::PseudoTerminal;
using loquitor::VirtualChip;

constexpr std::string_view HelpText =
    "Usage: virtual-orvatone [--link PATH]\n"
    "Stands in for the chip: offers a serial port and prints a line for everything that it\n"
    "receives there, until it is interrupted (Ctrl+C).\n"
    "  --link PATH  make PATH a symbolic link to the port, for as long as the program runs\n"
    "  --help       this text\n";

/// When half a command has arrived and nothing more for this long, it is shown as it is.
constexpr long QuietNanoseconds = 500'000'000;

volatile sig_atomic_t isAskedToStop = 0;

void AskToStop(int) {
  isAskedToStop = 1;
}

/// Blocks the signals that end the program; the result is the mask under which they arrive.
sigset_t HoldStopSignals() {
  struct sigaction action {};
  action.sa_handler = AskToStop;
  sigset_t stopSignals;
  sigset_t before;
  sigemptyset(&stopSignals);
  for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
    sigaction(number, &action, nullptr);
    sigaddset(&stopSignals, number);
  }
  sigprocmask(SIG_BLOCK, &stopSignals, &before);
  for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
    sigdelset(&before, number);  // a program started in the background may have them blocked
  }
  struct sigaction ignore {};
  ignore.sa_handler = SIG_IGN;
  sigaction(SIGPIPE, &ignore, nullptr);  // a reader that went away shows as a failed write
  return before;
}

/// Feeds the chip from the terminal and prints what it says.
class Session {
 public:
  explicit Session(PseudoTerminal& zTerminal) : terminal_(zTerminal) {}

  void Run(const sigset_t& zMask) {
    while (isAskedToStop == 0 && std::cout) {
      const bool isQuiet = Wait(zMask);
      const bool hasReceived = ReceiveAll();
      isPendingShown_ = isPendingShown_ && !hasReceived;
      if (isQuiet && !hasReceived) {
        ShowPending();
      }
    }
    ReceiveAll();
    ShowPending();
  }

 private:
  /// Waits for bytes or a signal. True when the quiet time has passed without either.
  bool Wait(const sigset_t& zMask) {
    std::array<pollfd, 2> watched{
        {{terminal_.Descriptor(), POLLIN, 0}, {terminal_.ClosedDescriptor(), POLLIN, 0}}};
    const bool isWaitingForRest = chip_.Pending() && !isPendingShown_;
    const timespec quietTime{0, QuietNanoseconds};
    const int ready =
        ppoll(watched.data(), watched.size(), isWaitingForRest ? &quietTime : nullptr, &zMask);
    if (ready < 0 && errno != EINTR) {
      throw std::system_error(errno, std::generic_category(), "cannot wait for bytes");
    }
    if (ready > 0 && (watched[1].revents & POLLIN) != 0) {
      terminal_.ForgetClient();
    }
    return ready == 0;
  }

  bool ReceiveAll() {
    bool hasReceived = false;
    for (std::string bytes; !(bytes = terminal_.Read()).empty() && std::cout;) {
      hasReceived = true;
      for (const loquitor::ChipEvent& event : chip_.Receive(bytes)) {
        std::cout << chip_.Describe(event) << std::endl;
      }
    }
    return hasReceived;
  }

  void ShowPending() {
    const std::optional<loquitor::ChipEvent> pending = chip_.Pending();
    if (pending && !isPendingShown_) {
      std::cout << chip_.Describe(*pending) << std::endl;
      isPendingShown_ = true;
    }
  }

  PseudoTerminal& terminal_;
  VirtualChip chip_;
  bool isPendingShown_ = false;
};

int Offer(const std::string& zLink) {
  const sigset_t mask = HoldStopSignals();
  PseudoTerminal terminal;
  std::optional<DeviceLink> link;
  if (!zLink.empty()) {
    link.emplace(zLink, terminal.Device());
  }
  std::cerr << "virtual-orvatone: listening on " << terminal.Device()
            << (zLink.empty() ? "" : ", linked as ") << zLink << std::endl;
  Session(terminal).Run(mask);
  return std::cout ? 0 : 1;
}

int Complain(std::string_view zMessage) {
  std::cerr << "virtual-orvatone: " << zMessage << "\n" << HelpText;
  return 2;
}

}  // namespace

int main(int zCount, char** zArguments) {
  std::string link;
  for (int i = 1; i < zCount; ++i) {
    const std::string_view argument = zArguments[i];
    if (argument == "--help" || argument == "-h") {
      std::cout << HelpText;
      return 0;
    }
    if (argument == "--link" && i + 1 < zCount) {
      link = zArguments[++i];
    } else if (argument.substr(0, 7) == "--link=") {
      link = argument.substr(7);
    } else {
      return Complain(argument == "--link" ? "--link needs a path"
                                           : "unknown argument: " + std::string(argument));
    }
    if (link.empty()) {
      return Complain("--link needs a path");
    }
  }
  try {
    return Offer(link);
  } catch (const std::exception& error) {
    std::cerr << "virtual-orvatone: " << error.what() << "\n";
    return 1;
  }
}
