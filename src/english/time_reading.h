#pragma once

#include "english/number_cursor.h"

namespace loquitor {

/// 3:30, 15:30:20, 9:00 am
Reading ReadTime(Cursor zCursor);

/// 3h 20m, 3h20
Reading ReadDuration(Cursor zCursor);

/// 5 pm, 5.30 pm
Reading ReadHour(Cursor zCursor);

/// 2024-12-31, 2024/12/31
Reading ReadIsoDate(Cursor zCursor);

/// 12/31/2024: the numbers in their order, because either of the first two may be the month.
Reading ReadSlashDate(Cursor zCursor);

/// 31.12.2024: the same, with a year of four digits.
Reading ReadPointDate(Cursor zCursor);

}  // namespace loquitor
