// What PayPal takes from the money that the buyer pays.
#pragma once

#include <cstdint>
#include <string>

#include "base/Single.h"
#include "engine/clsOutlay.h"
#include "engine/fresh.h"
#include "prices/PriceKey.h"

namespace quillet {

enum eAccountType : std::int32_t {
  kAccountPersonal = 0,
  kAccountPremier = 1,
  kAccountBusiness = 2,
};

class clsPayPal {
 public:
  /// The fee on an amount received: a percentage and a fixed charge, rounded to the smallest unit
  /// of the currency with an exact half going down. Keeps its arguments for DoCalcAuto; the outlay
  /// may be null and must otherwise live as long as this object. Throws a Failure for a premier or
  /// business account whose band has no value or whose tier tables are missing.
  [[nodiscard]] Single DoCalc(Single fAmount, const clsOutlay* oOutlay);
  /// DoCalc with the arguments of the latest one.
  [[nodiscard]] Single DoCalcAuto();

  /// True for premier and business accounts.
  [[nodiscard]] bool CanHaveMerchantRate() const { return m_eAccountType > kAccountPersonal; }

  /// The name (`nAttribute` 0) or value (any other) of a merchant-rate band; empty if the schedule
  /// lacks it. A band of 0 means m_nBusinessBand, and is replaced by it.
  [[nodiscard]] std::string GetBusinessRateBandAttribute(std::int32_t nAttribute,
                                                         std::int32_t& nBand) const;

  /// Appends the section "[PAYPAL]" to `sData`, or reads it from there (docs/auction-file.md).
  void Serialize(std::string& sData, bool bSave);

  /// Resets everything but m_bDirty and what DoCalc keeps.
  void Clear() { MakeFresh(*this); }

  bool m_bEnabled = false;  ///< the seller takes PayPal
  std::int32_t m_eAccountType = kAccountPersonal;
  std::int32_t m_nBusinessBand = 1;          ///< from 1; 0 makes every account free of charge
  bool m_bDirty = false;                     ///< changed since last saved
  bool m_bPayIndividually = false;           ///< a payment, and a fixed charge, for each unit sold
  const clsOutlay* m_oLastOutlay = nullptr;  ///< of the latest DoCalc; not owned

 private:
  [[nodiscard]] PriceKey BandKey(std::int32_t nAttribute, std::int32_t& nBand) const;
  [[nodiscard]] Single BandValue() const;
  [[nodiscard]] Single ApplyIndividually(Single fAmount) const;

  Single m_fLastPrice;
};

}  // namespace quillet
