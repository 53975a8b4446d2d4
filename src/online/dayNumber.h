// Moments as the settings store them: days since 1899-12-30, the time of day as the fraction.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillet {

/// The present local time, to the second.
[[nodiscard]] double CurrentDayNumber();

/// Fifteen significant digits, with the user's decimal separator.
[[nodiscard]] std::string DayNumberText(double fDay);

/// The reverse; nothing if the text isn't a number or isn't in the years 100 to 9999.
[[nodiscard]] std::optional<double> ReadDayNumber(std::string_view sText);

/// The number of midnights between two moments; negative if the second is earlier.
[[nodiscard]] int DaysBetween(double fFrom, double fTo);

/// As "09:05:07 AM Saturday, November 14, 2026".
[[nodiscard]] std::string LongTimeAndDate(double fDay);

}  // namespace quillet
