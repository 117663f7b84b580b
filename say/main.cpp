#include <QCoreApplication>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "core/code_table.h"
#include "core/dictionary_store.h"
#include "core/say_data.h"
#include "link/program_folder.h"
#include "link/settings_file.h"
#include "say/say_options.h"
#include "say/speaker.h"

namespace {

using namespace loquitor;

enum ExitStatus { Done = 0, Failed = 1, WrongUsage = 2 };

int Complain(std::string_view zMessage, ExitStatus zStatus) {
  std::cerr << "loquitor-say: " << zMessage << std::endl;
  return zStatus;
}

/// Writes out what standard output still holds. The exit status of a program that did all else.
int FinishOutput() {
  return std::cout.flush() ? Done : Complain("cannot write to standard output", Failed);
}

/// Hands each Say Data text to `zHandle` until it returns false: the text of the arguments, or each
/// line of standard input. False when that could not be read to its end.
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

int PrintCodes(const SayOptions& zOptions, const SayDataTranslator& zTranslator) {
  const bool isRead = ForEachText(zOptions, [&](const std::string& zText) {
    std::cout << CodeListText(zTranslator.MnemonicsToCodes(zTranslator.ExpandSayData(zText)))
              << '\n';
    const bool mayWaitForInput = std::cin.rdbuf()->in_avail() <= 0;
    if (mayWaitForInput) {
      std::cout.flush();
    }
    return static_cast<bool>(std::cout);
  });
  const int status = FinishOutput();
  return isRead ? status : ComplainOfInput();
}

int Send(const SayOptions& zOptions, const SayDataTranslator& zTranslator,
         const SettingsFile& zSettings) {
  Speaker speaker(zSettings, zOptions.isForced);
  bool isSaid = true;
  const bool isRead = ForEachText(zOptions, [&](const std::string& zText) {
    isSaid = speaker.Say(zTranslator.MnemonicsToCodes(zTranslator.ExpandSayData(zText)));
    return isSaid;
  });
  speaker.Finish();  // what was said before a complaint still goes out
  if (!isSaid) {
    return Complain(speaker.Complaint(), Failed);
  }
  return isRead ? Done : ComplainOfInput();
}

}  // namespace

int main(int zCount, char** zArguments) {
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  const SayOptions options = ParseSayOptions({zArguments + 1, zArguments + zCount});
  if (!options.complaint.empty()) {
    std::cerr << "loquitor-say: " << options.complaint << "\n" << SayHelpText;
    return WrongUsage;
  }
  if (options.wantsHelp) {
    std::cout << SayHelpText;
    return FinishOutput();
  }
  const std::filesystem::path folder = ProgramFolder();
  const SettingsFile settings(folder);
  const DictionaryStore dictionary(folder);
  CodeTable codeTable;
  codeTable.BuildCodeTable();
  const SayDataTranslator translator(codeTable, dictionary);
  if (options.wantsCodes) {
    return PrintCodes(options, translator);
  }
  const QCoreApplication application(zCount, zArguments);
  return Send(options, translator, settings);
}
