// Say Data compared with a plain reference, which expands recursively and splits at backslashes. An
// input is Say Data, ended by NUL, then the entries of the dictionary.

#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "core/expansion.h"
#include "core/say_data.h"

namespace {

using namespace loquitor;

/// The bound of an expansion, small so that entries that double at every level end fast.
constexpr std::size_t MaxLength = std::size_t{4} << 10;

void Require(bool zHolds, const char* zWhat) {
  if (!zHolds) {
    std::cerr << "not as the reference: " << zWhat << '\n';
    std::abort();
  }
}

std::string Upper(std::string zText) {
  for (char& character : zText) {
    character = static_cast<char>(std::toupper(static_cast<unsigned char>(character)));
  }
  return zText;
}

/// Gives up, with isComplete false, where the real expansion may reach one of its bounds.
class PlainExpansion {
 public:
  explicit PlainExpansion(const EntryLookUp& zEntryOf) : entryOf_(zEntryOf) {}

  std::string Expand(const std::string& zText) {
    std::string output;
    std::string run;  // of word characters, of blanks or of commas
    for (const char character : zText + " ") {
      if (KindOf(character) == 0) {
        continue;
      }
      if (!run.empty() && KindOf(run[0]) != KindOf(character)) {
        output += Close(run);
        run.clear();
      }
      run += character;
    }
    isComplete = isComplete && output.size() < MaxLength;
    return output;
  }

  bool isComplete = true;

 private:
  static int KindOf(char zCharacter) {
    const bool isAscii = static_cast<unsigned char>(zCharacter) < 128;
    const bool isWord =
        isAscii && (std::isalnum(zCharacter) != 0 || zCharacter == '\\' || zCharacter == '#');
    return isWord ? 'w' : zCharacter == ' ' || zCharacter == ',' ? zCharacter : 0;
  }

  std::string Close(const std::string& zRun) {
    if (zRun[0] == ' ') {
      return zRun.size() == 1 ? "" : zRun.size() == 2 ? " \\P6" : " \\P4 \\P1";
    }
    if (zRun[0] == ',') {
      std::string pauses;
      for (std::size_t i = 0; i < zRun.size(); ++i) {
        pauses += " \\P2";
      }
      return pauses;
    }
    return zRun[0] == '\\' ? zRun : ExpandWord(zRun);
  }

  std::string ExpandWord(const std::string& zWord) {
    const std::string entry = entryOf_(zWord);
    work_ += 32 + entry.size();
    isComplete = isComplete && work_ < MaxLength && open_.size() < 200;
    if (!isComplete || !open_.insert(Upper(zWord)).second) {
      return "";
    }
    const std::string result = Expand(entry);
    open_.erase(Upper(zWord));
    return result;
  }

  const EntryLookUp& entryOf_;
  std::set<std::string> open_;
  std::size_t work_ = 0;
};

std::vector<std::string> SplitAtBackslashes(const std::string& zText) {
  std::vector<std::string> tokens{""};
  for (const char character : Upper(zText)) {
    const bool isKept = (character >= 'A' && character <= 'Z') ||
                        (character >= '0' && character <= '9') || character == '#';
    if (isKept) {
      tokens.back() += character;
    } else {
      tokens.emplace_back("");
    }
  }
  return tokens;
}

std::string PlainCodes(const std::string& zText, const CodeTable& zTable) {
  std::string codes;
  for (const std::string& token : SplitAtBackslashes(zText)) {
    char* end = nullptr;
    std::string number = token.substr(0, token.find_first_not_of("0123456789ED"));
    for (char& character : number) {
      character = character == 'D' ? 'E' : character;
    }
    const double value = std::strtod(number.c_str(), &end);
    const std::int16_t index = zTable.GetCodeIndex("\\" + token);
    if (token == "0" || (value > 0 && value <= 255)) {
      codes += static_cast<char>(static_cast<unsigned char>(value));
    } else if (value == 0 && index < 256) {
      codes += static_cast<char>(index);
    } else if (value == 0 && index < CodeTable::NotFound) {
      codes += '\x16';
      codes += static_cast<char>(zTable.GetNotePitch(index));
    }
  }
  return codes;
}

/// The first entry of each word, by its upper-case form.
std::map<std::string, std::string> EntriesOf(const std::string& zLines) {
  std::map<std::string, std::string> entries;
  std::istringstream lines(zLines);
  for (std::string line; std::getline(lines, line);) {
    const std::size_t equals = line.find('=');
    if (equals != std::string::npos) {
      entries.emplace(Upper(line.substr(0, equals)), line.substr(equals + 1));
    }
  }
  return entries;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* zData, std::size_t zSize) {
  static const DictionaryStore noDictionary("");
  static const CodeTable table = [] {
    CodeTable built;
    built.BuildCodeTable();
    return built;
  }();
  static const SayDataTranslator translator(table, noDictionary);
  const std::string input(zData, zData + zSize);
  const std::size_t end = std::min(input.find('\0'), input.size());
  const std::string sayData = input.substr(0, end);
  const auto entries = EntriesOf(input.substr(std::min(end + 1, zSize)));
  const EntryLookUp entryOf = [&entries](std::string_view zWord) {
    const auto found = entries.find(Upper(std::string(zWord)));
    return found == entries.end() ? std::string() : found->second;
  };

  const std::string text = ExpandWords(sayData, entryOf, MaxLength);
  PlainExpansion expansion(entryOf);
  const std::string expected = expansion.Expand(sayData);
  Require(text.size() <= MaxLength, "bound of the expansion");
  Require(!expansion.isComplete || text == expected, "expansion");
  Require(translator.MnemonicsToCodes(text) == PlainCodes(text, table), "codes");
  // Text that no expansion makes must do no harm. Its first token loses its first letter.
  static_cast<void>(translator.MnemonicsToCodes(input));
  Require(translator.MnemonicsToCodes("\\" + input) == PlainCodes(input, table),
          "codes of any text");
  return 0;
}
