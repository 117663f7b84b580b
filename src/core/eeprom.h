#pragma once

namespace loquitor {

/// The layout of the chip's EEPROM, by location (docs/wire-format.md).
namespace eeprom {
inline constexpr int Size = 256;
inline constexpr int PhraseCount = 16;   ///< location n holds where phrase n begins
inline constexpr int PhrasesEnd = 235;   ///< the first location after the codes of the phrases
inline constexpr int EndOfPhrase = 255;  ///< ends the codes of a phrase; as its beginning: empty
inline constexpr int Detune = 235;
inline constexpr int PowerUp = 237;  ///< the event byte of power-up and reset
inline constexpr int InputsAndOutputs = 238;
inline constexpr int OutputStartAndNode = 239;
inline constexpr int FirstInputEvent = 240;  ///< of input n: 240 + 2n for high, 241 + 2n for low
}  // namespace eeprom

/// The bits of an event byte.
namespace event_bit {
inline constexpr int Phrase = 0x0F;  ///< the number of the phrase
inline constexpr int NoRestart = 0x10;
inline constexpr int Call = 0x20;
inline constexpr int NoClear = 0x40;
inline constexpr int NoPlay = 0x80;
}  // namespace event_bit

}  // namespace loquitor
