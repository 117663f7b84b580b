#include <exception>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sim/chip_line.h"
#include "sim/session.h"
#include "sim/sound_output.h"
#include "terminal/option_value.h"
#include "terminal/terminal.h"

namespace {

using loquitor::ChipLine;
using loquitor::Session;
using loquitor::SoundOutput;

std::string HelpText() {
  return "Usage: virtual-orvatone [--link PATH] [--speak] [--wav FILE]\n"
         "Stands in for the chip: offers a serial port and prints a line for everything that it\n"
         "receives there, until it is interrupted (Ctrl+C). A line of input changes one of the "
         "chip's\n"
         "inputs: 3h lets input 3 go high, 3l low.\n" +
         std::string(loquitor::LinkHelp) +
         "  --speak      let it be heard, in a voice that stands in for the chip's\n"
         "  --wav FILE   record what is heard, until the program ends (WAV, 16 bits, mono)\n"
         "  --version    the version of this program\n"
         "  --help       this text\n";
}

/// What the user asks for.
struct Options {
  std::string link;
  std::string wavFile;
  bool isSpoken = false;
  std::string information;  ///< the text to print before the program ends; empty for none
  std::string complaint;    ///< what is wrong with the arguments; empty when nothing is
};

/// Takes the path that follows option `zName` at index `zAt`, as TakeOptionValue does. A missing
/// path is a complaint. False when another argument is there.
bool TakePath(const std::vector<std::string_view>& zArguments, std::size_t& zAt,
              std::string_view zName, std::string& zPath, std::string& zComplaint) {
  const auto value = loquitor::TakeOptionValue(zName, zArguments, zAt);
  if (value) {
    zPath = *value;
    zComplaint = zPath.empty() ? std::string(zName) + " needs a path" : "";
  }
  return value.has_value();
}

Options ParseOptions(const std::vector<std::string_view>& zArguments) {
  Options options;
  for (std::size_t i = 0; i < zArguments.size() && options.complaint.empty(); ++i) {
    const std::string_view argument = zArguments[i];
    if (argument == "--help" || argument == "-h") {
      options.information = HelpText();
      break;
    }
    if (argument == "--version") {
      options.information = "virtual-orvatone " LOQUITOR_VERSION "\n";
      break;
    }
    if (argument == "--speak") {
      options.isSpoken = true;
    } else if (!TakePath(zArguments, i, "--link", options.link, options.complaint) &&
               !TakePath(zArguments, i, "--wav", options.wavFile, options.complaint)) {
      options.complaint = "unknown argument: " + std::string(argument);
    }
  }
  return options;
}

int Offer(const Options& zOptions) {
  const std::unique_ptr<ChipLine> line = loquitor::OfferChipLine(zOptions.link);
  std::optional<SoundOutput> sound;
  if (zOptions.isSpoken || !zOptions.wavFile.empty()) {
    sound.emplace(zOptions.isSpoken, zOptions.wavFile);
  }
  std::cerr << "virtual-orvatone: listening on " << line->Name() << std::endl;
  Session(*line, sound ? &*sound : nullptr).Run();
  return std::cout ? 0 : 1;
}

}  // namespace

int main(int zCount, char** zArguments) {
  const loquitor::Terminal terminal(zCount, zArguments);
  const Options options = ParseOptions(terminal.Arguments());
  if (!options.information.empty()) {
    std::cout << options.information;
    return 0;
  }
  if (!options.complaint.empty()) {
    std::cerr << "virtual-orvatone: " << options.complaint << "\n" << HelpText();
    return 2;
  }
  try {
    return Offer(options);
  } catch (const std::exception& error) {
    std::cerr << "virtual-orvatone: " << error.what() << "\n";
    return 1;
  }
}
