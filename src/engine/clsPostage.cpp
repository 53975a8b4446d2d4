#include "engine/clsPostage.h"

#include <cmath>

#include "base/failure.h"
#include "base/region.h"
#include "prices/clsPrices.h"

namespace quillet {
namespace {

std::optional<Single> TierValue(const KeyText& oKey, Single fWeight) {
  clsPriceRange oTier;
  if (!Prices().HitTestRanges(oKey, fWeight, oTier, kShopNone)) {
    return std::nullopt;
  }
  return oTier.m_fValue;
}

/// The number of steps between two weights; a part of a step counts as a whole one.
Single StepsBetween(Single fFrom, Single fTo, Single fStep) {
  if (fStep == 0) {
    throw Failure(FailureNumber::DivisionByZero,
                  "The fee schedule has no \"FirstClassOverWeightStep\" for this weight.");
  }
  Single fSteps = (fTo - fFrom) / fStep;
  const Single fPart = fSteps - std::floor(fSteps);
  if (fPart > 0) {
    fSteps = std::floor(fSteps) + 1;
  }
  return fSteps;
}

}  // namespace

Single clsPostage::DoCalc(const clsOutlay* oOutlay) {
  m_oLastOutlay = oOutlay;
  if (!m_bEnabled) {
    return 0;
  }
  const Single fInsurance = DoCalcOnInsurance(m_eInsuranceBand);
  const Single fRecorded = DoCalcOnRecordedDelivery();
  const Single fProof = DoCalcOnProofOfDelivery();
  const Single fWeightCost = DoCalcOnWeight(m_ePostageClass);
  return ApplyIndividually(fInsurance + fWeightCost + fRecorded + fProof);
}

Single clsPostage::DoCalcOnWeight(std::int32_t ePostageClass) const {
  switch (ePostageClass) {
    case kPostageFirstClass:
      return FirstClassCost().value_or(0);
    case kPostageSecondClass:
      return SecondClassCost().value_or(0);
    case kPostageParcel:
      return ParcelCost().value_or(0);
    case kPostageManual:
      return m_fManualPostage;
    default:
      return 0;
  }
}

Single clsPostage::DoCalcOnInsurance(std::int32_t eBand) const {
  Single fPremium;
  if (CanHaveInsurance(eBand)) {
    PriceKey oKey = KeyText("InsuranceBandValue");
    Prices().GetPrice(oKey.Append(eBand + 1), fPremium, kShopNone);
  }
  return fPremium;
}

Single clsPostage::DoCalcOnRecordedDelivery() const {
  Single fCharge;
  if (CanHaveRecordedDelivery() && m_bRecordedDelivery) {
    Prices().GetPrice("RecordedSignedFor", fCharge, kShopNone);
  }
  return fCharge;
}

Single clsPostage::DoCalcOnProofOfDelivery() const {
  Single fCharge;
  if (CanHaveProofOfDelivery() && m_bProofOfDelivery) {
    Prices().GetPrice("ProofOfDelivery", fCharge, kShopNone);
  }
  return fCharge;
}

Single clsPostage::DoCalcProfit() const {
  return ApplyIndividually(m_bMakeProfit ? m_fProfit : Single(0));
}

bool clsPostage::CanHaveRecordedDelivery() const {
  return m_ePostageClass == kPostageFirstClass || m_ePostageClass == kPostageSecondClass;
}

bool clsPostage::CanHaveProofOfDelivery() const {
  return CanHaveRecordedDelivery() && m_bRecordedDelivery;
}

bool clsPostage::CanHaveInsurance(std::int32_t eBand) const {
  return eBand == 0 || (eBand >= 1 && eBand <= 3 && m_ePostageClass == kPostageParcel);
}

bool clsPostage::CanHaveClass(std::int32_t ePostageClass) const {
  if (ePostageClass == kPostageManual) {
    return true;
  }
  if (RegionCode() == 1) {
    return false;
  }
  switch (ePostageClass) {
    case kPostageFirstClass:
      return FirstClassCost().has_value();
    case kPostageSecondClass:
      return SecondClassCost().has_value();
    case kPostageParcel:
      return ParcelCost().has_value();
    default:
      return false;
  }
}

std::int32_t clsPostage::GetNextClass(std::int32_t ePostageClass) {
  // Comparing before adding keeps the largest code of a file from overflowing.
  return ePostageClass >= kPostageManual ? kPostageSecondClass : ePostageClass + 1;
}

std::int32_t clsPostage::GetNextInsurance(std::int32_t eBand) {
  constexpr std::int32_t kLastBand = 3;
  return eBand >= kLastBand ? 0 : eBand + 1;
}

std::optional<Single> clsPostage::FirstClassCost() const {
  clsPriceRange oTier;
  if (Prices().HitTestRanges("FirstClass", m_fWeight, oTier, kShopNone)) {
    return oTier.m_fValue;
  }
  if (oTier.m_nCount <= 0 || !Prices().GetRange("FirstClass", oTier.m_nCount, oTier, kShopNone) ||
      m_fWeight <= oTier.m_fEnd) {
    return std::nullopt;
  }
  Single fStep;
  Single fStepValue;
  Prices().GetPrice("FirstClassOverWeightStep", fStep, kShopNone);
  Prices().GetPrice("FirstClassOverWeightStepValue", fStepValue, kShopNone);
  const Single fSteps = StepsBetween(oTier.m_fEnd, m_fWeight, fStep);
  return fStepValue * fSteps + oTier.m_fValue;
}

std::optional<Single> clsPostage::SecondClassCost() const {
  return TierValue("SecondClass", m_fWeight);
}

std::optional<Single> clsPostage::ParcelCost() const {
  return TierValue("Parcel", m_fWeight);
}

Single clsPostage::ApplyIndividually(Single fAmount) const {
  const bool bEach =
      m_oLastOutlay != nullptr && m_oLastOutlay->m_lQuantity >= 2 && m_bSendIndividually;
  return bEach ? Single(fAmount * m_oLastOutlay->m_lQuantity) : fAmount;
}

}  // namespace quillet
