// The line of a virtual chip where there are pseudo-terminals.

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <ctime>
#include <system_error>
#include <utility>

#include "sim/chip_line.h"
#include "sim/pseudo_terminal.h"

namespace loquitor {

const std::string_view LinkHelp =
    "  --link PATH  make PATH a symbolic link to the port, for as long as the program runs\n";

namespace {

volatile sig_atomic_t isAskedToStop = 0;

void AskToStop(int) {
  isAskedToStop = 1;
}

/// Blocks the signals that end the program. Returns the mask with which ppoll lets them in.
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
    sigdelset(&before, number);  // in case whoever started the program has blocked them
  }
  struct sigaction ignore {};
  ignore.sa_handler = SIG_IGN;
  sigaction(SIGPIPE, &ignore, nullptr);  // writing to a pipe without a reader then just fails
  sigaction(SIGTTIN, &ignore, nullptr);  // in the background reading the input then just fails
  return before;
}

/// Opens standard input if it is closed, so that the pseudo-terminal does not get its number.
void HoldStandardInput() {
  if (fcntl(STDIN_FILENO, F_GETFD) < 0) {
    static_cast<void>(open("/dev/null", O_RDONLY));
  }
}

class TerminalLine : public ChipLine {
 public:
  /// `zMask`: the signals that are held back except in Wait.
  TerminalLine(const std::string& zLink, const sigset_t& zMask)
      : mask_(zMask), name_(terminal_.Device() + (zLink.empty() ? "" : ", linked as ") + zLink) {
    if (!zLink.empty()) {
      link_.emplace(zLink, terminal_.Device());
    }
  }

  std::string Name() const override { return name_; }
  std::string Read() override { return terminal_.Read(); }
  std::string ReadInput() override { return std::exchange(input_, {}); }
  bool IsAskedToStop() const override { return isAskedToStop != 0; }

  void Wait(std::optional<std::chrono::milliseconds> zLongest) override {
    std::array<pollfd, 3> watched{{{terminal_.Descriptor(), POLLIN, 0},
                                   {terminal_.ClosedDescriptor(), POLLIN, 0},
                                   {isInputOpen_ ? STDIN_FILENO : -1, POLLIN, 0}}};
    const auto count = zLongest.value_or(std::chrono::milliseconds::zero()).count();
    const timespec time{count / 1000, count % 1000 * 1'000'000};
    const int ready = ppoll(watched.data(), watched.size(), zLongest ? &time : nullptr, &mask_);
    if (ready < 0 && errno != EINTR) {
      throw std::system_error(errno, std::generic_category(), "cannot wait for bytes");
    }
    if (ready <= 0) {
      return;
    }
    // The call above lets no signal in while there is something to read.
    constexpr timespec noTime{};
    static_cast<void>(ppoll(nullptr, 0, &noTime, &mask_));  // fails when a signal comes in
    if ((watched[1].revents & POLLIN) != 0) {
      terminal_.ForgetClient();
    }
    if (watched[2].revents != 0) {
      TakeInput();
    }
  }

 private:
  void TakeInput() {
    std::array<char, 256> buffer;
    const ssize_t count = read(STDIN_FILENO, buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) {
      return;
    }
    isInputOpen_ = count > 0;  // an error ends the input: a program in the background may not read
    input_.append(buffer.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
  }

  const sigset_t mask_;
  PseudoTerminal terminal_;
  const std::string name_;
  std::optional<DeviceLink> link_;
  bool isInputOpen_ = true;
  std::string input_;
};

}  // namespace

std::unique_ptr<ChipLine> OfferChipLine(const std::string& zLink) {
  HoldStandardInput();
  const sigset_t mask = HoldStopSignals();
  return std::make_unique<TerminalLine>(zLink, mask);
}

}  // namespace loquitor
