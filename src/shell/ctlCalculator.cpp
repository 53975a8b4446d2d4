#include "shell/ctlCalculator.h"

#include <QApplication>
#include <QPainter>
#include <QShowEvent>
#include <algorithm>
#include <cmath>

#include "base/basMain.h"
#include "base/clsRegistryAccess.h"
#include "base/conversions.h"
#include "base/failure.h"
#include "base/region.h"
#include "controls/layout.h"
#include "look/marks.h"
#include "look/palette.h"
#include "look/scale.h"
#include "shell/ScheduleButton.h"
#include "shell/ScheduleLine.h"
#include "shell/tabOrder.h"
#include "shell/whatif/WhatIfButton.h"

namespace quillet {
namespace {

constexpr int kDesignWidth = 12075;
constexpr int kDesignHeight = 12510;

/// The rule below the summary, where the summary's card ends.
constexpr int kLineTop = 1200;
constexpr int kLineLeft = 120;

/// In the summary's last row, whose second block is empty, up to the end of its card.
constexpr int kScheduleLineLeft = 3360;
constexpr int kScheduleLineTop = 855;
constexpr int kScheduleLineHeight = 225;
constexpr int kScheduleLineGap = 225;  // to the view's right edge

constexpr int kAbsent = -1;  // an entry of this value counts as none

std::string SectionOf(const SectionPanel& oSection) {
  return settings::kControls + std::string(oSection.SectionKey());
}

QRect CardOf(const SectionPanel& oSection) {
  constexpr int kSides = 105;
  constexpr int kAbove = 60;
  constexpr int kBelow = 120;
  return {QPoint(Pixels(oSection.Left() + oSection.ContentLeft() - kSides),
                 Pixels(oSection.Top() - kAbove)),
          QPoint(Pixels(oSection.Left() + oSection.Width() + kSides) - 1,
                 Pixels(oSection.Top() + oSection.Height() + kBelow) - 1)};
}

bool Holds(const SectionPanel& oSection, const QWidget* pWidget) {
  return pWidget != nullptr && (pWidget == &oSection || oSection.isAncestorOf(pWidget));
}

}  // namespace

ctlCalculator::ctlCalculator(QWidget* pParent)
    : QWidget(pParent),
      Control(static_cast<QWidget&>(*this)),
      m_oSet(
          *this, [this](bool bDocDirty) { emit Changed(bDocDirty); }, [this] { emit Shown(); }),
      m_pScheduleLine(Make<ScheduleLine>("ScheduleLine", ScheduleLine::Button::AtRight, this)),
      m_pWhatIf(MakeWhatIfButton(this)) {
  const bool bUnitedStates = RegionCode() == 1;
  PlaceAll(std::to_array<ControlPlace>({
      {&m_oSet.ctlSellingCostsSection, 120, 120, 10755, 960},
      {&m_oSet.ctlOutlaySection, 240, 1560, 5550, 1935},
      {&m_oSet.ctlPayPalSection, 5760, 1560, 3150, 3615},
      {&m_oSet.ctlAuctionTypeSection, 9000, 1560, 3030, 7455},
      {&m_oSet.ctlSellingFeaturesSection, 120, 3600, 3750, 6975},
      {&m_oSet.ctlPostageSection, 4440, 5640, 4350, 5055},
      // Where the region's other rows leave room: under the postage, or under the auction type.
      {&m_oSet.ctlSaleFeesSection, bUnitedStates ? 4440 : 9000, bUnitedStates ? 7800 : 4800, 4350,
       2695},
  }));
  for (Card*& pCard : m_apCards) {
    pCard = new Card(this);
    pCard->setAttribute(Qt::WA_TransparentForMouseEvents);
  }
  Place(0, 0, kDesignWidth, kDesignHeight);
  setFocusPolicy(Qt::ClickFocus);  // a click beside the sections leaves the box that was typed into
  m_oSet.ctlSellingCostsSection.SetMode(0);
  for (SectionPanel* const pSection : m_oSet.AllSections()) {
    connect(pSection, &SectionPanel::Changed, this, [this] { m_oSet.FollowChange(Document()); });
    connect(pSection, &SectionPanel::Moved, this, [this, pSection](float fX, float fY) {
      IgnoreFailure([&] { MoveSection(*pSection, fX, fY); });
    });
  }
  connect(m_pWhatIf, &QAbstractButton::clicked, this, &ctlCalculator::WhatIfClicked);
  connect(&m_pScheduleLine->Schedule(), &ScheduleButton::Chosen, this,
          &ctlCalculator::ScheduleChosen);
  connect(qApp, &QApplication::focusChanged, this, &ctlCalculator::FollowFocus);
}

/// The sections are destroyed after the view, and a focused input among them then loses focus.
ctlCalculator::~ctlCalculator() {
  qApp->disconnect(this);
}

void ctlCalculator::SetConfigMode(bool bConfigMode) {
  m_bConfigMode = bConfigMode;
  UserControl_Show();
}

void ctlCalculator::ResetControlPositions() {
  const auto fnDesign = [this](const std::string& sKey) {
    const auto pEntry = m_colDesignPositions.find(sKey);
    return pEntry == m_colDesignPositions.end() ? kAbsent : pEntry->second;
  };
  for (SectionPanel* const pSection : m_oSet.Sections()) {
    const int nLeft = fnDesign(pSection->SectionKey() + std::string("_Left"));
    const int nTop = fnDesign(pSection->SectionKey() + std::string("_Top"));
    pSection->SetLeft(nLeft == kAbsent ? pSection->Left() : nLeft);
    pSection->SetTop(nTop == kAbsent ? pSection->Top() : nTop);
  }
  SaveSectionPositions();
  FollowPlaces();
}

void ctlCalculator::RefreshSums(bool bUpdateControlDisplays, clsCalculate* pDocument) {
  if (m_oSet.IsRefreshing()) {
    return;
  }
  m_oDocument = pDocument != nullptr ? pDocument : m_oDocument;
  m_oSet.RefreshSums(Document(), bUpdateControlDisplays);
}

/// A hidden view updates everything else when it is shown.
void ctlCalculator::FollowSchedule() {
  m_oSet.FollowSchedule();
  if (isVisible()) {
    UserControl_Show();
  }
}

clsCalculate& ctlCalculator::Document() const {
  return m_oDocument != nullptr ? *m_oDocument : WorkingAuction();
}

void ctlCalculator::CalcMinSize(int& nWidth, int& nHeight) const {
  nWidth = 0;
  nHeight = 0;
  GrowToHold(nWidth, nHeight, m_oSet.ctlSellingCostsSection);
  for (const SectionPanel* const pSection : m_oSet.Sections()) {
    if (pSection != &m_oSet.ctlAuctionTypeSection) {
      GrowToHold(nWidth, nHeight, *pSection);
    }
  }
}

void ctlCalculator::WholeSize(bool bInConfigMode, int& nWidth, int& nHeight) const {
  CalcMinSize(nWidth, nHeight);
  GrowToHold(nWidth, nHeight, m_oSet.ctlAuctionTypeSection);
  for (const SectionPanel* const pSection : m_oSet.Sections()) {
    const int nOfSection = bInConfigMode ? pSection->ConfigWidth() : pSection->Width();
    nWidth = std::max(nWidth, pSection->Left() + nOfSection);
  }
}

void ctlCalculator::GrowToHold(int& nWidth, int& nHeight, const Control& oControl) const {
  nWidth = std::max(nWidth, oControl.Left() + oControl.Width());
  nHeight = std::max(nHeight, oControl.Top() + oControl.Height());
}

void ctlCalculator::showEvent(QShowEvent* pEvent) {
  QWidget::showEvent(pEvent);
  if (!pEvent->spontaneous()) {
    IgnoreFailure([this] { UserControl_Show(); });
  }
}

/// The card of the summary, which ends at the rule below it.
void ctlCalculator::paintEvent(QPaintEvent* /*pEvent*/) {
  constexpr int kAbove = 30;
  constexpr int kBelowLine = 60;
  constexpr int kSides = 45;
  QPainter oPainter(this);
  oPainter.setRenderHint(QPainter::Antialiasing);
  oPainter.fillRect(rect(), InkColour(Ink::Ground));
  DrawCard(oPainter, {QPointF(Pixels(kLineLeft - kSides), Pixels(kLineLeft - kAbove)),
                      QPointF(width() - Pixels(kLineLeft), Pixels(kLineTop + kBelowLine))});
}

/// Each right behind its section, so that the one in front shows its whole edge.
void ctlCalculator::Placed() {
  m_pScheduleLine->Place(kScheduleLineLeft, kScheduleLineTop,
                         Width() - kScheduleLineGap - kScheduleLineLeft, kScheduleLineHeight);
  PlaceWhatIf();
  PlaceCards();
}

/// At the right end of the summary's card: beside the profit, or below it if there is no room.
void ctlCalculator::PlaceWhatIf() {
  constexpr int kWidth = 1290;
  constexpr int kRightGap = 225;
  constexpr int kEndOfProfit = 10455;
  constexpr int kTop = 180;
  constexpr int kHeight = 435;
  constexpr int kLowTop = 540;
  constexpr int kLowHeight = 315;
  const int nLeft = Width() - kRightGap - kWidth;
  const bool bBeside = nLeft >= kEndOfProfit;
  m_pWhatIf->Place(nLeft, bBeside ? kTop : kLowTop, kWidth, bBeside ? kHeight : kLowHeight);
}

void ctlCalculator::PlaceCards() {
  for (std::size_t i = 0; i < m_apCards.size(); ++i) {
    SectionPanel& oSection = *m_oSet.AllSections().at(i);
    m_apCards.at(i)->setGeometry(CardOf(oSection));
    m_apCards.at(i)->setVisible(m_oSet.IsOnView(oSection) && oSection.Height() > 0);
    m_apCards.at(i)->stackUnder(&oSection);
  }
}

void ctlCalculator::UserControl_Show() {
  m_oSet.FollowSchedule();
  for (SectionPanel* const pSection : m_oSet.Sections()) {
    pSection->SetShowConfig(m_bConfigMode);
  }
  LoadSectionPositions();
  FollowPlaces();
  m_pScheduleLine->Refresh();
  RefreshSums(true);
}

/// The cards, and the Tab order, follow the present places of the sections.
void ctlCalculator::FollowPlaces() {
  PlaceCards();
  OrderTabs();
}

void ctlCalculator::OrderTabs() {
  const std::vector aoSections = m_oSet.Sections();
  std::vector<SectionPlace> aoPlaces;
  aoPlaces.reserve(aoSections.size());
  for (const SectionPanel* const pSection : aoSections) {
    aoPlaces.push_back({pSection->Left(), pSection->Top(), pSection->Width()});
  }
  std::vector<SectionPanel*> aoInOrder;
  for (const std::size_t nSection : ReadingOrder(aoPlaces)) {
    aoInOrder.push_back(aoSections.at(nSection));
  }
  setTabOrder(ChainInputs(*this, aoInOrder), m_pWhatIf);
  setTabOrder(m_pWhatIf, &m_pScheduleLine->Schedule());
}

/// The focus is a section's when any control inside it has it.
void ctlCalculator::FollowFocus(const QWidget* pOld, const QWidget* pNow) {
  for (SectionPanel* const pSection : m_oSet.Sections()) {
    const bool bBefore = Holds(*pSection, pOld);
    const bool bNow = Holds(*pSection, pNow);
    if (bNow && !bBefore) {
      pSection->GotFocus();
    } else if (bBefore && !bNow) {
      pSection->LostFocus();
    }
  }
}

void ctlCalculator::MoveSection(SectionPanel& oSection, float fX, float fY) {
  SnapSection(oSection, oSection.Left() + double{fX}, oSection.Top() + double{fY});
  SaveSectionPositions();
  FollowPlaces();
}

/// To the nearest point of the grid, an exact half to the even one. No place is out of bounds.
void ctlCalculator::SnapSection(SectionPanel& oSection, Single fLeft, Single fTop) {
  const auto fnSnap = [](Single fWanted) {
    return RoundToLong(std::nearbyint(fWanted / g_lSnapToGrid) * g_lSnapToGrid);
  };
  const int nLeft = fnSnap(fLeft);
  const int nTop = fnSnap(fTop);
  oSection.raise();
  oSection.SetLeft(nLeft);
  oSection.SetTop(nTop);
}

void ctlCalculator::SaveSectionPositions() const {
  for (const SectionPanel* const pSection : m_oSet.Sections()) {
    const std::string sSection = SectionOf(*pSection);
    Registry().Set(sSection, settings::kTop, std::to_string(pSection->Top()));
    Registry().Set(sSection, settings::kLeft, std::to_string(pSection->Left()));
  }
}

/// The first time, remembers where the design has the sections. A stored place that isn't a number
/// is ignored.
void ctlCalculator::LoadSectionPositions() {
  const auto fnStored = [](const SectionPanel& oSection, const char* sName, int nPlace) {
    return ToLong(Registry().Find(SectionOf(oSection), sName).value_or("")).value_or(nPlace);
  };
  for (SectionPanel* const pSection : m_oSet.Sections()) {
    m_colDesignPositions.try_emplace(pSection->SectionKey() + std::string("_Left"),
                                     pSection->Left());
    m_colDesignPositions.try_emplace(pSection->SectionKey() + std::string("_Top"), pSection->Top());
    pSection->SetTop(fnStored(*pSection, settings::kTop, pSection->Top()));
    pSection->SetLeft(fnStored(*pSection, settings::kLeft, pSection->Left()));
  }
}

}  // namespace quillet
