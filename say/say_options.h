#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace loquitor {

/// What the user of loquitor-say asks for.
struct SayOptions {
  bool wantsHelp = false;
  bool wantsCodes = false;          ///< print the codes, send nothing
  bool isForced = false;            ///< send long phrases without flow control, too
  std::optional<std::string> text;  ///< the arguments joined by blanks; none: standard input
  std::string complaint;            ///< what is wrong with the arguments; empty when nothing is
};

/// Reads the arguments, the program's name not among them.
SayOptions ParseSayOptions(const std::vector<std::string_view>& zArguments);

/// What --help prints.
extern const std::string_view SayHelpText;

}  // namespace loquitor
