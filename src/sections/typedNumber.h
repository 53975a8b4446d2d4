// A number as users type and paste it, by their own locale (Host::Numbers).
//
// It may be surrounded, in any order, by a sign, a currency symbol and blanks, including no-break
// ones. The digits before the decimal separator may be grouped, all of them and as the locale
// groups them: where a comma groups, "1,234" is a number, but "1,2", "1234,567" and "0,500" aren't.
#pragma once

#include <optional>
#include <string_view>

#include "base/Single.h"

namespace quillet {

/// The value of the text; nothing if it isn't a number or is too large for a Single. `sDecimal` is
/// accepted as the decimal separator besides the user's own. A currency symbol, the schedule's or
/// the user's, is accepted if `bMoney`.
[[nodiscard]] std::optional<Single> ToTypedSingle(std::u16string_view sText,
                                                  std::u16string_view sDecimal, bool bMoney);

}  // namespace quillet
