#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "ui/controls/twips.h"

namespace loquitor {

/// A caption of up to seven ASCII characters that can be put together at compile time.
class PaletteCaption {
 public:
  constexpr PaletteCaption() = default;
  constexpr PaletteCaption(const char* zText) { Append(zText); }  // NOLINT: rows read better

  constexpr PaletteCaption& Append(std::string_view zText) {
    for (const char character : zText) {
      characters_[length_++] = character;
    }
    return *this;
  }
  constexpr std::string_view Text() const { return {characters_.data(), length_}; }

  /// The caption as a text that ends with a NUL; lives as long as the caption.
  constexpr const char* CString() const { return characters_.data(); }

 private:
  std::array<char, 8> characters_{};
  std::size_t length_ = 0;
};

/// One clickable member of the sound palette. Its caption says what it does: a mnemonic of the code
/// table without the backslash, in any letter case.
struct PaletteMember {
  int index;                  ///< in the control group Command1
  PaletteCaption caption;     ///< for example "IY", "Wait", "NTC#1"
  const char* frame;          ///< the name of the frame that holds it
  TwipRect place;             ///< in the frame
  const char* tooltip = "";   ///< empty for most sound effects and for the notes; see TooltipOf
  const char* valueBox = "";  ///< name of the box with the value that follows its code, or empty
};

inline constexpr std::size_t PaletteMemberCount = 183;
inline constexpr std::size_t PaletteIndexCount = 198;  ///< indexes are 0 to 197, with gaps

/// The palette, frame by frame. Each frame goes from its top left to its bottom right corner, row
/// by row or column by column.
extern const std::array<PaletteMember, PaletteMemberCount> PaletteTable;

/// The mnemonic of a member with its backslash, in the caption's letter case.
std::string MnemonicOf(const PaletteMember& zMember);

/// The tooltip of a member (ASCII). That of a note names the note. Empty when there is none.
std::string TooltipOf(const PaletteMember& zMember);

}  // namespace loquitor
