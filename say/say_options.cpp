#include "say/say_options.h"

namespace loquitor {

const std::string_view SayHelpText =
    "Usage: loquitor-say [--codes] [--force] [--] [TEXT...]\n"
    "Sends Say Data to the Orvatone: the TEXTs joined by blanks, or without any each line of\n"
    "standard input. The port, its speed and its flow control are those of Loquitor.ini, the "
    "words\n"
    "those of Loquitor.Dic, both beside this program.\n"
    "  --codes  send nothing; print the codes, one line of output for each line of input\n"
    "  --force  send phrases of more than 64 codes also while flow control is off\n"
    "  --help   this text\n"
    "  --       what follows is text, even if it begins with a hyphen\n"
    "Exit status: 0 done; 1 the port cannot be opened or failed or has taken no byte for five\n"
    "minutes, a phrase is too long, or the input cannot be read; 2 wrong usage.\n"
    "Example: loquitor-say 'hello, world  \\PITCH \\100'\n";

namespace {

/// Takes an option into `zOptions`; false when it is none that exists.
bool TakeOption(SayOptions& zOptions, std::string_view zOption) {
  if (zOption == "--help" || zOption == "-h") {
    zOptions.wantsHelp = true;
  } else if (zOption == "--codes") {
    zOptions.wantsCodes = true;
  } else if (zOption == "--force") {
    zOptions.isForced = true;
  } else {
    return false;
  }
  return true;
}

void AddText(SayOptions& zOptions, std::string_view zText) {
  if (zOptions.text) {
    *zOptions.text += ' ';
  }
  zOptions.text = zOptions.text.value_or("").append(zText);
}

}  // namespace

SayOptions ParseSayOptions(const std::vector<std::string_view>& zArguments) {
  SayOptions options;
  bool areOptionsOver = false;
  for (const std::string_view argument : zArguments) {
    if (areOptionsOver || argument.substr(0, 1) != "-") {
      AddText(options, argument);
    } else if (argument == "--") {
      areOptionsOver = true;
    } else if (!TakeOption(options, argument)) {
      options.complaint = "unknown option " + std::string(argument) +
                          " (put -- before a text that begins with a hyphen)";
      return options;
    }
  }
  return options;
}

}  // namespace loquitor
