#pragma once

#include <cstdint>
#include <string>

#include "voice/chip_sound.h"

namespace loquitor {

/// What the chip does at an event, in words: "plays phrase 4, clears the buffer".
std::string EventWords(const EventAction& zEvent);

/// What the value of an EEPROM location from 237 to 255 tells the chip to do, in words. The layout
/// of these bytes is in docs/wire-format.md. Empty for every other location.
std::string ConfigurationWords(int zLocation, std::uint8_t zValue);

}  // namespace loquitor
