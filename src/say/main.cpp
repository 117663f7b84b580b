#include <algorithm>
#include <functional>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "core/code_table.h"
#include "core/dictionary_store.h"
#include "core/say_data.h"
#include "files/data_folder.h"
#include "files/settings_file.h"
#include "line/port_numbers.h"
#include "say/english_input.h"
#include "say/say_options.h"
#include "say/silence_report.h"
#include "say/speaker.h"
#include "say/spoken_file.h"
#include "say/system_line.h"
#include "terminal/terminal.h"
#include "text/path_text.h"

namespace {

using namespace loquitor;

enum ExitStatus { Done = 0, Failed = 1, WrongUsage = 2 };

int Complain(std::string_view zMessage, ExitStatus zStatus) {
  std::cerr << "loquitor-say: " << zMessage << std::endl;
  return zStatus;
}

/// Flushes standard output. Returns the exit status if nothing else has failed.
int FinishOutput() {
  return std::cout.flush() ? Done : Complain("cannot write to standard output", Failed);
}

/// Calls `zHandle` with the text of the arguments, or with each line of standard input until it
/// returns false. Returns false when the input could not be read to its end.
template <typename Handle>
bool ForEachText(const SayOptions& zOptions, Handle zHandle) {
  if (zOptions.text) {
    zHandle(*zOptions.text);
    return true;
  }
  for (std::string line; std::getline(std::cin, line) && zHandle(line);) {
  }
  return !std::cin.bad();
}

int ComplainOfInput() {
  return Complain("cannot read standard input", Failed);
}

/// Converts a text of the input.
using Conversion = std::function<std::string(const std::string& zText)>;

/// Prints the result of `zConvert` for each text, one line for each.
int PrintEach(const SayOptions& zOptions, const Conversion& zConvert) {
  const bool isRead = ForEachText(zOptions, [&](const std::string& zText) {
    std::cout << zConvert(zText) << '\n';
    const bool mayWaitForInput = std::cin.rdbuf()->in_avail() <= 0;
    if (mayWaitForInput) {
      std::cout.flush();
    }
    return static_cast<bool>(std::cout);
  });
  const int status = FinishOutput();
  return isRead ? status : ComplainOfInput();
}

/// Records each text in a WAV file. The chip's stored phrases are those of the EEPROM editor.
int Record(const SayOptions& zOptions, const Conversion& zToCodes,
           const SayDataTranslator& zTranslator, const SettingsFile& zSettings) {
  const auto phrase = [&](int zSlot) {
    const std::string sayData =
        zSettings.GetIniValue("EEPROM", "Phrase" + std::to_string(zSlot), "");
    return zTranslator.MnemonicsToCodes(zTranslator.ExpandSayData(sayData));
  };
  try {
    SpokenFile file(PathFrom(*zOptions.wavFile), phrase);
    const bool isRead = ForEachText(zOptions, [&](const std::string& zText) {
      file.Say(zToCodes(zText));
      return true;
    });
    return isRead ? Done : ComplainOfInput();
  } catch (const std::runtime_error& error) {
    return Complain(error.what(), Failed);
  }
}

int Check(const SayOptions& zOptions, const SayDataTranslator& zTranslator) {
  int line = 0;
  bool isSilent = false;
  const bool isRead = ForEachText(zOptions, [&](const std::string& zText) {
    const std::vector<SilentPart> parts = zTranslator.FindSilentParts(zText);
    std::cout << SilenceReport(zText, parts, ++line);
    isSilent = isSilent || !parts.empty();
    return static_cast<bool>(std::cout);
  });
  const int status = FinishOutput();
  if (!isRead) {
    return ComplainOfInput();
  }
  return isSilent ? Failed : status;
}

int Send(const SayOptions& zOptions, const Conversion& zToCodes, const SettingsFile& zSettings) {
  Speaker speaker(zSettings, zOptions.isForced);
  bool isSaid = true;
  const bool isRead = ForEachText(zOptions, [&](const std::string& zText) {
    isSaid = speaker.Say(zToCodes(zText));
    return isSaid;
  });
  speaker.Finish();  // what was said before a failure still goes out
  if (!isSaid) {
    return Complain(speaker.Complaint(), Failed);
  }
  return isRead ? Done : ComplainOfInput();
}

int Print(std::string_view zText) {
  std::cout << zText;
  return FinishOutput();
}

/// Enters a device in [Ports].
int StorePort(const std::string& zNumber, const std::string& zDevice,
              const SettingsFile& zSettings) {
  zSettings.SaveIniValue("Ports", zNumber, zDevice);
  if (zSettings.GetIniValue("Ports", zNumber, "") == zDevice) {
    return Done;
  }
  return Complain("cannot store the device in Loquitor.ini, in " + TextOf(zSettings.Folder()),
                  Failed);
}

/// Maps a port number to a device. `zMapping`: NUMBER=DEVICE, or DEVICE alone for port 1.
int SetPort(const std::string& zMapping, const SettingsFile& zSettings) {
  const std::size_t digits = zMapping.find_first_not_of("0123456789");
  const bool hasNumber =
      digits != 0 && zMapping.substr(std::min(digits, zMapping.size()), 1) == "=";
  return hasNumber ? StorePort(zMapping.substr(0, digits), zMapping.substr(digits + 1), zSettings)
                   : StorePort("1", zMapping, zSettings);
}

int AddPort(const std::string& zDevice, const SettingsFile& zSettings) {
  const int number = NumberForDevice(zDevice, zSettings, DevicesPresent());
  if (number == 0) {
    return Complain("every port number up to 99 is taken", Failed);
  }
  const std::string text = std::to_string(number);
  const bool isEntered = !zSettings.GetIniValue("Ports", text, "").empty();
  const int status = isEntered ? Done : StorePort(text, zDevice, zSettings);
  return status == Done ? Print(text + "\n") : status;
}

int AddWords(const std::string& zFile, EnglishInput& zEnglish) {
  const std::optional<std::size_t> count = zEnglish.AddWords(zFile);
  return count ? Print(std::to_string(*count) + " words added\n")
               : Complain(zEnglish.Complaint(), Failed);
}

/// Prints, records or sends the codes of text.
int SayCodes(const SayOptions& zOptions, const Conversion& zToCodes,
             const SayDataTranslator& zTranslator, const SettingsFile& zSettings, int zCount,
             char** zArguments) {
  if (zOptions.wantsCodes) {
    return PrintEach(zOptions,
                     [&](const std::string& zText) { return CodeListText(zToCodes(zText)); });
  }
  if (zOptions.wavFile) {
    return Record(zOptions, zToCodes, zTranslator, zSettings);
  }
  const SpeakerApplication application(zCount, zArguments);
  return Send(zOptions, zToCodes, zSettings);
}

/// Does what the options ask for.
int Say(const SayOptions& zOptions, const SettingsFile& zSettings, int zCount, char** zArguments) {
  const DictionaryStore dictionary(zSettings.Folder());
  CodeTable codeTable;
  codeTable.BuildCodeTable();
  const SayDataTranslator translator(codeTable, dictionary);
  if (zOptions.wantsCheck) {
    return Check(zOptions, translator);
  }
  EnglishInput english(codeTable, dictionary, translator);
  if ((zOptions.isEnglish || zOptions.wordList) && !english.IsAvailable()) {
    return Complain("this build cannot read English, because flite was missing when it was made",
                    Failed);
  }
  if (zOptions.wordList) {
    return AddWords(*zOptions.wordList, english);
  }
  const Conversion toSayData = [&](const std::string& zText) {
    return zOptions.isEnglish ? english.ToSayData(zText) : zText;
  };
  if (zOptions.wantsSayData) {
    return PrintEach(zOptions, toSayData);
  }
  const Conversion toCodes = [&](const std::string& zText) {
    return translator.MnemonicsToCodes(translator.ExpandSayData(toSayData(zText)));
  };
  return SayCodes(zOptions, toCodes, translator, zSettings, zCount, zArguments);
}

}  // namespace

int main(int zCount, char** zArguments) {
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  const Terminal terminal(zCount, zArguments);
  const SayOptions options = ParseSayOptions(terminal.Arguments());
  if (!options.complaint.empty()) {
    std::cerr << "loquitor-say: " << options.complaint << "\n" << SayHelpText;
    return WrongUsage;
  }
  if (options.wantsHelp) {
    return Print(SayHelpText);
  }
  if (options.wantsVersion) {
    return Print("loquitor-say " LOQUITOR_VERSION "\n");
  }
  const SettingsFile settings(ChooseDataFolder(FindDataPlaces()));
  if (options.device) {
    return SetPort(*options.device, settings);
  }
  if (options.addedDevice) {
    return AddPort(*options.addedDevice, settings);
  }
  if (options.wantsPorts) {
    return Print(DescribePorts(settings, DevicesPresent()) + "\n");
  }
  return Say(options, settings, zCount, zArguments);
}
