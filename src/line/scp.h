#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace loquitor {

/// Texts of the serial control protocol (docs/wire-format.md). Every string is bytes as they go
/// out.
namespace scp {
inline constexpr std::string_view Node = "\\0";     ///< escape and node number 0
inline constexpr std::string_view Reset = "\\0RX";  ///< reset the chip
inline constexpr std::string_view Test = "\\0VX";   ///< connection test; also closes long writes
inline constexpr std::string_view StoreConfiguration{"\\0W\0\0\0\0\0", 8};  ///< W and five code 0
inline constexpr std::string_view SyncCharacter = "U";
inline constexpr int MemoryHighAddress = 32;  ///< the high part of every memory location
}  // namespace scp

/// `zValue` as exactly two upper-case hexadecimal digits.
std::string GetTwoDigitHex(std::uint8_t zValue);

/// One memory write group: location (0 to 255) in decimal, high address 32, value in two
/// hexadecimal digits, for example \03J32HFFN.
std::string MemoryWriteGroup(int zLocation, std::uint8_t zValue);

/// One synth register write: register and value in decimal, the value with its sign place (a blank
/// for zero and above), closed by X, for example \07J 96NX.
std::string RegisterWrite(int zRegister, int zValue);

/// The stop sequence of the phrase, EEPROM and event windows: reset, then the codes 31 and 0.
std::string StopSequence();

/// The connection test of the main window: code 31, then \0VX.
std::string ConnectionTest();

}  // namespace loquitor
