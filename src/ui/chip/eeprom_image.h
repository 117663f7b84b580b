#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "core/eeprom.h"

namespace loquitor {

class SayDataTranslator;

/// The most bytes that an image may have.
inline constexpr std::size_t MaxImageLength = eeprom::PhrasesEnd;

/// The code string of a slot, without the byte that ends it; nothing for an empty slot.
using SlotCodes = std::optional<std::string>;

/// The codes of a slot's Say Data. Nothing when it expands to the empty text. The empty string when
/// it expands to mnemonics that give no code.
SlotCodes TranslateSlot(const SayDataTranslator& zTranslator, std::string_view zSayData);

/// The bytes for location 0 onward: 16 start offsets (position in the image modulo 256, 255 for an
/// empty slot), then the codes of each filled slot in slot order, each followed by 255.
std::string BuildEepromImage(const std::array<SlotCodes, eeprom::PhraseCount>& zSlots);

/// The command string that writes `zImage` (at most MaxImageLength bytes) to location 0 onward, and
/// ends with the connection test.
std::string EepromWriteString(std::string_view zImage);

/// How many locations are in use when an image of `zImageLength` bytes is stored, with those of the
/// detune and the configuration.
constexpr std::size_t UsedLocations(std::size_t zImageLength) {
  return zImageLength + (eeprom::Size - MaxImageLength);
}

/// For example "40 used of 256".
std::string UsageText(std::size_t zUsed);

/// How full the EEPROM is: Roomy up to 240 locations, Tight up to 256, Overfull above.
enum class UsageBand { Roomy, Tight, Overfull };
UsageBand BandOfUsage(std::size_t zUsed);

}  // namespace loquitor
