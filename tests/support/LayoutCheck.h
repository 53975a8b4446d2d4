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
  int nCurrentHeight = nHeight;
};

using PackedControl = std::pair<std::string, int>;  ///< name and top

inline std::vector<PackedControl> Shown(const clsControlLocator& oLocator) {
  std::vector<PackedControl> aoShown;
  PackedControl oControl;
  for (int i = 0; i < oLocator.IncludedCount(); ++i) {
    EXPECT_TRUE(oLocator.GetIncludedControl(i, oControl.first, oControl.second));
    aoShown.push_back(oControl);
  }
  return aoShown;
}

/// Every control is shown or hidden once, in the design's order; a row lies on one top, and no row
/// on the one before it, but for as much as neighbouring rows of the design overlap. Where a row's
/// last control is hidden behind one that is shown, the next row may lie on top of it.
inline void CheckRows(const std::vector<PackedControl>& aoShown,
                      const std::vector<std::string>& asHidden,
                      std::vector<DesignedControl> aoDesign) {
  std::stable_sort(aoDesign.begin(), aoDesign.end(),
                   [](const auto& a, const auto& b) { return a.nTop < b.nTop; });
  std::map<std::string, int> anSeen;
  for (const std::string& sHidden : asHidden) {
    ++anSeen[sHidden];
  }
  auto oAt = aoDesign.begin();
  const DesignedControl* pBefore = nullptr;
  int nTopBefore = 0;
  for (const auto& [sName, nTop] : aoShown) {
    ++anSeen[sName];
    oAt = std::find_if(oAt, aoDesign.end(), [&](const auto& o) { return o.sName == sName; });
    ASSERT_NE(oAt, aoDesign.end()) << sName << " is out of order";
    if (pBefore != nullptr && oAt->nTop == pBefore->nTop) {
      EXPECT_EQ(nTop, nTopBefore) << sName << " beside " << pBefore->sName;
    } else if (pBefore != nullptr && (pBefore + 1)->nTop != pBefore->nTop) {  // it ends its row
      const int nOverlap = std::max(0, pBefore->nTop + pBefore->nHeight - (pBefore + 1)->nTop);
      EXPECT_GE(nTop, nTopBefore + pBefore->nCurrentHeight - nOverlap) << sName;
    }
    pBefore = &*oAt;
    nTopBefore = nTop;
  }
  for (const DesignedControl& oControl : aoDesign) {
    EXPECT_EQ(anSeen[oControl.sName], 1) << oControl.sName;
  }
}

inline void CheckLayout(const clsControlLocator& oLocator,
                        const std::vector<DesignedControl>& aoDesign) {
  std::vector<std::string> asHidden(static_cast<std::size_t>(oLocator.ExcludedCount()));
  for (int i = 0; i < oLocator.ExcludedCount(); ++i) {
    EXPECT_TRUE(oLocator.GetExcludedControl(i, asHidden[static_cast<std::size_t>(i)]));
  }
  CheckRows(Shown(oLocator), asHidden, aoDesign);
}

}  // namespace quillet
