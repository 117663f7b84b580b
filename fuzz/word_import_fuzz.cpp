// The word import, fed in pieces, compared with a plain reading of the whole list. Also the
// dictionary's text in the editor and back, sorted and cleaned. An input is the size of the pieces
// (one byte), then the bytes of the list.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "core/dictionary_text.h"
#include "core/word_import.h"

namespace {

using namespace loquitor;

void Require(bool zHolds, const char* zWhat) {
  if (!zHolds) {
    std::cerr << "not as it has to be: " << zWhat << '\n';
    std::abort();
  }
}

/// Every third word counts as known.
bool IsNew(std::string_view zWord) {
  return zWord.size() % 3 != 0;
}

/// The text that the import has to add, found letter by letter.
std::string PlainImport(std::string_view zList) {
  std::string added;
  std::string word;
  for (const char character : std::string(zList) + ' ') {
    const std::string_view capitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    const std::string_view letters = "abcdefghijklmnopqrstuvwxyz";
    const std::size_t capital = capitals.find(character);
    if (capital != std::string_view::npos) {
      word += letters[capital];
    } else if (letters.find(character) != std::string_view::npos) {
      word += character;
    } else {
      added += !word.empty() && IsNew(word) ? word + "=\n" : "";
      word.clear();
    }
  }
  return added;
}

void CheckImport(std::string_view zList, std::size_t zPiece) {
  WordImport import(IsNew);
  for (std::size_t at = 0; at < zList.size(); at += zPiece) {
    import.Feed(zList.substr(at, zPiece));
  }
  import.Finish();
  const std::string& added = import.AddedText();
  Require(added == PlainImport(zList), "the added text");
  Require(import.Count() == static_cast<std::size_t>(std::count(added.begin(), added.end(), '=')),
          "the number of words");
}

void CheckText(std::string_view zFile) {
  const std::string box = BoxTextFromFile(zFile);
  const std::string saved = FileBytesFromBox(box);
  Require(box.find('\r') == std::string::npos, "a box without carriage returns");
  Require(BoxTextFromFile(saved) == box + "\n", "what is saved reads back, and one line end");

  const std::string sorted = SortedText(saved);
  Require(SortedText(sorted) == sorted, "a sorted text stays as it is");
  const std::vector<std::string_view> lines = ReadLines(sorted);
  Require(std::is_sorted(lines.begin(), lines.end()), "lines in order");

  const std::string cleaned = CleanedText(saved);
  Require(cleaned.substr(0, 8) == "[words]\n", "a section header");
  Require(CleanedText(cleaned) == cleaned, "a cleaned text stays as it is");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* zData, std::size_t zSize) {
  if (zSize == 0) {
    return 0;
  }
  const std::string_view list(reinterpret_cast<const char*>(zData) + 1, zSize - 1);
  CheckImport(list, zData[0] + 1U);
  CheckText(list);
  return 0;
}
