// The text of an auction, section by section (docs/auction-file.md). What a missing section means
// differs: [TYPE] and [FEATURES] are then passed over without a word, the others are a Failure.
#include "base/basCommon.h"
#include "base/failure.h"
#include "documents/Section.h"
#include "engine/clsCalculate.h"

namespace quillet {

void clsAuctionType::Serialize(std::string& sData, bool bSave) {
  constexpr std::string_view kMarker = "[TYPE]";
  if (bSave) {
    SectionWriter(sData, kMarker)
        .AddPadded(m_eAuctionType, 3)
        .Add(m_bBuyItNowOnly)
        .Add(m_bShopInventory)
        .Add(m_eShopDuration)
        .Add(m_eMotorType)
        .Add(m_eRealEstateType)
        .Add(m_eRealEstateSaleFormat)
        .Add(m_bRealEstateBinding)
        .Close();
    return;
  }
  IgnoreFailure([&] {
    const SectionReader oSection(sData, kMarker);
    oSection.ReadByte(0, m_eAuctionType);
    oSection.Read(1, m_bBuyItNowOnly);
    oSection.Read(2, m_bShopInventory);
    oSection.ReadByte(3, m_eShopDuration);
    oSection.ReadByte(4, m_eMotorType);
    oSection.ReadByte(5, m_eRealEstateType);
    oSection.ReadByte(6, m_eRealEstateSaleFormat);
    oSection.Read(7, m_bRealEstateBinding);
  });
}

void clsOutlay::Serialize(std::string& sData, bool bSave) {
  constexpr std::string_view kMarker = "[OUTLAY]";
  if (bSave) {
    SectionWriter(sData, kMarker)
        .Add(m_fOutlay)
        .Add(m_fStartingPrice)
        .Add(m_fReservePrice)
        .Add(m_fEstimatedEndPrice)
        .Add(m_lQuantity)
        .Add(m_bAddTax)
        .Close();
    return;
  }
  const SectionReader oSection(sData, kMarker);
  oSection.Read(0, m_fOutlay);
  oSection.Read(1, m_fStartingPrice);
  oSection.Read(2, m_fReservePrice);
  oSection.Read(3, m_fEstimatedEndPrice);
  oSection.ReadLong(4, m_lQuantity);
  oSection.Read(5, m_bAddTax);
}

void clsSellingFeatures::Serialize(std::string& sData, bool bSave) {
  constexpr std::string_view kMarker = "[FEATURES]";
  if (bSave) {
    SectionWriter(sData, kMarker).Add(m_lFeatures).Add(m_lExtraImageCount).Close();
    return;
  }
  IgnoreFailure([&] {
    const SectionReader oSection(sData, kMarker);
    oSection.ReadLong(0, m_lFeatures);
    oSection.ReadLong(1, m_lExtraImageCount);
  });
}

void clsPayPal::Serialize(std::string& sData, bool bSave) {
  constexpr std::string_view kMarker = "[PAYPAL]";
  if (bSave) {
    SectionWriter(sData, kMarker)
        .Add(m_bEnabled)
        .Add(m_eAccountType)
        .Add(m_nBusinessBand)
        .Add(m_bPayIndividually)
        .Close();
    return;
  }
  const SectionReader oSection(sData, kMarker);
  oSection.Read(0, m_bEnabled);
  oSection.ReadInteger(1, m_eAccountType);
  oSection.ReadInteger(2, m_nBusinessBand);
  oSection.Read(3, m_bPayIndividually);
}

void clsPostage::Serialize(std::string& sData, bool bSave) {
  constexpr std::string_view kMarker = "[POSTAGE]";
  if (bSave) {
    SectionWriter(sData, kMarker)
        .Add(m_bEnabled)
        .Add(m_fWeight)
        .Add(m_ePostageClass)
        .Add(m_fManualPostage)
        .Add(m_eInsuranceBand)
        .Add(m_bRecordedDelivery)
        .Add(m_bProofOfDelivery)
        .Add(m_bMakeProfit)
        .Add(m_fProfit)
        .Add(m_bSendIndividually)
        .Close();
    return;
  }
  const SectionReader oSection(sData, kMarker);
  oSection.Read(0, m_bEnabled);
  oSection.Read(1, m_fWeight);
  oSection.ReadInteger(2, m_ePostageClass);
  oSection.Read(3, m_fManualPostage);
  oSection.ReadInteger(4, m_eInsuranceBand);
  oSection.Read(5, m_bRecordedDelivery);
  oSection.Read(6, m_bProofOfDelivery);
  oSection.Read(7, m_bMakeProfit);
  oSection.Read(8, m_fProfit);
  oSection.Read(9, m_bSendIndividually);
}

bool clsCalculate::Serialize(std::string& sData, bool bSave) {
  try {
    m_oAuctionType.Serialize(sData, bSave);
    m_oOutlay.Serialize(sData, bSave);
    m_oSellingFeatures.Serialize(sData, bSave);
    m_oPayPal.Serialize(sData, bSave);
    m_oPostage.Serialize(sData, bSave);
    return true;
  } catch (const Failure& oFailure) {
    ShowMessage(oFailure.what(), kMessagePlain, "");
    return false;
  }
}

}  // namespace quillet
