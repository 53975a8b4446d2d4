#include "shell/ctlWizard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QShortcut>
#include <QShowEvent>
#include <algorithm>
#include <array>

#include "base/basMain.h"
#include "base/failure.h"
#include "controls/ImageButton.h"
#include "controls/layout.h"
#include "look/palette.h"
#include "look/scale.h"
#include "sections/controlHelpers.h"
#include "shell/PageScroller.h"
#include "shell/ScheduleButton.h"
#include "shell/ScheduleLine.h"
#include "shell/WizardSteps.h"
#include "shell/tabOrder.h"
#include "shell/whatif/WhatIfButton.h"

namespace quillet {

namespace {

// Places in twips.
constexpr int kDesignWidth = 10335;
constexpr int kDesignHeight = 9015;
constexpr int kBelowSummary = 500;
constexpr int kLineAboveSummary = 120;
constexpr int kScheduleLineGap = 120;  // below the summary
constexpr int kScheduleLineHeight = 255;
constexpr int kButtonTop = 120;
constexpr int kButtonWidth = 1965;
constexpr int kButtonHeight = 495;
constexpr int kButtonGap = 300;  // keeps neighbours, whose places overlap, apart

constexpr int kWhatIfGap = 120;  // beside the summary
constexpr int kWhatIfWidth = 1290;
constexpr int kWhatIfHeight = 435;

constexpr double kInfoPoints = 13.0;

}  // namespace

ctlWizard::ctlWizard(QWidget* pParent)
    : QWidget(pParent),
      Control(static_cast<QWidget&>(*this)),
      m_oSet(
          *this, [this](bool bDocDirty) { emit Changed(bDocDirty); }, [this] { emit Shown(); }),
      m_pViewPort(Make<PageScroller>("fraViewPort", this)),
      m_oPages(m_oSet, m_pViewPort),
      m_pInfo(Make<Label>("lblInfo", this)),
      m_pSteps(Make<WizardSteps>("Steps", this)),
      m_pScheduleLine(Make<ScheduleLine>("ScheduleLine", ScheduleLine::Button::AtLeft, this)),
      m_pButtons(Make<Frame>("fraButtons", this)),
      m_pBack(Make<ImageButton>("imgBack", m_pButtons)),
      m_pNext(Make<ImageButton>("imgNext", m_pButtons)),
      m_pCancel(Make<ImageButton>("imgCancel", m_pButtons)),
      m_pWhatIf(MakeWhatIfButton(this)) {
  m_pInfo->SetCaption("Information is shown here");
  m_pInfo->SetFontSize(kInfoPoints, QFont::DemiBold);
  m_pInfo->setAlignment(Qt::AlignCenter);
  m_pInfo->setWordWrap(true);
  m_pInfo->Place(0, 360, 7695, 1095);
  m_pSteps->Place(0, 165, 7695, 330);
  TakePages();
  m_pViewPort->Place(-2160, 3120, 4215, 1935);
  m_oSet.ctlSellingCostsSection.Place(120, 6720, 4620, 2235);
  m_oSet.ctlSellingCostsSection.SetMode(1);
  ListenToSections();
  MakeButtons();
  MakeKeys();
  Place(0, 0, kDesignWidth, kDesignHeight);
}

void ctlWizard::TakePages() {
  m_oPages.Refresh();
  m_pSteps->SetSteps(m_oPages.Names());
}

void ctlWizard::ListenToSections() {
  const std::array aoSections = m_oSet.AllSections();
  for (SectionPanel* const pSection : aoSections) {
    connect(pSection, &SectionPanel::Changed, this,
            [this] { m_oSet.FollowChange(WorkingAuction()); });
  }
  ChainInputs(*this, {aoSections.begin(), aoSections.end()});
}

void ctlWizard::MakeButtons() {
  m_pButtons->Place(3480, 7920, 6135, 975);
  m_pBack->SetCaption("&Back");
  m_pBack->SetPicture(ButtonPicture::Back);
  m_pNext->SetPrimary(true);
  m_pCancel->SetCaption("&Cancel");
  QWidget* pBefore = m_oSet.ctlPostageSection.InputsInReadingOrder().last();
  int nLeft = 120;
  for (ImageButton* const pButton : {m_pBack, m_pNext, m_pCancel}) {
    constexpr int kPitch = 1920;
    pButton->SetGap(kButtonGap);
    pButton->Place(nLeft, kButtonTop, kButtonWidth, kButtonHeight);
    nLeft += kPitch;
    pButton->setFocusPolicy(Qt::TabFocus);  // a click turns the page, which leaves the box
    setTabOrder(pBefore, pButton);
    pBefore = pButton;
  }
  setTabOrder(pBefore, m_pWhatIf);
  setTabOrder(m_pWhatIf, &m_pScheduleLine->Schedule());
  connect(m_pBack, &QAbstractButton::clicked, this, &ctlWizard::imgBack_Click);
  connect(m_pNext, &QAbstractButton::clicked, this, &ctlWizard::imgNext_Click);
  connect(m_pCancel, &QAbstractButton::clicked, this, &ctlWizard::FinishWizard);
  connect(m_pWhatIf, &QAbstractButton::clicked, this, &ctlWizard::WhatIfClicked);
  connect(&m_pScheduleLine->Schedule(), &ScheduleButton::Chosen, this, &ctlWizard::ScheduleChosen);
}

/// Alt+Right does nothing on the last page: only Finish and Enter end the wizard.
void ctlWizard::MakeKeys() {
  const auto fnAdd = [this](const char* sKeys, const auto& fnAction) {
    auto* const pShortcut = new QShortcut(QKeySequence(sKeys), this);
    pShortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(pShortcut, &QShortcut::activated, this, fnAction);
  };
  fnAdd("Alt+Left", [this] {
    if (m_tCurrent && !m_tCurrent->bFirst) {
      imgBack_Click();
    }
  });
  fnAdd("Alt+Right", [this] {
    if (m_tCurrent && !m_tCurrent->bLast) {
      imgNext_Click();
    }
  });
}

void ctlWizard::RefreshSums(bool bUpdateControlDisplays) {
  m_oSet.RefreshSums(WorkingAuction(), bUpdateControlDisplays);
}

/// A hidden view updates everything else when it is shown.
void ctlWizard::FollowSchedule() {
  m_oSet.FollowSchedule();
  if (!isVisible()) {
    return;
  }
  m_pScheduleLine->Refresh();
  TakePages();
  const std::vector<WizardPage>& aPages = m_oPages.OnView();
  const auto pSame = std::find_if(aPages.begin(), aPages.end(), [this](const WizardPage& t) {
    return t.pFrame == m_tCurrent->pFrame;
  });
  const std::int32_t lPage = pSame != aPages.end() ? pSame->lIndex : m_tCurrent->lIndex - 1;
  ShowPage(static_cast<std::int16_t>(lPage));
  RefreshSums(true);
}

void ctlWizard::showEvent(QShowEvent* pEvent) {
  QWidget::showEvent(pEvent);
  if (!pEvent->spontaneous()) {
    IgnoreFailure([this] { UserControl_Show(); });
  }
}

void ctlWizard::UserControl_Show() {
  for (QWidget* const pWidget : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (auto* const pControl = dynamic_cast<Control*>(pWidget)) {
      ApplyThemeColours(*pControl);
    }
  }
  m_oSet.ctlSellingCostsSection.SetMode(1);
  m_pScheduleLine->Refresh();
  m_oSet.FollowSchedule();
  TakePages();
  ShowPage(0);
  RefreshSums(true);
  UserControl_Resize();
}

/// Text typed on the previous page is entered first, as by any other way of leaving its box.
void ctlWizard::ShowPage(std::int16_t nPage) {
  LeaveInput();
  for (const WizardPage& tPage : m_oPages.OnView()) {
    if (tPage.lIndex == nPage) {
      TurnTo(tPage);
    } else {
      tPage.oSection->SetVisible(false);
      tPage.pFrame->SetVisible(false);
    }
  }
  FocusFirstInput();
  update();
}

void ctlWizard::TurnTo(const WizardPage& tPage) {
  m_tCurrent = tPage;
  m_pInfo->SetCaption(QString::fromStdString(tPage.sInfo));
  m_pSteps->SetCurrent(tPage.lIndex);
  m_pViewPort->Show(*tPage.pFrame, *tPage.oSection);
  m_pBack->SetVisible(!tPage.bFirst);
  m_pNext->SetVisible(true);
  m_pNext->SetCaption(tPage.bLast ? "&Finish" : "&Next");
  m_pNext->SetPicture(tPage.bLast ? ButtonPicture::Finish : ButtonPicture::Next);
  m_pCancel->SetVisible(true);
}

void ctlWizard::imgBack_Click() {
  ShowPage(static_cast<std::int16_t>(m_tCurrent->lIndex - 1));
}

/// A page with a refused amount stays once, so that the user sees it.
void ctlWizard::imgNext_Click() {
  if (!ctlNumericText::CommitFocused()) {
    return;
  }
  if (m_tCurrent->bLast) {
    FinishWizard();
  } else {
    ShowPage(static_cast<std::int16_t>(m_tCurrent->lIndex + 1));
  }
}

void ctlWizard::FinishWizard() {
  LeaveInput();
  emit WizardComplete();
}

/// A place that doesn't change needs no layout, which would also scroll the page back.
void ctlWizard::Placed() {
  if (Width() != m_lLaidWidth || Height() != m_lLaidHeight) {
    UserControl_Resize();
  }
}

/// The buttons keep to the right edge, but never overlap the summary.
void ctlWizard::UserControl_Resize() {
  m_lLaidWidth = Width();
  m_lLaidHeight = Height();
  ctlSellingCosts& oSummary = m_oSet.ctlSellingCostsSection;
  m_pInfo->SetWidth(Width());
  m_pSteps->SetWidth(Width());
  m_pButtons->SetLeft(std::max(Width() - m_pButtons->Width(), oSummary.Left() + oSummary.Width()));
  m_pButtons->SetTop(Height() - m_pButtons->Height() - kBelowSummary);
  oSummary.SetTop(Height() - oSummary.Height() - kBelowSummary);
  m_pScheduleLine->Place(oSummary.Left(), Height() - kBelowSummary + kScheduleLineGap,
                         Width() - 2 * oSummary.Left(), kScheduleLineHeight);
  m_pWhatIf->Place(oSummary.Left() + oSummary.Width() + kWhatIfGap, oSummary.Top(), kWhatIfWidth,
                   kWhatIfHeight);
  m_lLineTop = oSummary.Top() - kLineAboveSummary;
  const int nTop = m_pInfo->Top() + m_pInfo->Height();
  m_pViewPort->Place(0, nTop, Width(), std::max(1, m_lLineTop - nTop));
  m_pViewPort->LayOut();
  update();
}

/// The card of the page's section, and the band of the summary and the buttons, below its rule.
void ctlWizard::paintEvent(QPaintEvent* /*pEvent*/) {
  QPainter oPainter(this);
  oPainter.fillRect(rect(), InkColour(Ink::Ground));
  const int nLine = Pixels(m_lLineTop);
  oPainter.fillRect(QRect(0, nLine, width(), std::max(0, height() - nLine)), InkColour(Ink::Panel));
  oPainter.fillRect(QRect(0, nLine, width(), 1), InkColour(Ink::Hairline));
  m_pViewPort->PaintCard(oPainter);
}

/// A click beside the section leaves the box that was typed into; the buttons keep theirs.
void ctlWizard::mousePressEvent(QMouseEvent* /*pEvent*/) {
  setFocus(Qt::MouseFocusReason);
}

/// From outside the section Tab goes to the page's first input.
bool ctlWizard::focusNextPrevChild(bool bNext) {
  if (!hasFocus() || !bNext || !m_tCurrent) {
    return QWidget::focusNextPrevChild(bNext);
  }
  FocusFirstInput();
  return true;
}

/// Buttons handle these keys themselves.
void ctlWizard::keyPressEvent(QKeyEvent* pEvent) {
  if (!m_tCurrent || pEvent->isAutoRepeat()) {
    QWidget::keyPressEvent(pEvent);
    return;
  }
  switch (pEvent->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      imgNext_Click();
      break;
    case Qt::Key_Escape:
      FinishWizard();
      break;
    default:
      QWidget::keyPressEvent(pEvent);
  }
}

void ctlWizard::LeaveInput() {
  const QWidget* const pFocus = QApplication::focusWidget();
  if (pFocus != nullptr && m_pViewPort->isAncestorOf(pFocus)) {
    ctlNumericText::LeaveFor(*this);
  }
}

void ctlWizard::FocusFirstInput() {
  const QList<QWidget*> aoInputs = m_tCurrent->oSection->InputsInReadingOrder();
  const auto pFirst = std::find_if(aoInputs.begin(), aoInputs.end(), [this](const QWidget* p) {
    return p->isEnabled() && p->isVisibleTo(m_tCurrent->oSection);
  });
  if (pFirst != aoInputs.end()) {
    (*pFirst)->setFocus(Qt::TabFocusReason);  // typing replaces the text there
  }
}

}  // namespace quillet
