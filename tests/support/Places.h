// Where the rows of the sections are.
#pragma once

#include <QRect>
#include <QWidget>
#include <array>
#include <string>
#include <vector>

#include "shell/SectionSet.h"
#include "support/PanelScript.h"

namespace quillet {

/// The controls that a panel's rows are made of.
inline std::vector<Control*> RowsIn(const SectionPanel& oPanel) {
  std::vector<Control*> aoRows = oPanel.Controls();
  std::erase_if(aoRows, [&](const Control* p) {
    return p->Container() != &oPanel || IsShowCheck(*p) || IsHeaderImage(*p);
  });
  return aoRows;
}

/// The visible rows that overlap by more than a pixel.
inline std::string OverlapsIn(const SectionPanel& oPanel) {
  constexpr int kPixel = 15;
  std::string sOverlaps;
  std::vector<Control*> aoRows = RowsIn(oPanel);
  std::erase_if(aoRows, [](const Control* p) { return !p->Visible(); });
  const auto fnPlace = [](const Control& o) {
    return QRect(o.Left(), o.Top(), o.Width(), o.Height());
  };
  for (std::size_t i = 0; i < aoRows.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      const QRect oCommon = fnPlace(*aoRows[i]) & fnPlace(*aoRows[j]);
      if (oCommon.width() > kPixel && oCommon.height() > kPixel) {
        sOverlaps += aoRows[i]->Name() + " on " + aoRows[j]->Name() + "\n";
      }
    }
  }
  return sOverlaps;
}

/// The sections of a view and the panels within them.
inline std::vector<SectionPanel*> AllPanels(const SectionSet& oSet) {
  std::vector<SectionPanel*> aoPanels;
  for (SectionPanel* const pSection : oSet.Sections()) {
    aoPanels.push_back(pSection);
    for (Control* const pControl : AllControls(*pSection)) {
      if (auto* const pPanel = dynamic_cast<SectionPanel*>(pControl)) {
        aoPanels.push_back(pPanel);
      }
    }
  }
  return aoPanels;
}

/// The height of each panel and the tops of its visible rows.
inline std::string PlacesOf(const std::array<SectionPanel*, 5>& aoSections) {
  std::string sPlaces;
  for (const SectionPanel* const pSection : aoSections) {
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

/// The places, out of config mode, of newly made sections with the stored lists.
inline std::string PlacesAfterRestart() {
  QWidget oWindow(nullptr, Qt::ToolTip);  // doesn't take the focus from others
  const SectionSet oSet(
      oWindow, [](bool /*bDirty*/) {}, [] {});
  oWindow.show();
  for (SectionPanel* const pSection : oSet.Sections()) {
    pSection->SetShowConfig(false);
  }
  return PlacesOf(oSet.Sections());
}

}  // namespace quillet
