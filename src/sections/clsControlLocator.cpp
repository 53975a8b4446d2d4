#include "sections/clsControlLocator.h"

#include <algorithm>

#include "base/regionControls.h"
#include "sections/VisibleList.h"

namespace quillet {

clsControlLocator::clsControlLocator() : m_aoControls(1), m_aoIncluded(1), m_asExcluded(1) {}

void clsControlLocator::SetSection(const std::string& sSectionKey) {
  m_sSection = sSectionKey;
  m_oList = LoadVisibleList(sSectionKey);
}

bool clsControlLocator::Reset() {
  if (!m_bAddingComplete) {
    *this = clsControlLocator();
  }
  return false;
}

void clsControlLocator::AddControl(const std::string& sName, std::int32_t lTop,
                                   std::int32_t lHeight, bool bInFrame) {
  if (m_bAddingComplete || bInFrame) {
    return;
  }
  if (!m_aoControls.back().sName.empty()) {
    m_aoControls.emplace_back();
  }
  m_aoControls.back() = {sName, lTop, lHeight, lHeight, NameInVisibleList(sName, m_oList), true};
  m_bSorted = false;
  m_bBuiltControls = false;
}

clsControlLocator::Registered* clsControlLocator::Find(const std::string& sName) {
  const auto oFound = std::find_if(m_aoControls.begin(), m_aoControls.end(),
                                   [&](const auto& oControl) { return oControl.sName == sName; });
  return oFound != m_aoControls.end() ? &*oFound : nullptr;
}

void clsControlLocator::UpdateHeight(const std::string& sName, std::int32_t lHeight) {
  if (Registered* const pControl = Find(sName)) {
    pControl->lCurrentHeight = lHeight;
  }
}

void clsControlLocator::UpdateUse(const std::string& sName, bool bInUse) {
  if (Registered* const pControl = Find(sName)) {
    pControl->bInUse = bInUse;
  }
}

void clsControlLocator::UpdateVisibility() {
  m_oList = LoadVisibleList(m_sSection);
  for (Registered& oControl : m_aoControls) {
    oControl.bInList = NameInVisibleList(oControl.sName, m_oList);
  }
}

/// The controls of a row keep the order in which they were added.
void clsControlLocator::SortByTop() {
  if (!m_bSorted) {
    std::stable_sort(m_aoControls.begin(), m_aoControls.end(),
                     [](const auto& a, const auto& b) { return a.lTop < b.lTop; });
    m_bSorted = true;
  }
}

void clsControlLocator::BuildList(bool bApplyList) {
  SortByTop();
  m_aoIncluded.clear();
  m_asExcluded.clear();
  // Packing begins where the design's first row is, whether or not that row is shown.
  std::int32_t lTop = m_aoControls.front().lTop;
  for (std::size_t i = 0; i < m_aoControls.size(); ++i) {
    const Registered& oControl = m_aoControls[i];
    const bool bInclude =
        (!bApplyList || oControl.bInList) && oControl.bInUse && RegionAllowsControl(oControl.sName);
    if (!bInclude) {
      // The top stays even if the row ends here, so a dropped row takes no space. It also stays if
      // the row had controls to show before this one: the next row then overlaps them, which
      // sections avoid by the order of their controls.
      m_asExcluded.push_back(oControl.sName);
      continue;
    }
    m_aoIncluded.push_back({oControl.sName, lTop});
    if (i + 1 < m_aoControls.size() && m_aoControls[i + 1].lTop != oControl.lTop) {
      const std::int32_t lDesignGap = m_aoControls[i + 1].lTop - (oControl.lTop + oControl.lHeight);
      lTop += oControl.lCurrentHeight + lDesignGap;
    }
  }
  m_lIncludedCount = static_cast<std::int32_t>(m_aoIncluded.size());
  m_lExcludedCount = static_cast<std::int32_t>(m_asExcluded.size());
  m_aoIncluded.resize(std::max<std::size_t>(1, m_aoIncluded.size()));
  m_asExcluded.resize(std::max<std::size_t>(1, m_asExcluded.size()));
  m_bBuiltControls = true;
}

bool clsControlLocator::IsIndex(std::int32_t lIndex, std::size_t nPlaces) const {
  return m_bBuiltControls && lIndex >= 0 && static_cast<std::size_t>(lIndex) < nPlaces;
}

bool clsControlLocator::GetIncludedControl(std::int32_t lIndex, std::string& sName,
                                           std::int32_t& lTop) const {
  if (!IsIndex(lIndex, m_aoIncluded.size())) {
    return false;
  }
  const Included& oIncluded = m_aoIncluded[static_cast<std::size_t>(lIndex)];
  sName = oIncluded.sName;
  lTop = oIncluded.lTop;
  return true;
}

bool clsControlLocator::GetExcludedControl(std::int32_t lIndex, std::string& sName) const {
  if (!IsIndex(lIndex, m_asExcluded.size())) {
    return false;
  }
  sName = m_asExcluded[static_cast<std::size_t>(lIndex)];
  return true;
}

}  // namespace quillet
