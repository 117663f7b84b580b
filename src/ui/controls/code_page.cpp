#include "ui/controls/code_page.h"

#include <algorithm>
#include <array>

namespace loquitor {
namespace {

/// The characters of the bytes 0x80 to 0x9F. Every other byte is the character of the same number.
/// Source: the Windows-1252 table of the Unicode consortium ("best fit" for the unassigned five).
constexpr std::array<char16_t, 32> HighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr int NoByte = -1;

/// The byte of a character, or NoByte.
int ByteOf(char16_t zCharacter) {
  if (zCharacter < 0x80 || (zCharacter >= 0xA0 && zCharacter <= 0xFF)) {
    return zCharacter;
  }
  const auto found = std::find(HighControls.begin(), HighControls.end(), zCharacter);
  return found == HighControls.end() ? NoByte
                                     : 0x80 + static_cast<int>(found - HighControls.begin());
}

char16_t CharacterOf(char zByte) {
  const auto byte = static_cast<unsigned char>(zByte);
  return byte >= 0x80 && byte < 0xA0 ? HighControls[byte - 0x80U] : byte;
}

}  // namespace

QString ToQString(std::string_view zBytes) {
  QString text(static_cast<qsizetype>(zBytes.size()), Qt::Uninitialized);
  std::transform(zBytes.begin(), zBytes.end(), text.begin(),
                 [](char zByte) { return QChar(CharacterOf(zByte)); });
  return text;
}

std::string ToBytes(const QString& zText) {
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(zText.size()));
  for (const QChar character : zText) {
    const int byte = ByteOf(character.unicode());
    if (byte != NoByte) {
      bytes.push_back(static_cast<char>(byte));
    }
  }
  return bytes;
}

bool CanHold(const QString& zText) {
  return std::all_of(zText.begin(), zText.end(),
                     [](QChar zCharacter) { return ByteOf(zCharacter.unicode()) != NoByte; });
}

}  // namespace loquitor
