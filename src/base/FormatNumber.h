// Numbers as the user reads them.
#pragma once

#include <string>
#include <string_view>

#include "base/Single.h"

namespace quillet {

/// A number by a pattern such as "0", "0.00", "000" or "#,##0.00": "0" is a digit that is always
/// shown, "#" one that is shown if needed, a "," between digits groups by thousands, and the text
/// before and after the digits is copied. An exact half, judged on the value of the float itself,
/// goes away from zero. A value that rounds to zero has no minus sign. A pattern without digits
/// gives its own text, an empty one SingleText. At most twelve decimals are worked out.
[[nodiscard]] std::string FormatNumber(Single fValue, std::string_view sPattern);

}  // namespace quillet
