#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace loquitor {

/// What the user of loquitor-say asks for.
struct SayOptions {
  bool wantsHelp = false;
  bool wantsVersion = false;
  bool wantsPorts = false;             ///< list the port numbers, send nothing
  bool wantsCodes = false;             ///< print the codes, send nothing
  bool wantsCheck = false;             ///< print what would be silent, send nothing
  bool wantsSayData = false;           ///< print the Say Data of English, send nothing
  bool isEnglish = false;              ///< the text is English
  bool isForced = false;               ///< send long phrases without flow control, too
  std::optional<std::string> device;   ///< DEVICE or NUMBER=DEVICE to map, send nothing
  std::optional<std::string> wavFile;  ///< write what would be heard there, send nothing
  std::optional<std::string>
      wordList;                     ///< give the dictionary the words of this file, send nothing
  std::optional<std::string> text;  ///< the arguments joined by blanks; none: standard input
  std::string complaint;            ///< what is wrong with the arguments; empty when nothing is
};

/// Reads the arguments, without the name of the program.
SayOptions ParseSayOptions(const std::vector<std::string_view>& zArguments);

/// What --help prints.
extern const std::string_view SayHelpText;

}  // namespace loquitor
