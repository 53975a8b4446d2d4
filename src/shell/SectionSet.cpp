#include "shell/SectionSet.h"

#include "base/failure.h"

namespace quillet {
namespace {

template <typename Section>
Section& Make(QWidget& oView, const char* sName) {
  auto* const pSection = new Section(&oView);
  pSection->SetName(sName);
  return *pSection;
}

}  // namespace

SectionSet::SectionSet(QWidget& oView)
    : ctlSellingCostsSection(Make<ctlSellingCosts>(oView, "ctlSellingCostsSection")),
      ctlOutlaySection(Make<ctlOutlay>(oView, "ctlOutlaySection")),
      ctlSellingFeaturesSection(Make<ctlSellingFeatures>(oView, "ctlSellingFeaturesSection")),
      ctlAuctionTypeSection(Make<ctlAuctionType>(oView, "ctlAuctionTypeSection")),
      ctlPayPalSection(Make<ctlPayPal>(oView, "ctlPayPalSection")),
      ctlPostageSection(Make<ctlPostage>(oView, "ctlPostageSection")) {}

void SectionSet::RefreshSums(clsCalculate& oDocument, bool bUpdateControlDisplays,
                             const std::function<void(bool)>& fnChanged) {
  if (m_bRefreshing) {
    return;
  }
  const FlagGuard oRefreshing(m_bRefreshing);
  IgnoreFailure([&] {
    oDocument.DoCalc();
    ctlSellingCostsSection.ApplySellingCosts(oDocument);
    fnChanged(oDocument.IsDirty());
    if (!bUpdateControlDisplays) {
      return;
    }
    const bool bDirty = oDocument.IsDirty();
    PushModels(oDocument);
    if (oDocument.IsDirty() && !bDirty) {
      oDocument.SetDirty(false);
    }
  });
}

std::array<SectionPanel*, 5> SectionSet::Sections() const {
  return {&ctlOutlaySection, &ctlSellingFeaturesSection, &ctlAuctionTypeSection, &ctlPayPalSection,
          &ctlPostageSection};
}

void SectionSet::PushModels(clsCalculate& oDocument) {
  const clsAuctionType* const pType = &oDocument.m_oAuctionType;
  const clsOutlay* const pOutlay = &oDocument.m_oOutlay;
  ctlOutlaySection.ApplyOutlay(oDocument.m_oOutlay, pType);
  ctlSellingFeaturesSection.ApplyFeatures(oDocument.m_oSellingFeatures, pType, pOutlay);
  ctlAuctionTypeSection.ApplyAuctionType(oDocument.m_oAuctionType);
  ctlPayPalSection.ApplyFeatures(oDocument.m_oPayPal, pOutlay);
  ctlPostageSection.ApplyFeatures(oDocument.m_oPostage, pOutlay);
}

}  // namespace quillet
