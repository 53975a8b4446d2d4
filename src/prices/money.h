// How amounts are shown.
#pragma once

#include <cstdint>
#include <string>

#include "base/Single.h"

namespace quillet {

/// The currency symbol and the amount by the schedule's format: "$12.50", "$-5.00". Without a
/// schedule it is "£" and two decimals. An exact half goes away from zero (FormatNumber).
[[nodiscard]] std::string FormatMoney(Single fValue);

/// The schedule's currency symbol, or an empty text.
[[nodiscard]] std::string CurrencySymbolText();

/// How many smallest units make one of the currency: 10 to the power of the number of characters
/// after the first "." of the schedule's format, so 100 for "0.00"; 1 without one.
[[nodiscard]] std::int32_t CurrencyUnitsPerMajor();

}  // namespace quillet
