#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace loquitor {

/// The arguments of loquitor-say. Without any of the options that send nothing, the text is sent.
struct SayOptions {
  bool wantsHelp = false;
  bool wantsVersion = false;
  bool wantsPorts = false;                 ///< list the port numbers, send nothing
  bool wantsCodes = false;                 ///< print the codes, send nothing
  bool wantsCheck = false;                 ///< print what would be silent, send nothing
  bool wantsSayData = false;               ///< print the Say Data of English, send nothing
  bool isEnglish = false;                  ///< the text is English
  bool isForced = false;                   ///< send long phrases even without flow control
  std::optional<std::string> device;       ///< DEVICE or NUMBER=DEVICE for a port, send nothing
  std::optional<std::string> addedDevice;  ///< DEVICE to give a port number, send nothing
  std::optional<std::string> wavFile;      ///< record the sound in this file, send nothing
  /// Add the words of this file to the dictionary, send nothing.
  std::optional<std::string> wordList;
  std::optional<std::string>
      text;               ///< the words of the text, joined by spaces; else read the input
  std::string complaint;  ///< what is wrong with the arguments; empty when nothing is
};

/// Reads the arguments, which are without the name of the program. Never fails: see
/// SayOptions::complaint.
SayOptions ParseSayOptions(const std::vector<std::string_view>& zArguments);

/// What --help prints.
extern const std::string_view SayHelpText;

}  // namespace loquitor
