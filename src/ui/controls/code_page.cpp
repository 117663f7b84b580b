#include "ui/controls/code_page.h"

#include <algorithm>

#include "text/windows_1252.h"

namespace loquitor {
namespace {

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
