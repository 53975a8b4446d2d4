// Converts between text and numbers, with the user's decimal separator (Host::DecimalSeparator)
// unless stated otherwise.
//
// A number is: blanks, an optional sign, digits with at most one decimal separator among them, an
// optional exponent ("E" or "e", an optional sign, digits), blanks. Currency signs, grouping,
// hexadecimal, "nan" and "inf" aren't accepted. An integer is: blanks, an optional sign, digits,
// blanks. Text that doesn't convert, or is out of range, gives nothing.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/Single.h"

namespace quillet {

[[nodiscard]] std::optional<double> ToDouble(std::string_view sText);

/// True if ToDouble converts the text, even if the number doesn't fit a Single.
[[nodiscard]] bool IsNumeric(std::string_view sText);

/// The nearest 32-bit float, ties to even; a number too small for one reads as 0.
[[nodiscard]] std::optional<Single> ToSingle(std::string_view sText);

// Numbers in a file, which may come from another machine: a point is accepted too, whatever the
// user's separator.
[[nodiscard]] std::optional<double> ToFileDouble(std::string_view sText);
[[nodiscard]] std::optional<Single> ToFileSingle(std::string_view sText);

[[nodiscard]] std::optional<std::int32_t> ToLong(std::string_view sText);     ///< 32 bits, signed
[[nodiscard]] std::optional<std::int16_t> ToInteger(std::string_view sText);  ///< 16 bits, signed
[[nodiscard]] std::optional<std::uint8_t> ToByte(std::string_view sText);     ///< 0 to 255

/// From a file: "True" or "False" in any case, or any number, 0 being false.
[[nodiscard]] std::optional<bool> ToBoolean(std::string_view sText);

/// The nearest whole number, an exact half to the even neighbour. Throws a Failure beyond 32 bits.
[[nodiscard]] std::int32_t RoundToLong(double fValue);

/// At most seven significant digits without trailing zeros, as "12.5", "1E+07" or "1E-05"; a tie
/// at the seventh digit rounds to even, and -0 is "0".
[[nodiscard]] std::string SingleText(Single fValue);
void AppendSingle(std::string& sText, Single fValue);

[[nodiscard]] constexpr std::string_view BooleanText(bool bValue) {
  return bValue ? "True" : "False";
}

}  // namespace quillet
