// Compares a view with a fresh one that shows the same auction, and finds its rows.
#pragma once

#include <QLineEdit>
#include <QRegion>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "controls/ComboBox.h"
#include "shell/SectionSet.h"
#include "support/Auctions.h"
#include "support/PanelScript.h"

namespace quillet {

/// The sections of a view and the panels within them.
inline std::vector<SectionPanel*> AllPanels(const SectionSet& oSet) {
  std::vector<SectionPanel*> aoPanels;
  for (SectionPanel* const pSection : oSet.Sections()) {
    const auto aoInner = pSection->findChildren<SectionPanel*>();
    aoPanels.push_back(pSection);
    aoPanels.insert(aoPanels.end(), aoInner.begin(), aoInner.end());
  }
  return aoPanels;
}

/// Numbers must match to the cent or to seven digits, except in a box that is being typed into.
/// Two of the check boxes are never set from an auction.
inline bool ShowsTheSame(const Control& oSeen, const Control& oWanted) {
  if (const auto* const pBox = dynamic_cast<const ctlNumericText*>(&oSeen)) {
    const double fWanted = dynamic_cast<const ctlNumericText&>(oWanted).Value();
    return pBox->TextBox()->hasFocus() ||
           std::abs(pBox->Value() - fWanted) < 0.006 + std::abs(fWanted) * 1e-6;
  }
  if (const auto* const pList = dynamic_cast<const ComboBox*>(&oSeen)) {
    return pList->currentIndex() == dynamic_cast<const ComboBox&>(oWanted).currentIndex();
  }
  const auto* const pChoice = dynamic_cast<const Choice*>(&oSeen);
  const bool bFed =
      pChoice != nullptr && oSeen.Name() != "chkCarAd" && oSeen.Name() != "chkOutlayInclTax";
  return oSeen.Caption() == oWanted.Caption() && oSeen.ForeColor() == oWanted.ForeColor() &&
         oSeen.Enabled() == oWanted.Enabled() &&
         (!bFed || pChoice->Value() == dynamic_cast<const Choice&>(oWanted).Value());
}

/// The height of each section of a view and the tops of its visible rows.
inline std::string PlacesIn(const SectionSet& oSet) {
  std::string sPlaces;
  for (const SectionPanel* const pSection : oSet.Sections()) {
    sPlaces += std::string(pSection->SectionKey()) + " " + std::to_string(pSection->Height());
    for (const Control* const pControl : AllControls(*pSection)) {
      if (pControl->Widget().isVisibleTo(pSection) && !IsShowCheck(*pControl)) {
        sPlaces += " " + pControl->Name() + "@" + std::to_string(pControl->Top());
      }
    }
    sPlaces += "\n";
  }
  return sPlaces;
}

/// Fresh sections, not in config mode and not touched by a user.
class Mirror {
 public:
  Mirror() {
    m_oWindow.show();
    for (SectionPanel* const pSection : m_oSet.Sections()) {
      pSection->SetShowConfig(false);
    }
  }

  std::string Places() const { return PlacesIn(m_oSet); }

  /// The controls of a view that differ from what the mirror shows for a copy of the auction.
  std::string Differences(const SectionSet& oSeen, clsCalculate& oAuction) {
    std::string sText = TextOf(oAuction);
    auto oFresh = std::make_unique<clsCalculate>();
    oFresh->Serialize(sText, false);
    oFresh->m_oOutlay = oAuction.m_oOutlay;  // amounts have only seven digits in the text
    oFresh->m_oPostage = oAuction.m_oPostage;
    m_oSet.RefreshSums(m_oEmpty, true);  // forgets what was shown before
    m_oSet.RefreshSums(*oFresh, true);
    m_oAuction = std::move(oFresh);  // only now: the set still used the old one
    const auto& oCarAd =
        dynamic_cast<const Choice&>(ControlOf(oSeen.ctlSellingFeaturesSection, "chkCarAd"));
    const bool bStale =
        oCarAd.Value() != 0 && !oAuction.m_oSellingFeatures.HasFeature(kFeatureCarAd);
    std::string sDifferences = bStale ? "chkCarAd " : "";
    const auto aoSeen = AllOf(oSeen);
    const auto aoWanted = AllOf(m_oSet);
    for (std::size_t i = 0; i < aoSeen.size(); ++i) {
      sDifferences += ShowsTheSame(*aoSeen[i], *aoWanted[i]) ? "" : aoSeen[i]->Name() + " ";
    }
    return sDifferences.empty() ? "" : sDifferences + "with " + sText;
  }

 private:
  static std::vector<Control*> AllOf(const SectionSet& oSet) {
    std::vector<Control*> aoAll;
    for (const SectionPanel* const pPanel : AllPanels(oSet)) {
      aoAll.insert(aoAll.end(), pPanel->Controls().begin(), pPanel->Controls().end());
    }
    for (Label* const pLabel : oSet.ctlSellingCostsSection.findChildren<Label*>()) {
      aoAll.push_back(pLabel);
    }
    std::erase_if(aoAll, [](const Control* p) { return IsHeaderImage(*p) || IsShowCheck(*p); });
    return aoAll;
  }

  QWidget m_oWindow{nullptr, Qt::ToolTip};  // doesn't take the focus
  clsCalculate m_oEmpty;
  std::unique_ptr<clsCalculate> m_oAuction;
  SectionSet m_oSet{m_oWindow, [](bool /*bDirty*/) {}, [] {}};
};

/// The visible controls of a panel that overlap an earlier one by more than a pixel.
template <typename Controls>
std::string OverlapsIn(const Control& oPanel, const Controls& aoControls) {
  constexpr int kHalfPixel = 8;
  std::string sOverlaps;
  QRegion oTaken;
  for (const Control* const p : aoControls) {
    if (p->Container() == &oPanel && p->Visible() && !IsHeaderImage(*p) && !IsShowCheck(*p)) {
      const QRect oPlace = QRect(p->Left(), p->Top(), p->Width(), p->Height())
                               .adjusted(kHalfPixel, kHalfPixel, -kHalfPixel, -kHalfPixel);
      sOverlaps += oTaken.intersects(oPlace) ? p->Name() + " " : "";
      oTaken += oPlace;
    }
  }
  return sOverlaps;
}

}  // namespace quillet
