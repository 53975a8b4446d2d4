// The rows of a section: which of them are on view, where they are, and the boxes beside them.
#include <algorithm>

#include "base/FlagGuard.h"
#include "controls/SectionHeader.h"
#include "sections/SectionPanel.h"
#include "sections/VisibleList.h"
#include "sections/controlHelpers.h"

namespace quillet {
namespace {

constexpr int kBoxGap = 10;  // twips between the panel's edge and its Show boxes

bool Contains(const std::string& sText, const std::string& sPart) {
  return sText.find(sPart) != std::string::npos;
}

/// False if only one of them is in a Frame.
bool InContainersOfOneType(const Control& a, const Control& b) {
  return std::string_view(a.Container()->TypeName()) == b.Container()->TypeName();
}

}  // namespace

void SectionPanel::EnsureVisibleList() {
  clsTokeniser oList = LoadVisibleList(SectionKey());
  const bool bNew = oList.IsEmpty();
  if (bNew) {
    for (const Control* const pControl : m_aoControls) {
      if (IsShowCheck(*pControl)) {
        oList.AddToArray(pControl->Tag());
      }
    }
  }
  const bool bAdded = AddOwnNames(oList);
  if (bNew || bAdded) {
    SaveVisibleList(SectionKey(), oList);
  }
}

/// A show uses the places of the design: by then rows may have been packed onto the places of
/// hidden ones, and controls with the same top would count as one row.
void SectionPanel::BuildLocator(RowPlaces ePlaces) {
  m_oLocator.Reset();
  m_oLocator.SetSection(SectionKey());
  for (std::size_t i = 0; i < m_aoControls.size(); ++i) {
    const Control& oControl = *m_aoControls[i];
    if (IsHeaderImage(oControl) || IsShowCheck(oControl)) {
      continue;
    }
    const ControlDesign& oDesign = m_oDesign.aoControls[i];
    const bool bDesigned = ePlaces == RowPlaces::kDesigned;
    const bool bInFrame = std::string_view(oControl.Container()->TypeName()) == "Frame";
    m_oLocator.AddControl(oControl.Name(), bDesigned ? oDesign.nTop : oControl.Top(),
                          bDesigned ? oDesign.nHeight : oControl.Height(), bInFrame);
  }
  if (m_oDesign.bAddingComplete) {
    m_oLocator.SetAddingComplete(true);
  }
}

void SectionPanel::UpdateLocator() {
  for (const Control* const pControl : m_aoControls) {
    if (!IsHeaderImage(*pControl) && !IsShowCheck(*pControl)) {
      m_oLocator.UpdateHeight(pControl->Name(), pControl->Height());
      m_oLocator.UpdateUse(pControl->Name(), IsInUse(*pControl));
    }
  }
}

void SectionPanel::LoadShowChecks() {
  const FlagGuard oLoading(m_bLoading);
  const clsTokeniser oList = LoadVisibleList(SectionKey());
  for (Control* const pControl : m_aoControls) {
    if (IsShowCheck(*pControl)) {
      ApplyShowCheck(dynamic_cast<CheckBox&>(*pControl), oList);
    }
  }
}

int SectionPanel::ConfigWidth() const {
  const Control& oBox = *Find(m_oDesign.sReferenceBox);
  return oBox.Width() + oBox.Left() + kBoxGap;
}

void SectionPanel::UpdateSectionLayout() {
  if (SectionHeader* const pHeader = Header()) {
    pHeader->SetVisible(false);
  }
  const int nWidth =
      m_bShowConfig ? ConfigWidth() : Find(m_oDesign.sReferenceBox)->Left() - kBoxGap;
  ApplyAllVisibility();
  PlaceControls();
  EnableShowChecks();
  SetWidth(nWidth);
  update();
}

void SectionPanel::ApplyAllVisibility() {
  if (m_oDesign.sVisibilityList == nullptr) {
    return;
  }
  const clsTokeniser oList = LoadVisibleList(m_oDesign.sVisibilityList);
  for (Control* const pControl : m_aoControls) {
    if (IsRow(*pControl)) {
      ApplyControlVisibility(*pControl, oList, m_bShowConfig);
    }
  }
}

/// The panel's height is the bottom of the last control placed, not of the lowest.
void SectionPanel::PlaceControls() {
  UpdateLocator();
  m_oLocator.UpdateVisibility();
  m_oLocator.BuildList(!m_bShowConfig);
  int nHeight = 0;
  std::string sName;
  for (int i = 0; i < m_oLocator.ExcludedCount(); ++i) {
    m_oLocator.GetExcludedControl(i, sName);
    if (Control* const pControl = Find(sName)) {
      pControl->SetVisible(false);
    }
  }
  int nTop = 0;
  for (int i = 0; i < m_oLocator.IncludedCount(); ++i) {
    m_oLocator.GetIncludedControl(i, sName, nTop);
    if (Control* const pControl = Find(sName)) {
      pControl->SetVisible(true);
      pControl->SetTop(nTop);
      nHeight = pControl->Height() + pControl->Top();
      AfterPlacing(*pControl);
    }
  }
  SetHeight(nHeight);
}

/// Out of config mode the boxes are beyond the panel's edge. Their widgets are hidden too, whatever
/// their own flags say, so that a screen reader skips them.
void SectionPanel::EnableShowChecks() {
  for (Control* const pControl : m_aoControls) {
    if (IsShowCheck(*pControl)) {
      pControl->SetEnabled(m_bShowConfig);
      pControl->Widget().setVisible(m_bShowConfig && pControl->Visible());
    }
  }
  AlignShowChecks();
}

/// A box whose row the region lacks is hidden with it, and stays hidden.
void SectionPanel::AlignShowChecks() {
  if (!m_bShowConfig) {
    return;
  }
  for (Control* const pBox : m_aoControls) {
    if (!IsShowCheck(*pBox) || !pBox->Visible()) {
      continue;
    }
    if (const Control* const pRow = FindRowControl(*pBox)) {
      pBox->SetTop(pRow->Top());
      pBox->SetVisible(pRow->Visible());
    }
  }
}

Control* SectionPanel::FindRowControl(const Control& oBox) const {
  const auto pFound = std::find_if(m_aoControls.begin(), m_aoControls.end(), [&](Control* p) {
    const bool bKind = !m_oDesign.bRowsByLabel || std::string_view(p->TypeName()) == "Label";
    return bKind && Contains(p->Name(), oBox.Tag()) && InContainersOfOneType(*p, oBox) &&
           !IsSubControl(*p) && !IsShowCheck(*p);
  });
  return pFound == m_aoControls.end() ? nullptr : *pFound;
}

/// Stores which boxes are ticked. Nothing moves: in config mode every row stays visible.
void SectionPanel::SaveShowChecks() {
  if (m_bLoading) {
    return;
  }
  clsTokeniser oList;
  for (const Control* const pControl : m_aoControls) {
    if (IsShowCheck(*pControl) && dynamic_cast<const CheckBox&>(*pControl).Value() != 0) {
      oList.AddToArray(pControl->Tag());
    }
  }
  if (StoresOwnNames()) {
    AddOwnNames(oList);
  }
  SaveVisibleList(SectionKey(), oList);
  if (m_oDesign.bAddingComplete) {
    m_oLocator.UpdateVisibility();
  } else {
    BuildLocator(RowPlaces::kAsTheyStand);
  }
}

}  // namespace quillet
