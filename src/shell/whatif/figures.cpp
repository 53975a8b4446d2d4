#include "shell/whatif/figures.h"

#include <cmath>

#include "base/FormatNumber.h"
#include "prices/money.h"

namespace quillet {

QString Money(Single fAmount) {
  return QString::fromStdString(FormatMoney(fAmount));
}

QString Money(Cents nPrice) {
  return Money(PriceOf(nPrice));
}

QString PlainAmount(Single fAmount) {
  return QString::fromStdString(FormatNumber(fAmount, "0.00"));
}

QString SignedAmount(Single fAmount) {
  constexpr double kRoundsToCent = 0.005;
  return (fAmount >= kRoundsToCent ? "+" : "") + PlainAmount(fAmount);
}

QString Percent(const std::optional<double>& fPercent) {
  return fPercent ? QString::number(std::trunc(*fPercent) + 0.0, 'f', 0) + " %" : "–";
}

QString RateInTenths(const std::optional<std::int32_t>& nTenths) {
  return nTenths ? QString::fromStdString(FormatNumber(*nTenths / 10.0, "0.0")) + " %" : "none";
}

}  // namespace quillet
