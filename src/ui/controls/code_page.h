#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace loquitor {

// Texts of the boxes are Unicode. Bytes of the files and of the line are Windows-1252, in which the
// five unassigned bytes stand for the control characters of the same number. These functions
// convert between the two.

/// The text of `zBytes`. Every byte has a character of its own.
QString ToQString(std::string_view zBytes);

/// The bytes of `zText`; the inverse of ToQString. Leaves out characters that the code page cannot
/// hold. The boxes refuse these characters.
std::string ToBytes(const QString& zText);

/// Whether the code page has a byte for every character of `zText`.
bool CanHold(const QString& zText);

}  // namespace loquitor
