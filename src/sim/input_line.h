#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "sim/virtual_chip.h"

namespace loquitor {

/// One of the chip's inputs, 0 to 7, that changes.
struct InputChange {
  int input;
  bool isHigh;  ///< it goes high, or low
};

/// Reads a line such as "3h" or "3 low": the input's number, then a word that begins with h or l,
/// in any letter case. Nothing for every other line.
std::optional<InputChange> ParseInputLine(std::string_view zLine);

/// The byte that configures what this change does.
std::uint8_t EventByte(const InputChange& zChange, const VirtualChip& zChip);

/// A line of text that says what the change does, without a line end.
std::string DescribeChange(const InputChange& zChange, const VirtualChip& zChip);

}  // namespace loquitor
