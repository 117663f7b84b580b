#include "say/say_options.h"

#include "terminal/option_value.h"

namespace loquitor {

const std::string_view SayHelpText =
    "Usage: loquitor-say [--codes | --check | --wav FILE] [--force] [--] [TEXT...]\n"
    "       loquitor-say --english [--say-data | --codes | --wav FILE] [--force] [--] [TEXT...]\n"
    "       loquitor-say --add-words FILE\n"
    "       loquitor-say --ports | --set-port DEVICE | --add-port DEVICE\n"
    "       loquitor-say --version | --help\n"
    "Sends Say Data to the Orvatone: the TEXTs joined by blanks, or without any each line of\n"
    "standard input. The port, its speed and its flow control are those of Loquitor.ini, the\n"
    "words those of Loquitor.Dic. --ports names the folder of both.\n"
    "  --codes            send nothing; print the codes, one line of output for each line of "
    "input\n"
    "  --check            send nothing; print the words and mnemonics that would be silent, one a\n"
    "                     line, as LINE:COLUMN: WORD: reason\n"
    "  --wav FILE         send nothing; write what the chip would say to FILE (WAV, 16 bits, "
    "mono),\n"
    "                     in a voice that stands in for the chip's\n"
    "  --english          the text is English; words that the dictionary lacks are sounded out, "
    "and\n"
    "                     what cannot be read is told on standard error\n"
    "  --say-data         with --english: send nothing; print the Say Data, a line for each line\n"
    "  --add-words FILE   give the dictionary each word of FILE that it has no sounds for\n"
    "  --force            send phrases of more than 64 codes also while flow control is off\n"
    "  --ports            list the port numbers and their devices\n"
    "  --set-port DEVICE  make DEVICE port 1 from now on, in section [Ports] of Loquitor.ini;\n"
    "                     NUMBER=DEVICE makes it another port\n"
    "  --add-port DEVICE  make DEVICE a port with a free number, unless it is one already; print "
    "the\n"
    "                     number\n"
    "  --version          the version of this program\n"
    "  --help             this text\n"
    "  --                 what follows is text, even if it begins with a hyphen\n"
    "Exit status: 0 done; 1 --check found something, the port cannot be opened or failed or has\n"
    "taken no byte for five minutes, a phrase is too long, a file or the input cannot be read or\n"
    "written, or this build cannot read English; 2 wrong usage.\n"
    "Example: loquitor-say 'hello, world  \\PITCH \\100'\n"
    "         loquitor-say --english \"It's 21 degrees in here.\"\n";

namespace {

/// An option without a value.
struct Flag {
  std::string_view name;
  bool SayOptions::*member;
};

constexpr Flag Flags[] = {
    {"--help", &SayOptions::wantsHelp},        {"-h", &SayOptions::wantsHelp},
    {"--codes", &SayOptions::wantsCodes},      {"--check", &SayOptions::wantsCheck},
    {"--say-data", &SayOptions::wantsSayData}, {"--english", &SayOptions::isEnglish},
    {"--force", &SayOptions::isForced},        {"--ports", &SayOptions::wantsPorts},
    {"--version", &SayOptions::wantsVersion},
};

/// An option with a value, and what the value is.
struct ValueOption {
  std::string_view name;
  std::optional<std::string> SayOptions::*member;
  const char* kind;
};

constexpr ValueOption ValueOptions[] = {
    {"--set-port", &SayOptions::device, "a device"},
    {"--add-port", &SayOptions::addedDevice, "a device"},
    {"--wav", &SayOptions::wavFile, "a file"},
    {"--add-words", &SayOptions::wordList, "a file"},
};

/// Sets the option at index `zAt`, which moves on to the value if it has one. A missing value is a
/// complaint. False when there is no such option.
bool TakeOption(SayOptions& zOptions, const std::vector<std::string_view>& zArguments,
                std::size_t& zAt) {
  for (const Flag& flag : Flags) {
    if (zArguments[zAt] == flag.name) {
      zOptions.*flag.member = true;
      return true;
    }
  }
  for (const ValueOption& option : ValueOptions) {
    if (const auto value = TakeOptionValue(option.name, zArguments, zAt)) {
      zOptions.*option.member = value;
      zOptions.complaint = value->empty() ? std::string(option.name) + " needs " + option.kind : "";
      return true;
    }
  }
  return false;
}

void AddText(SayOptions& zOptions, std::string_view zText) {
  if (zOptions.text) {
    *zOptions.text += ' ';
  }
  zOptions.text = zOptions.text.value_or("").append(zText);
}

/// Which of `zOptions` contradict each other; empty when none do.
std::string Contradiction(const SayOptions& zOptions) {
  if (zOptions.wantsCodes && zOptions.wavFile) {
    return "--codes and --wav do not go together";
  }
  if (zOptions.wantsSayData && !zOptions.isEnglish) {
    return "--say-data needs --english";
  }
  return zOptions.wantsCheck && zOptions.isEnglish ? "--check is for Say Data, not for English"
                                                   : "";
}

}  // namespace

SayOptions ParseSayOptions(const std::vector<std::string_view>& zArguments) {
  SayOptions options;
  bool areOptionsOver = false;
  for (std::size_t i = 0; i < zArguments.size() && options.complaint.empty(); ++i) {
    const std::string_view argument = zArguments[i];
    if (areOptionsOver || argument.substr(0, 1) != "-") {
      AddText(options, argument);
    } else if (argument == "--") {
      areOptionsOver = true;
    } else if (!TakeOption(options, zArguments, i)) {
      options.complaint = "unknown option " + std::string(argument) +
                          " (put -- before a text that begins with a hyphen)";
    }
  }
  if (options.complaint.empty()) {
    options.complaint = Contradiction(options);
  }
  return options;
}

}  // namespace loquitor
