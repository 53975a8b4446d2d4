// What must hold of a packed section, whatever was packed.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "sections/clsControlLocator.h"

namespace quillet {

/// A registered control: its place in the design, and its height now.
struct DesignedControl {
  std::string sName;
  int nTop = 0;
  int nHeight = 0;
  int nCurrentHeight = 0;
};

struct PackedControl {
  std::string sName;
  int nTop = 0;
  bool operator==(const PackedControl&) const = default;
};

inline std::vector<PackedControl> Shown(const clsControlLocator& oLocator) {
  std::vector<PackedControl> aoShown(static_cast<std::size_t>(oLocator.IncludedCount()));
  for (int i = 0; i < oLocator.IncludedCount(); ++i) {
    PackedControl& oShown = aoShown[static_cast<std::size_t>(i)];
    EXPECT_TRUE(oLocator.GetIncludedControl(i, oShown.sName, oShown.nTop));
  }
  return aoShown;
}

/// Every control is shown or hidden once, in the design's order; a row lies on one top, and no row
/// on the one before it, but for as much as neighbouring rows of the design overlap. Where a row's
/// last control is hidden behind one that is shown, the next row may lie on top of it.
inline void CheckLayout(const clsControlLocator& oLocator, std::vector<DesignedControl> aoDesign) {
  std::stable_sort(aoDesign.begin(), aoDesign.end(),
                   [](const auto& a, const auto& b) { return a.nTop < b.nTop; });
  std::map<std::string, std::size_t> anIndex;
  std::map<int, std::string> asLastOfRow;
  for (std::size_t i = 0; i < aoDesign.size(); ++i) {
    anIndex[aoDesign[i].sName] = i;
    asLastOfRow[aoDesign[i].nTop] = aoDesign[i].sName;
  }
  std::map<std::string, int> anSeen;
  for (int i = 0; i < oLocator.ExcludedCount(); ++i) {
    std::string sName;
    ASSERT_TRUE(oLocator.GetExcludedControl(i, sName));
    ++anSeen[sName];
  }
  const DesignedControl* pBefore = nullptr;
  int nTopBefore = 0;
  for (const auto& [sName, nTop] : Shown(oLocator)) {
    ++anSeen[sName];
    ASSERT_TRUE(anIndex.contains(sName)) << sName;
    const DesignedControl& oControl = aoDesign[anIndex[sName]];
    if (pBefore != nullptr) {
      EXPECT_LT(anIndex[pBefore->sName], anIndex[sName]) << "order of " << sName;
      if (oControl.nTop == pBefore->nTop) {
        EXPECT_EQ(nTop, nTopBefore) << sName << " beside " << pBefore->sName;
      } else if (asLastOfRow[pBefore->nTop] == pBefore->sName) {
        const auto oNextRow = asLastOfRow.upper_bound(pBefore->nTop);
        const int nOverlap = std::max(0, pBefore->nTop + pBefore->nHeight - oNextRow->first);
        EXPECT_GE(nTop, nTopBefore + pBefore->nCurrentHeight - nOverlap)
            << sName << " below " << pBefore->sName;
      }
    }
    pBefore = &oControl;
    nTopBefore = nTop;
  }
  for (const DesignedControl& oControl : aoDesign) {
    EXPECT_EQ(anSeen[oControl.sName], 1) << oControl.sName;
  }
}

}  // namespace quillet
