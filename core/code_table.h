#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

namespace loquitor {

/// The codes of the chip and their mnemonics: entries 0 to 255 are chip codes, 301 to 352 notes
/// (300 + 20 x (octave - 1) + position 1 to 12 from C to B). Entries without a mnemonic are empty.
/// Empty until BuildCodeTable, read-only afterwards.
class CodeTable {
 public:
  static constexpr std::int16_t EntryCount = 401;
  static constexpr std::int16_t NotFound = 401;   ///< result of GetCodeIndex for no match
  static constexpr std::int16_t FirstNote = 256;  ///< indexes from here on are no chip codes

  /// Fills the table.
  void BuildCodeTable();

  /// The index of the entry that equals `zMnemonic`, backslash included, in any letter case (A to
  /// Z), or NotFound.
  std::int16_t GetCodeIndex(std::string_view zMnemonic) const;

  /// The mnemonic of a chip code with its backslash, or the empty text when it has none.
  std::string GetCodeMnemonic(std::uint8_t zCode) const;

  /// The pitch in hertz (the byte sent after code 22) of a note entry; 0 for every other index.
  std::uint8_t GetNotePitch(std::int16_t zNoteIndex) const;

 private:
  std::array<std::string, EntryCount> entries_;
  std::unordered_map<std::string, std::int16_t> indexes_;
};

}  // namespace loquitor
