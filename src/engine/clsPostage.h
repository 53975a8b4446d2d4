// What sending the item costs, and what the seller adds to it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/Single.h"
#include "engine/clsOutlay.h"
#include "engine/fresh.h"

namespace quillet {

enum ePostageClass : std::int32_t {
  kPostageFirstClass = 0,
  kPostageSecondClass = 1,
  kPostageParcel = 2,
  kPostageManual = 3,
};

class clsPostage {
 public:
  // Amounts are in the auction's currency. A price that the schedule lacks is 0; a missing table of
  // weights throws a Failure.

  /// Cost of the postage. Keeps the outlay, which may be null and must otherwise live as long as
  /// this object.
  [[nodiscard]] Single DoCalc(const clsOutlay* oOutlay);
  /// The price of a class at the current weight, chosen or not; 0 if it can't be priced.
  [[nodiscard]] Single DoCalcOnWeight(std::int32_t ePostageClass) const;
  /// The premium of an insurance band; 0 if the band isn't available.
  [[nodiscard]] Single DoCalcOnInsurance(std::int32_t eBand) const;
  [[nodiscard]] Single DoCalcOnRecordedDelivery() const;  ///< 0 unless chosen and available
  [[nodiscard]] Single DoCalcOnProofOfDelivery() const;   ///< 0 unless chosen and available
  /// The profit on postage, with the outlay of the latest DoCalc. It counts even when postage is
  /// switched off.
  [[nodiscard]] Single DoCalcProfit() const;

  [[nodiscard]] bool CanHaveRecordedDelivery() const;
  [[nodiscard]] bool CanHaveProofOfDelivery() const;
  [[nodiscard]] bool CanHaveInsurance(std::int32_t eBand) const;
  /// Manual always; the three priced classes in the United Kingdom, as long as the weight has a
  /// price there.
  [[nodiscard]] bool CanHaveClass(std::int32_t ePostageClass) const;
  /// The class after the given one; after the last comes 1, not 0.
  [[nodiscard]] static std::int32_t GetNextClass(std::int32_t ePostageClass);
  /// The band after the given one; after the last comes 0.
  [[nodiscard]] static std::int32_t GetNextInsurance(std::int32_t eBand);

  /// Appends the section "[POSTAGE]" to `sData`, or reads it from there (docs/auction-file.md).
  void Serialize(std::string& sData, bool bSave);

  /// Resets everything but m_bDirty and what DoCalc keeps.
  void Clear() { MakeFresh(*this); }

  bool m_bEnabled = false;  ///< the item is posted at all
  Single m_fWeight;         ///< kilograms
  std::int32_t m_ePostageClass = kPostageFirstClass;
  Single m_fManualPostage;            ///< what kPostageManual costs
  std::int32_t m_eInsuranceBand = 0;  ///< 0 to 3
  bool m_bRecordedDelivery = false;
  bool m_bProofOfDelivery = false;
  bool m_bMakeProfit = false;
  Single m_fProfit;                          ///< on each parcel
  bool m_bDirty = false;                     ///< changed since last saved
  bool m_bSendIndividually = false;          ///< each unit sold goes in a package of its own
  const clsOutlay* m_oLastOutlay = nullptr;  ///< of the latest DoCalc; not owned

 private:
  // A class's price at the current weight; nothing where it has none.
  [[nodiscard]] std::optional<Single> FirstClassCost() const;
  [[nodiscard]] std::optional<Single> SecondClassCost() const;
  [[nodiscard]] std::optional<Single> ParcelCost() const;
  [[nodiscard]] Single ApplyIndividually(Single fAmount) const;
};

}  // namespace quillet
