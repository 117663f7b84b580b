#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

namespace loquitor {

/// The codes that the program treats in ways of their own.
namespace chip_code {
inline constexpr int Fast = 7;
inline constexpr int Slow = 8;
inline constexpr int Stress = 14;
inline constexpr int Relax = 15;
inline constexpr int Wait = 16;
inline constexpr int Soft = 18;
inline constexpr int Volume = 20;
inline constexpr int Speed = 21;
inline constexpr int Pitch = 22;
inline constexpr int Bend = 23;
inline constexpr int Repeat = 26;
inline constexpr int Call = 28;
inline constexpr int Play = 29;
inline constexpr int Delay = 30;
inline constexpr int Reset = 31;
}  // namespace chip_code

/// The codes of the chip and their mnemonics. Entries 0 to 255 are chip codes. Entries 301 to 352
/// are notes: the index is 300 + 20 x (octave - 1) + position, where the octave is 1 to 3 and the
/// position 1 to 12 from C to B. Entries without a mnemonic are empty. docs/say-data.md lists all
/// others.
class CodeTable {
 public:
  static constexpr std::int16_t EntryCount = 401;
  static constexpr std::int16_t NotFound = 401;   ///< result of GetCodeIndex for no match
  static constexpr std::int16_t CodeCount = 256;  ///< indexes below this are chip codes

  /// Fills the table, which is empty before. Call it once, before any other function.
  void BuildCodeTable();

  /// The index of the entry that equals `zMnemonic`, backslash included, in any letter case (A to
  /// Z), or NotFound.
  std::int16_t GetCodeIndex(std::string_view zMnemonic) const;

  /// The code string of one token: a backslash and the letters, digits and # after it. `\0` is code
  /// 0. A number from 1 to 255 at the start is that code. A mnemonic is its code; a note is two
  /// codes, 22 and its pitch. Empty for a number above 255 and for a name that no entry has.
  /// `zToken` must not be empty.
  std::string TokenCodes(std::string_view zToken) const;

  /// The mnemonic of a chip code with its backslash, or the empty text when it has none.
  std::string GetCodeMnemonic(std::uint8_t zCode) const;

  /// The pitch in hertz (the byte sent after code 22) of a note entry; 0 for every other index.
  std::uint8_t GetNotePitch(std::int16_t zNoteIndex) const;

 private:
  std::array<std::string, EntryCount> entries_;
  std::unordered_map<std::string, std::int16_t> indexes_;
};

/// True for the codes that are followed by one value byte.
bool TakesValue(int zCode);

}  // namespace loquitor
