// Between text and numbers, by the user's decimal separator (Host::DecimalSeparator) unless said.
//
// A number is: blanks, an optional sign, digits with at most one decimal separator among them, an
// optional exponent ("E" or "e", an optional sign, digits), blanks. Currency signs, grouping,
// hexadecimal, "nan" and "inf" are no numbers. An integer is: blanks, an optional sign, digits,
// blanks. What doesn't convert, or is out of range, gives nothing.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/Single.h"

namespace quillet {

[[nodiscard]] std::optional<double> ToDouble(std::string_view sText);

/// True if ToDouble converts the text, so also for numbers beyond a Single.
[[nodiscard]] bool IsNumeric(std::string_view sText);

/// The nearest 32-bit float, a tie to even; a number too small for one reads as 0.
[[nodiscard]] std::optional<Single> ToSingle(std::string_view sText);

// Numbers of a file, which may come from elsewhere: also with a point, whatever the user's
// separator.
[[nodiscard]] std::optional<double> ToFileDouble(std::string_view sText);
[[nodiscard]] std::optional<Single> ToFileSingle(std::string_view sText);

[[nodiscard]] std::optional<std::int32_t> ToLong(std::string_view sText);     ///< 32 bits, signed
[[nodiscard]] std::optional<std::int16_t> ToInteger(std::string_view sText);  ///< 16 bits, signed
[[nodiscard]] std::optional<std::uint8_t> ToByte(std::string_view sText);     ///< 0 to 255

/// Of a file: "True" or "False" in any case, or any number, 0 being false.
[[nodiscard]] std::optional<bool> ToBoolean(std::string_view sText);

/// The nearest whole number, an exact half to the even neighbour. Beyond 32 bits is a Failure.
[[nodiscard]] std::int32_t RoundToLong(double fValue);

/// At most seven significant digits without trailing zeros, as "12.5", "1E+07" or "1E-05"; a tie
/// at the seventh digit goes to the even one, and -0 is "0".
[[nodiscard]] std::string SingleText(Single fValue);
void AppendSingle(std::string& sText, Single fValue);

[[nodiscard]] constexpr std::string_view BooleanText(bool bValue) {
  return bValue ? "True" : "False";
}

/// A number by a pattern such as "0", "0.00", "000" or "#,##0.00": "0" is a digit that always
/// stands, "#" one that stands if needed, a "," between digits asks for grouping by thousands, and
/// what stands before and behind the digits is copied. An exact half, judged on the value of the
/// float itself, goes away from zero. What rounds to zero has no minus sign. A pattern without
/// digits gives its own text, an empty one SingleText. At most twelve decimals are worked out.
[[nodiscard]] std::string FormatNumber(Single fValue, std::string_view sPattern);

}  // namespace quillet
