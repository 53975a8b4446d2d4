// What the item cost, the prices of the listing, and how many there are.
#pragma once

#include <cstdint>
#include <string>

#include "base/Single.h"
#include "engine/fresh.h"

namespace quillet {

class clsOutlay {
 public:
  /// The total outlay: cost times quantity, and the local tax on it if m_bAddTax. A schedule
  /// without "LocalTax" means no tax.
  [[nodiscard]] Single DoCalc() const;

  /// Appends the section "[OUTLAY]" to `sData`, or reads it from there (docs/auction-file.md).
  void Serialize(std::string& sData, bool bSave);

  /// Resets everything but m_bDirty.
  void Clear() { MakeFresh(*this); }

  Single m_fOutlay;             ///< cost of one item
  Single m_fStartingPrice;      ///< of the listing
  Single m_fReservePrice;       ///< of the listing; 0 for none
  Single m_fEstimatedEndPrice;  ///< hoped-for sale price of one item
  std::int32_t m_lQuantity = 0;
  bool m_bAddTax = false;  ///< local tax is added to the outlay
  bool m_bDirty = false;   ///< changed since last saved
};

}  // namespace quillet
