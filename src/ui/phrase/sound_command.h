#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace loquitor {

struct PaletteMember;

/// Whether a code-table index is that of a note.
bool IsNote(std::int16_t zCode);

/// The number at the start of a value box's text (text/number_text.h), rounded to the nearest with
/// halves to even, as the byte that is sent. 0 when there is no number; nothing when it is outside
/// 0 to 255.
std::optional<std::uint8_t> ValueByte(std::string_view zBoxText);

/// The code string of `zCode` (0 to 255), followed by `zValue` if there is one.
std::string SoundCodes(std::int16_t zCode, std::optional<std::uint8_t> zValue = std::nullopt);

/// The question before the chip is told to wait; lines joined by CR LF.
QString WaitNotice();

/// The message for a value box whose number is outside 0 to 255.
QString ValueNotice(const PaletteMember& zMember);

}  // namespace loquitor
