// The text of an auction, section by section and field by field (docs/auction-file.md). A missing
// [TYPE] or [FEATURES] is silently skipped, and so is [FEES], whose inputs are fresh then; any
// other missing section throws a Failure.
#include "base/basCommon.h"
#include "base/failure.h"
#include "documents/Section.h"
#include "engine/clsCalculate.h"
#include "prices/clsPrices.h"

namespace quillet {
namespace {
constexpr std::string_view kFeesMarker = "[FEES]";
}

void clsAuctionType::Serialize(std::string& sData, bool bSave) {
  IgnoreFailure([&] {
    SerializeSection(sData, bSave, "[TYPE]", [&](auto& oSection) {
      oSection.Byte(m_eAuctionType, 3);
      oSection.Switch(m_bBuyItNowOnly);
      oSection.Switch(m_bShopInventory);
      oSection.Byte(m_eShopDuration);
      oSection.Byte(m_eMotorType);
      oSection.Byte(m_eRealEstateType);
      oSection.Byte(m_eRealEstateSaleFormat);
      oSection.Switch(m_bRealEstateBinding);
    });
  });
}

void clsOutlay::Serialize(std::string& sData, bool bSave) {
  SerializeSection(sData, bSave, "[OUTLAY]", [&](auto& oSection) {
    oSection.Amount(m_fOutlay);
    oSection.Amount(m_fStartingPrice);
    oSection.Amount(m_fReservePrice);
    oSection.Amount(m_fEstimatedEndPrice);
    oSection.Long(m_lQuantity);
    oSection.Switch(m_bAddTax);
  });
}

void clsSellingFeatures::Serialize(std::string& sData, bool bSave) {
  IgnoreFailure([&] {
    SerializeSection(sData, bSave, "[FEATURES]", [&](auto& oSection) {
      oSection.Long(m_lFeatures);
      oSection.Long(m_lExtraImageCount);
    });
  });
}

void clsPayPal::Serialize(std::string& sData, bool bSave) {
  SerializeSection(sData, bSave, "[PAYPAL]", [&](auto& oSection) {
    oSection.Switch(m_bEnabled);
    oSection.Integer(m_eAccountType);
    oSection.Integer(m_nBusinessBand);
    oSection.Switch(m_bPayIndividually);
  });
}

void clsPostage::Serialize(std::string& sData, bool bSave) {
  SerializeSection(sData, bSave, "[POSTAGE]", [&](auto& oSection) {
    oSection.Switch(m_bEnabled);
    oSection.Amount(m_fWeight);
    oSection.Integer(m_ePostageClass);
    oSection.Amount(m_fManualPostage);
    oSection.Integer(m_eInsuranceBand);
    oSection.Switch(m_bRecordedDelivery);
    oSection.Switch(m_bProofOfDelivery);
    oSection.Switch(m_bMakeProfit);
    oSection.Amount(m_fProfit);
    oSection.Switch(m_bSendIndividually);
  });
}

void clsSaleFees::Serialize(std::string& sData, bool bSave) {
  SerializeSection(sData, bSave, kFeesMarker, [&](auto& oSection) {
    oSection.Integer(m_oInputs.nCategory);
    oSection.Amount(m_oInputs.fBuyerTax);
    oSection.Amount(m_oInputs.fAdvertising);
    oSection.Long(m_oInputs.lExtras);
    oSection.Switch(m_oInputs.bFreeListing);
    oSection.Switch(m_oInputs.bTaxIsCost);
  });
}

/// Without today's fees the section is written only if something was entered in it: so an auction
/// of 2007 is written as it always was, and one of today loses nothing.
void clsCalculate::SerializeSaleFees(std::string& sData, bool bSave) {
  if (bSave) {
    if (AreFeesOfToday() || !m_oSaleFees.IsFresh()) {
      m_oSaleFees.Serialize(sData, true);
    }
    return;
  }
  m_oSaleFees.Clear();
  if (sData.find(kFeesMarker) != std::string::npos) {
    IgnoreFailure([&] { m_oSaleFees.Serialize(sData, false); });
  }
}

bool clsCalculate::Serialize(std::string& sData, bool bSave) {
  try {
    m_oAuctionType.Serialize(sData, bSave);
    m_oOutlay.Serialize(sData, bSave);
    m_oSellingFeatures.Serialize(sData, bSave);
    m_oPayPal.Serialize(sData, bSave);
    m_oPostage.Serialize(sData, bSave);
    SerializeSaleFees(sData, bSave);
    return true;
  } catch (const Failure& oFailure) {
    ShowMessage(oFailure.what(), kMessagePlain, "");
    return false;
  }
}

}  // namespace quillet
