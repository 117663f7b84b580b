#pragma once

#include "english/number_cursor.h"

namespace loquitor {

/// Whether `zCharacter` is the sign of a currency.
bool IsCurrencySign(char zCharacter);

/// $5.99, £1.5 million
Reading ReadMoney(Cursor zCursor);

/// 5 €
Reading ReadMoneyBeforeSign(Cursor zCursor);

}  // namespace loquitor
