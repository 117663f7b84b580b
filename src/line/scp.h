#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace loquitor {

/// Texts of the serial control protocol (docs/wire-format.md). Each character is one byte on the
/// line.
namespace scp {
inline constexpr std::string_view Node = "\\0";     ///< escape and node number 0
inline constexpr std::string_view Reset = "\\0RX";  ///< reset the chip
inline constexpr std::string_view Test = "\\0VX";   ///< test the connection; also ends long writes
inline constexpr std::string_view StoreConfiguration{"\\0W\0\0\0\0\0", 8};  ///< W and five codes 0
inline constexpr std::string_view SyncCharacter = "U";  ///< lets the chip find the baud rate
inline constexpr int MemoryHighAddress = 32;  ///< the high part of the address of every location
}  // namespace scp

/// `zValue` as exactly two upper-case hexadecimal digits.
std::string GetTwoDigitHex(std::uint8_t zValue);

/// Writes `zValue` to memory location `zLocation` (0 to 255): the location in decimal, the high
/// address, the value in two hexadecimal digits. For example \03J32HFFN. X is not part of it,
/// because many such groups may follow each other.
std::string MemoryWriteGroup(int zLocation, std::uint8_t zValue);

/// Writes `zValue` to synthesizer register `zRegister` (0 to 15): both in decimal, the value after
/// a minus sign or a blank. For example \07J 96NX.
std::string RegisterWrite(int zRegister, int zValue);

/// What stops the chip: reset, then the codes 31 and 0.
std::string StopSequence();

/// What tests the connection: code 31, then \0VX.
std::string ConnectionTest();

}  // namespace loquitor
