// A number as users type and paste it, by their own locale (Host::Numbers).
//
// Around it may stand, in any order, a sign, a currency symbol and blanks, no-break ones too. The
// digits before the decimal separator may be grouped, all of them and as the locale groups them:
// where a comma groups, "1,234" is a number, and "1,2", "1234,567" and "0,500" are none.
#pragma once

#include <optional>
#include <string_view>

#include "base/Single.h"

namespace quillet {

/// What the text is worth, or nothing if it is no number or too large for a Single. `sDecimal` is
/// read as the decimal separator, beside the user's own. A currency symbol, the schedule's or the
/// user's, is taken if `bMoney`.
[[nodiscard]] std::optional<Single> ToTypedSingle(std::u16string_view sText,
                                                  std::u16string_view sDecimal, bool bMoney);

}  // namespace quillet
