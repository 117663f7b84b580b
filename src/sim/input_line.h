#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "sim/virtual_chip.h"

namespace loquitor {

/// A change of one of the chip's inputs.
struct InputChange {
  int input;    ///< 0 to 7
  bool isHigh;  ///< true when it goes high, false when it goes low
};

/// Reads a line such as "3h" or "3 low": the number of an input, then h or l in either case. Blanks
/// before each are skipped, and what follows is ignored. Nothing for every other line.
std::optional<InputChange> ParseInputLine(std::string_view zLine);

/// The byte in the chip's EEPROM that configures what the change does.
std::uint8_t EventByte(const InputChange& zChange, const VirtualChip& zChip);

/// One line of text that says what the change does, without a line end.
std::string DescribeChange(const InputChange& zChange, const VirtualChip& zChip);

}  // namespace loquitor
