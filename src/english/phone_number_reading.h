#pragma once

#include "english/number_cursor.h"

namespace loquitor {

/// +49 30 123456, +1 (555) 123-4567: a plus sign, then 7 to 15 digits in groups.
Reading ReadInternationalNumber(Cursor zCursor);

/// 555) 123-4567 and 555.123.4567, without the bracket before them
Reading ReadAmericanNumber(Cursor zCursor);

/// 555-1234, 030 123456: digits in groups.
Reading ReadDigitGroups(Cursor zCursor);

}  // namespace loquitor
