#include "shell/WizardPages.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/clsRegistryAccess.h"
#include "controls/layout.h"
#include "shell/PageScroller.h"

namespace quillet {
namespace {

std::string PageInfoText(int nText) {
  return Registry().Get(settings::kPageInfo.at(static_cast<std::size_t>(nText)));
}

}  // namespace

WizardPages::WizardPages(SectionSet& oSet, PageScroller* pViewPort) : m_oSet(oSet) {
  struct PageDesign {
    const char* sName;
    int nText;  ///< the number of its instruction in the settings
    int nFrameWidth;
    int nFrameHeight;
    SectionPanel& oSection;
    int nLeft;
    int nWidth;
    int nHeight;
  };
  constexpr int kSectionTop = 120;
  const std::array aoDesigns = std::to_array<PageDesign>({
      {"Auction Type", 1, 3495, 7335, m_oSet.ctlAuctionTypeSection, 120, 3255, 7095},
      {"Outlay", 0, 5175, 2415, m_oSet.ctlOutlaySection, 120, 4815, 2295},
      {"Sale Fees", 5, 4935, 2815, m_oSet.ctlSaleFeesSection, 240, 4575, 2695},
      {"Features", 2, 4095, 7215, m_oSet.ctlSellingFeaturesSection, 240, 3735, 6975},
      {"PayPal", 3, 3255, 4575, m_oSet.ctlPayPalSection, 120, 3015, 4335},
      {"Postage", 4, 4935, 6375, m_oSet.ctlPostageSection, 240, 4575, 6255},
  });
  for (const PageDesign& oDesign : aoDesigns) {
    auto* const pFrame = Make<Frame>("fraPages", pViewPort);
    pFrame->Place(0, 0, oDesign.nFrameWidth, oDesign.nFrameHeight);
    oDesign.oSection.setParent(pFrame);
    pFrame->SetVisible(false);
    oDesign.oSection.Place(oDesign.nLeft, kSectionTop, oDesign.nWidth, oDesign.nHeight);
    m_aAll.push_back({.sName = oDesign.sName,
                      .pFrame = pFrame,
                      .oSection = &oDesign.oSection,
                      .sInfo = PageInfoText(oDesign.nText)});
  }
}

/// Shows each newly available page once: only then does its section learn where its rows are.
void WizardPages::Refresh() {
  const std::vector<WizardPage> aBefore = std::exchange(m_aOnView, {});
  for (const WizardPage& tPage : m_aAll) {
    const auto fnIsIt = [&](const WizardPage& t) { return t.pFrame == tPage.pFrame; };
    const bool bOnView = m_oSet.IsOnView(*tPage.oSection);
    if (bOnView != std::any_of(aBefore.begin(), aBefore.end(), fnIsIt)) {
      tPage.pFrame->SetVisible(bOnView);
      tPage.oSection->SetVisible(bOnView);
    }
    if (bOnView) {
      m_aOnView.push_back(tPage);
      m_aOnView.back().lIndex = static_cast<std::int32_t>(m_aOnView.size()) - 1;
    }
  }
  m_aOnView.front().bFirst = true;
  m_aOnView.back().bLast = true;
}

QStringList WizardPages::Names() const {
  QStringList asNames;
  for (const WizardPage& tPage : m_aOnView) {
    asNames += tPage.sName;
  }
  return asNames;
}

}  // namespace quillet
