#include "english/blank_entries.h"

#include <algorithm>

#include "core/say_data_runs.h"
#include "text/words.h"

namespace loquitor {

namespace {

/// The word of a line that is a blank entry; empty for any other line.
std::string_view BlankWord(std::string_view zLine) {
  const std::size_t equals = zLine.find('=');
  const bool isBlank = equals != std::string_view::npos &&
                       zLine.find_first_not_of(" \t", equals + 1) == std::string_view::npos;
  const std::string_view word = isBlank ? TrimBlanks(zLine.substr(0, equals)) : std::string_view();
  return word.starts_with(';') || word.starts_with('[') ? std::string_view() : word;
}

}  // namespace

std::optional<FilledEntries> FillBlankEntries(
    std::string_view zBoxText, const EnglishReader& zReader,
    const std::function<bool(std::size_t zBytesRead)>& zGoOn) {
  FilledEntries filled;
  for (std::size_t at = 0; at < zBoxText.size();) {
    const std::size_t end = std::min(zBoxText.find('\n', at), zBoxText.size());
    const std::string_view line = zBoxText.substr(at, end - at);
    const std::string_view word = BlankWord(line);
    const bool canSpeak = std::all_of(word.begin(), word.end(), IsNameCharacter);
    const std::string sounds = canSpeak ? zReader.ReadWord(word) : std::string();
    filled.text.append(sounds.empty() ? line : line.substr(0, line.find('=') + 1)).append(sounds);
    filled.count += sounds.empty() ? 0 : 1;
    if (!word.empty() && sounds.empty()) {
      filled.unread.emplace_back(word);
    }
    at = std::min(end + 1, zBoxText.size());
    filled.text.append(end < zBoxText.size() ? "\n" : "");
    if (!zGoOn(at)) {
      return std::nullopt;
    }
  }
  return filled;
}

}  // namespace loquitor
