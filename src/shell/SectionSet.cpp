#include "shell/SectionSet.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/FlagGuard.h"
#include "base/failure.h"
#include "controls/layout.h"
#include "prices/clsPrices.h"
#include "shell/KeptAuction.h"

namespace quillet {

SectionSet::SectionSet(QWidget& oView, std::function<void(bool)> fnChanged,
                       std::function<void()> fnShown)
    : ctlSellingCostsSection(*Make<ctlSellingCosts>("ctlSellingCostsSection", &oView)),
      ctlOutlaySection(*Make<ctlOutlay>("ctlOutlaySection", &oView)),
      ctlSaleFeesSection(*Make<ctlSaleFees>("ctlSaleFeesSection", &oView)),
      ctlSellingFeaturesSection(*Make<ctlSellingFeatures>("ctlSellingFeaturesSection", &oView)),
      ctlAuctionTypeSection(*Make<ctlAuctionType>("ctlAuctionTypeSection", &oView)),
      ctlPayPalSection(*Make<ctlPayPal>("ctlPayPalSection", &oView)),
      ctlPostageSection(*Make<ctlPostage>("ctlPostageSection", &oView)),
      m_fnChanged(std::move(fnChanged)),
      m_fnShown(std::move(fnShown)),
      m_bFeesOfToday(AreFeesOfToday()) {
  ctlSaleFeesSection.SetVisible(m_bFeesOfToday);
}

void SectionSet::RefreshSums(clsCalculate& oDocument, bool bUpdateControlDisplays) {
  if (bUpdateControlDisplays && !oDocument.m_oAuctionType.m_bShopInventory) {
    oDocument.m_oAuctionType.m_eShopDuration = kShopNone;  // as the section would set it
  }
  Refresh(oDocument, bUpdateControlDisplays ? &SectionSet::BringOnView : nullptr);
}

void SectionSet::ShowChanged(clsCalculate& oDocument, bool bReact) {
  RefreshSums(oDocument, true);
  if (bReact) {
    FollowChange(oDocument);
  }
}

void SectionSet::FollowChange(clsCalculate& oDocument) {
  Refresh(oDocument, &SectionSet::PushChange);
}

void SectionSet::Refresh(clsCalculate& oDocument, Push pPush) {
  if (!m_bRefreshing) {
    ShowAndPush(oDocument, pPush);
    m_fnShown();
  }
}

void SectionSet::ShowAndPush(clsCalculate& oDocument, Push pPush) {
  const FlagGuard oRefreshing(m_bRefreshing);
  for (SectionPanel* const pSection : Sections()) {
    pSection->SetAuction(oDocument);
  }
  IgnoreFailure([&] {
    ShowSums(oDocument);
    m_fnChanged(oDocument.IsDirty());
    if (pPush == nullptr) {
      return;
    }
    const bool bDirty = oDocument.IsDirty();
    (this->*pPush)(oDocument);
    if (oDocument.IsDirty() && !bDirty) {
      oDocument.SetDirty(false);
    }
  });
}

void SectionSet::ShowSums(clsCalculate& oDocument) {
  oDocument.DoCalc();
  ctlSellingCostsSection.ApplySellingCosts(oDocument);
}

/// Sections may write what they still show of another auction. So this one is restored, and
/// pushed again, until nothing changes; codes without an option are kept too.
void SectionSet::BringOnView(clsCalculate& oDocument) {
  constexpr int kMostPushes = 5;
  KeptAuction oKept(oDocument);
  if (!oDocument.m_oSellingFeatures.HasFeature(kFeatureCarAd)) {
    ctlSellingFeaturesSection.UntickCarAd();
  }
  bool bUnchanged = false;
  for (int i = 0; i < kMostPushes && !bUnchanged; ++i) {
    IgnoreFailure([&] {
      ShowKeptInsurance(oDocument);
      PushModels(oDocument);
    });
    bUnchanged = oKept.IsUnchanged();
    oKept.PutBack();
  }
  ctlAuctionTypeSection.ShowTotal(oDocument.m_oAuctionType);
  ShowSums(oDocument);
}

/// A feature whose box was greyed or removed is no longer charged.
void SectionSet::PushChange(clsCalculate& oDocument) {
  PushModels(oDocument);
  if (ctlSellingFeaturesSection.DropUnticked()) {
    ShowSums(oDocument);
  }
}

void SectionSet::FollowSchedule() {
  ctlSellingFeaturesSection.FollowSchedule();
  m_bFeesOfToday = AreFeesOfToday();
  ctlSaleFeesSection.SetVisible(m_bFeesOfToday);
}

std::vector<SectionPanel*> SectionSet::Sections() const {
  const std::array aoAll = AllSections();
  std::vector<SectionPanel*> aoOnView;
  std::copy_if(aoAll.begin(), aoAll.end(), std::back_inserter(aoOnView),
               [this](const SectionPanel* p) { return IsOnView(*p); });
  return aoOnView;
}

bool SectionSet::IsOnView(const SectionPanel& oSection) const {
  return m_bFeesOfToday || &oSection != &ctlSaleFeesSection;
}

std::array<SectionPanel*, 6> SectionSet::AllSections() const {
  return {&ctlOutlaySection,      &ctlSaleFeesSection, &ctlSellingFeaturesSection,
          &ctlAuctionTypeSection, &ctlPayPalSection,   &ctlPostageSection};
}

void SectionSet::PushModels(clsCalculate& oDocument) {
  const clsAuctionType* const pType = &oDocument.m_oAuctionType;
  const clsOutlay* const pOutlay = &oDocument.m_oOutlay;
  ctlOutlaySection.ApplyOutlay(oDocument.m_oOutlay, pType);
  ctlSellingFeaturesSection.ApplyFeatures(oDocument.m_oSellingFeatures, pType, pOutlay);
  ctlAuctionTypeSection.ApplyAuctionType(oDocument.m_oAuctionType);
  if (m_bFeesOfToday) {
    ctlSaleFeesSection.ApplyFees(oDocument.m_oSaleFees);
  }
  ctlPayPalSection.ApplyFeatures(oDocument.m_oPayPal, pOutlay);
  ctlPostageSection.ApplyFeatures(oDocument.m_oPostage, pOutlay);
}

/// A parcel's insurance band is kept even with a class that can't have one, but the list of bands
/// ignores it then: so this shows it first, as a parcel's.
void SectionSet::ShowKeptInsurance(clsCalculate& oDocument) {
  clsPostage& oPostage = oDocument.m_oPostage;
  if (!oPostage.CanHaveInsurance(oPostage.m_eInsuranceBand)) {
    const std::int32_t eClass = std::exchange(oPostage.m_ePostageClass, kPostageParcel);
    ctlPostageSection.ApplyFeatures(oPostage, &oDocument.m_oOutlay);
    oPostage.m_ePostageClass = eClass;
  }
}

}  // namespace quillet
