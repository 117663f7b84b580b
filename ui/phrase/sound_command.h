#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/code_table.h"
#include "ui/phrase/palette_table.h"

namespace loquitor {

/// The codes that the palette treats in a way of their own.
namespace palette_code {
inline constexpr std::int16_t Wait = 16;
inline constexpr std::int16_t Pitch = 22;
inline constexpr std::int16_t Repeat = 26;
inline constexpr std::int16_t Reset = 31;
}  // namespace palette_code

/// The code-table index that a member stands for; from CodeTable::FirstNote on it is a note.
std::int16_t CodeOf(const CodeTable& zCodeTable, const PaletteMember& zMember);

/// Whether a code-table index stands for a note.
bool IsNote(std::int16_t zCode);

/// The number at the start of a value box's text as the byte that is sent, or nothing when it lies
/// outside 0 to 255.
std::optional<std::uint8_t> ValueByte(std::string_view zBoxText);

/// The prefix of a click: `zControlCodes` when `zIsApplied`, else nothing. While
/// `zSkipControlsOnce` is set there is none either, and the flag is cleared.
std::string TakePrefix(bool& zSkipControlsOnce, bool zIsApplied, std::string_view zControlCodes);

/// The codes that a click on the member sends behind the prefix: its code, followed by the value of
/// its box when it has one; for a note the pitch code and the note's pitch. Nothing when the value
/// of the box (`zBoxText`, ignored for members without box) lies outside 0 to 255.
std::optional<std::string> SoundCodes(const CodeTable& zCodeTable, const PaletteMember& zMember,
                                      std::string_view zBoxText);

/// The text that a double click on the member inserts: its mnemonic, and for a member with a value
/// box a blank, a backslash and the box's text as it stands.
std::string InsertedText(const PaletteMember& zMember, std::string_view zBoxText);

/// What is asked before the chip is told to wait, lines joined by CR LF.
QString WaitNotice();

/// What is said when the value box of the member holds a number outside 0 to 255.
QString ValueNotice(const PaletteMember& zMember);

}  // namespace loquitor
