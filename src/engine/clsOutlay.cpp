#include "engine/clsOutlay.h"

#include "prices/clsPrices.h"

namespace quillet {

Single clsOutlay::DoCalc() const {
  Single fTotal = m_fOutlay * m_lQuantity;
  Single fRate;
  if (m_bAddTax && Prices().GetPrice("LocalTax", fRate, kShopNone)) {
    fTotal = (fRate / 100) * fTotal + fTotal;
  }
  return fTotal;
}

}  // namespace quillet
