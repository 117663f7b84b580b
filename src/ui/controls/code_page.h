#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace loquitor {

/// Converts between the texts of the boxes (Unicode) and the bytes of files and line: Windows-1252
/// in which the five unassigned bytes are the control characters of the same number. Nothing else
/// converts.

/// The text of `zBytes`. Every byte has a character of its own.
QString ToQString(std::string_view zBytes);

/// The bytes of `zText`; the inverse of ToQString. Leaves out characters that the
/// code page cannot hold; the boxes refuse these (see CanHold).
std::string ToBytes(const QString& zText);

/// Whether the code page has a byte for every character of `zText`.
bool CanHold(const QString& zText);

}  // namespace loquitor
