#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace loquitor {

/// The one place where texts of the boxes (Unicode) and bytes of the files and the line meet:
/// Windows-1252 in its one-to-one form, where the five unassigned bytes are their control
/// characters.

/// The text of `zBytes`. Every byte has a character of its own.
QString ToQString(std::string_view zBytes);

/// The bytes of `zText`; the inverse of ToQString. Characters that the code page cannot hold are
/// left out: boxes refuse them (see CanHold) before they get here.
std::string ToBytes(const QString& zText);

/// Whether the code page has a byte for every character of `zText`.
bool CanHold(const QString& zText);

}  // namespace loquitor
