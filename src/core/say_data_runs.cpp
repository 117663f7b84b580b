#include "core/say_data_runs.h"

#include <optional>

#include "text/letters.h"

namespace loquitor {
namespace {

/// The kind of run that `zCharacter` belongs to; nothing for an ignored character.
std::optional<SayDataRun::Kind> KindOf(char zCharacter) {
  if (IsNameCharacter(zCharacter) || zCharacter == '\\') {
    return SayDataRun::Kind::Word;
  }
  if (zCharacter == ' ') {
    return SayDataRun::Kind::Spaces;
  }
  return zCharacter == ',' ? std::make_optional(SayDataRun::Kind::Commas) : std::nullopt;
}

}  // namespace

bool IsNameCharacter(char zCharacter) {
  return IsLetter(zCharacter) || IsDigit(zCharacter) || zCharacter == '#';
}

bool SayDataRuns::Next(SayDataRun& zRun) {
  zRun.characters.clear();
  for (; !rest_.empty(); rest_.remove_prefix(1)) {
    const auto kind = KindOf(rest_.front());
    if (!kind) {
      continue;
    }
    if (zRun.characters.empty()) {
      zRun.kind = *kind;
      zRun.start = Position();
    } else if (kind != zRun.kind) {
      return true;
    }
    zRun.characters += rest_.front();
    zRun.end = Position() + 1;
  }
  return !zRun.characters.empty() && zRun.kind != SayDataRun::Kind::Spaces;
}

}  // namespace loquitor
