#include "sim/input_line.h"

#include <string>

#include "core/eeprom.h"
#include "sim/configuration_words.h"

namespace loquitor {

std::optional<InputChange> ParseInputLine(std::string_view zLine) {
  constexpr std::string_view blanks = " \t\r";
  const auto skipBlanks = [&] {
    zLine.remove_prefix(std::min(zLine.find_first_not_of(blanks), zLine.size()));
  };
  skipBlanks();
  if (zLine.empty() || zLine.front() < '0' || zLine.front() > '7') {
    return std::nullopt;
  }
  const int input = zLine.front() - '0';
  zLine.remove_prefix(1);
  skipBlanks();
  const char level = zLine.empty() ? ' ' : zLine.front();
  const bool isHigh = level == 'h' || level == 'H';
  if (!isHigh && level != 'l' && level != 'L') {
    return std::nullopt;
  }
  return InputChange{input, isHigh};
}

std::uint8_t EventByte(const InputChange& zChange, const VirtualChip& zChip) {
  return zChip.Eeprom(eeprom::FirstInputEvent + 2 * zChange.input + (zChange.isHigh ? 0 : 1));
}

std::string DescribeChange(const InputChange& zChange, const VirtualChip& zChip) {
  return "input " + std::to_string(zChange.input) +
         (zChange.isHigh ? " goes high: " : " goes low: ") +
         EventWords(DecodeEvent(EventByte(zChange, zChip)));
}

}  // namespace loquitor
