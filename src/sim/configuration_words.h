#pragma once

#include <cstdint>
#include <string>

#include "voice/chip_sound.h"

namespace loquitor {

/// What the chip does at an event, in words, such as "plays phrase 4, clears the buffer".
std::string EventWords(const EventAction& zEvent);

/// What the value of a configuration byte means, in words. `zLocation` is its location in the
/// EEPROM, from 237 to 255; the result is empty for every other location. docs/wire-format.md has
/// the layout of these bytes.
std::string ConfigurationWords(int zLocation, std::uint8_t zValue);

}  // namespace loquitor
