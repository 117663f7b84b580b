#include "ui/phrase/say_data_places.h"

#include <algorithm>

#include "core/say_data_runs.h"

namespace loquitor {
namespace {

constexpr std::string_view Pauses = " ,";
constexpr std::string_view PausesAndBackslash = " ,\\";

bool IsInRun(char zCharacter) {
  return IsNameCharacter(zCharacter) || zCharacter == '\\';
}

/// Whether a word or a mnemonic is at this place, as far as the text that begins or ends there
/// says. Other characters than pauses are ignored.
template <typename Iterator>
bool IsRunNext(Iterator zFrom, Iterator zEnd) {
  const auto counts = [](char zCharacter) {
    return IsInRun(zCharacter) || Pauses.find(zCharacter) != std::string_view::npos;
  };
  const auto next = std::find_if(zFrom, zEnd, counts);
  return next != zEnd && IsInRun(*next);
}

}  // namespace

std::optional<WordPlace> WordAt(std::string_view zSayData, std::size_t zPosition) {
  SayDataRuns runs(zSayData);
  for (SayDataRun run; runs.Next(run) && run.start <= zPosition;) {
    const bool isWord = run.kind == SayDataRun::Kind::Word && run.characters.front() != '\\';
    if (isWord && zPosition <= run.end) {
      return WordPlace{run.characters, run.start, run.end - run.start};
    }
  }
  return std::nullopt;
}

TextSpan WholeWords(std::string_view zText, TextSpan zView, bool zIsCutAtStart, bool zIsCutAtEnd) {
  const std::size_t before = zText.substr(0, zView.start).find_last_of(Pauses);
  std::size_t start = before == std::string_view::npos ? 0 : before + 1;
  if (before == std::string_view::npos && zIsCutAtStart) {
    start = zText.find_first_of(PausesAndBackslash);
  }
  std::size_t end = zText.find_first_of(Pauses, zView.end);
  if (end == std::string_view::npos && zIsCutAtEnd) {
    end = zText.find_last_of(PausesAndBackslash);
  } else if (end == std::string_view::npos) {
    end = zText.size();
  }
  const bool isEmpty =
      start == std::string_view::npos || end == std::string_view::npos || end < start;
  return isEmpty ? TextSpan{0, 0} : TextSpan{start, end};
}

std::string SeparatedFrom(const TextAround& zAround, std::string zSayData) {
  if (IsInRun(zSayData.front()) && IsRunNext(zAround.before.rbegin(), zAround.before.rend())) {
    zSayData.insert(0, " ");
  }
  if (IsInRun(zSayData.back()) && IsRunNext(zAround.after.begin(), zAround.after.end())) {
    zSayData += ' ';
  }
  return zSayData;
}

}  // namespace loquitor
