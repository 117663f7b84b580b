#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <exception>
#include <iostream>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "sim/pseudo_terminal.h"
#include "sim/session.h"
#include "sim/sound_output.h"

namespace {

using loquitor::DeviceLink;
using loquitor::PseudoTerminal;
using loquitor::Session;
using loquitor::SoundOutput;

constexpr std::string_view HelpText =
    "Usage: virtual-orvatone [--link PATH] [--speak] [--wav FILE]\n"
    "Stands in for the chip: offers a serial port and prints a line for everything that it\n"
    "receives there, until it is interrupted (Ctrl+C). A line of input changes one of the chip's\n"
    "inputs: 3h lets input 3 go high, 3l low.\n"
    "  --link PATH  make PATH a symbolic link to the port, for as long as the program runs\n"
    "  --speak      let it be heard, in a voice that stands in for the chip's\n"
    "  --wav FILE   record what is heard, until the program ends (WAV, 16 bits, mono)\n"
    "  --version    the version of this program\n"
    "  --help       this text\n";

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

/// What the user asks for.
struct Options {
  std::string link;
  std::string wavFile;
  bool isSpoken = false;
  std::string_view information;  ///< the text to print before the program ends; empty for none
  std::string complaint;         ///< what is wrong with the arguments; empty when nothing is
};

/// Takes the value of option `zName` from "NAME VALUE" or "NAME=VALUE" at `zAt`, which moves on to
/// VALUE. False when another argument is there. A missing value sets `zComplaint`.
bool TakeValue(std::span<char*> zArguments, std::size_t& zAt, std::string_view zName,
               std::string& zValue, std::string& zComplaint) {
  const std::string_view argument = zArguments[zAt];
  if (argument == zName) {
    zValue = ++zAt < zArguments.size() ? zArguments[zAt] : "";
  } else if (argument.starts_with(std::string(zName) + "=")) {
    zValue = argument.substr(zName.size() + 1);
  } else {
    return false;
  }
  if (zValue.empty()) {
    zComplaint = std::string(zName) + " needs a path";
  }
  return true;
}

Options ParseOptions(std::span<char*> zArguments) {
  Options options;
  for (std::size_t i = 0; i < zArguments.size() && options.complaint.empty(); ++i) {
    const std::string_view argument = zArguments[i];
    if (argument == "--help" || argument == "-h") {
      options.information = HelpText;
      break;
    }
    if (argument == "--version") {
      options.information = "virtual-orvatone " LOQUITOR_VERSION "\n";
      break;
    }
    if (argument == "--speak") {
      options.isSpoken = true;
    } else if (!TakeValue(zArguments, i, "--link", options.link, options.complaint) &&
               !TakeValue(zArguments, i, "--wav", options.wavFile, options.complaint)) {
      options.complaint = "unknown argument: " + std::string(argument);
    }
  }
  return options;
}

/// Opens standard input if it is closed, so that the pseudo-terminal does not get its number.
void HoldStandardInput() {
  if (fcntl(STDIN_FILENO, F_GETFD) < 0) {
    static_cast<void>(open("/dev/null", O_RDONLY));
  }
}

int Offer(const Options& zOptions) {
  HoldStandardInput();
  const sigset_t mask = HoldStopSignals();
  PseudoTerminal terminal;
  std::optional<DeviceLink> link;
  if (!zOptions.link.empty()) {
    link.emplace(zOptions.link, terminal.Device());
  }
  std::optional<SoundOutput> sound;
  if (zOptions.isSpoken || !zOptions.wavFile.empty()) {
    sound.emplace(zOptions.isSpoken, zOptions.wavFile);
  }
  std::cerr << "virtual-orvatone: listening on " << terminal.Device()
            << (link ? ", linked as " : "") << zOptions.link << std::endl;
  Session(terminal, sound ? &*sound : nullptr).Run(mask, isAskedToStop);
  return std::cout ? 0 : 1;
}

}  // namespace

int main(int zCount, char** zArguments) {
  const Options options =
      ParseOptions(std::span(zArguments, static_cast<std::size_t>(zCount)).subspan(1));
  if (!options.information.empty()) {
    std::cout << options.information;
    return 0;
  }
  if (!options.complaint.empty()) {
    std::cerr << "virtual-orvatone: " << options.complaint << "\n" << HelpText;
    return 2;
  }
  try {
    return Offer(options);
  } catch (const std::exception& error) {
    std::cerr << "virtual-orvatone: " << error.what() << "\n";
    return 1;
  }
}
