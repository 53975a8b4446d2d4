// The figures of the what-if window in words.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>

#include "answers/Price.h"
#include "base/Single.h"

namespace quillet {

/// As in the summary: "$12.50".
[[nodiscard]] QString Money(Single fAmount);
[[nodiscard]] QString Money(Cents nPrice);

/// An amount as a plain number with the user's decimal separator: "12.50".
[[nodiscard]] QString PlainAmount(Single fAmount);

/// With a plus if it is above 0: "+2.65".
[[nodiscard]] QString SignedAmount(Single fAmount);

/// Cut to a whole number, as the summary cuts its own: "171 %"; a dash for none.
[[nodiscard]] QString Percent(const std::optional<double>& fPercent);

/// "21.3 %" of 213; "none" for none.
[[nodiscard]] QString RateInTenths(const std::optional<std::int32_t>& nTenths);

}  // namespace quillet
