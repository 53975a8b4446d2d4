#include "shell/ctlWizard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QShortcut>
#include <QShowEvent>
#include <QWheelEvent>
#include <algorithm>
#include <vector>

#include "base/basMain.h"
#include "base/clsRegistryAccess.h"
#include "base/conversions.h"
#include "base/failure.h"
#include "controls/ImageButton.h"
#include "controls/ScrollBar.h"
#include "controls/layout.h"
#include "look/marks.h"
#include "look/palette.h"
#include "look/scale.h"
#include "sections/controlHelpers.h"
#include "shell/MissingPriceLine.h"
#include "shell/WizardSteps.h"
#include "shell/tabOrder.h"

namespace quillet {

namespace {

// Places in twips.
constexpr int kDesignWidth = 10335;
constexpr int kDesignHeight = 9015;
constexpr int kBelowSummary = 500;
constexpr int kLineAboveSummary = 120;
constexpr int kMissingPriceGap = 120;  // below the summary
constexpr int kMissingPriceHeight = 255;
constexpr int kButtonTop = 120;
constexpr int kButtonWidth = 1965;
constexpr int kButtonHeight = 495;
constexpr int kButtonGap = 300;  // so that neighbours, whose places overlap, stand apart

constexpr double kInfoPoints = 13.0;

std::string PageInfoText(std::int16_t nFrame) {
  return Registry().Get(settings::kPageInfo.at(static_cast<std::size_t>(nFrame)));
}

/// A section that turns visible gives its rows the colour of text, and nothing fills it in anew
/// when its page comes: what can't be chosen stays grey.
void ShowWithGreys(SectionPanel& oSection) {
  std::vector<Control*> aoGrey;
  for (QWidget* const pWidget : oSection.findChildren<QWidget*>()) {
    auto* const pControl = dynamic_cast<Control*>(pWidget);
    if (pControl != nullptr && pControl->ForeColor() == kColourGreyText) {
      aoGrey.push_back(pControl);
    }
  }
  oSection.SetVisible(true);
  for (Control* const pControl : aoGrey) {
    pControl->SetForeColor(kColourGreyText);
  }
}

/// As wide to the left as to the right of the frame's middle, which the instruction stands above.
QRectF CardOf(const Control& oFrame, const SectionPanel& oSection) {
  constexpr int kSides = 225;
  constexpr int kAbove = 105;
  constexpr int kBelow = 165;
  const int nLeft = oSection.Left() + oSection.ContentLeft() - kSides;
  return {QPointF(Pixels(oFrame.Left() + nLeft), Pixels(oSection.Top() - kAbove)),
          QPointF(Pixels(oFrame.Left() + oFrame.Width() - nLeft),
                  Pixels(oSection.Top() + oSection.Height() + kBelow))};
}

}  // namespace

ctlWizard::ctlWizard(QWidget* pParent)
    : QWidget(pParent),
      Control(static_cast<QWidget&>(*this)),
      m_oSet(*this, [this](bool bDocDirty) { emit Changed(bDocDirty); }),
      m_aPages(MakePages()),
      m_pInfo(Make<Label>("lblInfo", this)),
      m_pSteps(Make<WizardSteps>("Steps", this)),
      m_pMissingPrice(Make<MissingPriceLine>("MissingPrice", this)),
      m_pViewPort(Make<Frame>("fraViewPort", this)),
      m_pVert(Make<ScrollBar>("vsbVert", m_pViewPort)),
      m_pButtons(Make<Frame>("fraButtons", this)),
      m_pBack(Make<ImageButton>("imgBack", m_pButtons)),
      m_pNext(Make<ImageButton>("imgNext", m_pButtons)),
      m_pCancel(Make<ImageButton>("imgCancel", m_pButtons)) {
  m_pInfo->SetCaption("Information is shown here");
  m_pInfo->SetFontSize(kInfoPoints, QFont::DemiBold);
  m_pInfo->setAlignment(Qt::AlignCenter);
  m_pInfo->setWordWrap(true);
  m_pInfo->Place(0, 360, 7695, 1095);
  m_pSteps->Place(0, 165, 7695, 330);
  QStringList asNames;
  for (const WizardPage& tPage : m_aPages) {
    asNames += tPage.sName;
  }
  m_pSteps->SetSteps(asNames);
  m_pViewPort->Place(-2160, 3120, 4215, 1935);
  m_pVert->Place(8880, 1080, 255, 615);
  m_pVert->setAccessibleName("Scroll the page");
  m_pVert->SetVisible(false);
  m_oSet.ctlSellingCostsSection.Place(120, 6720, 4620, 2235);
  m_oSet.ctlSellingCostsSection.SetMode(1);
  connect(m_pVert, &QScrollBar::valueChanged, this, &ctlWizard::vsbVert_Change);
  MakeFrames();
  MakeButtons();
  MakeKeys();
  Place(0, 0, kDesignWidth, kDesignHeight);
}

std::array<WizardPage, 5> ctlWizard::MakePages() const {
  const auto fnPage = [](const char* sName, std::int32_t lIndex, std::int16_t nFrame,
                         SectionPanel& oSection) {
    return WizardPage{sName,       lIndex,     nFrame, &oSection, PageInfoText(nFrame),
                      lIndex == 0, lIndex == 4};
  };
  return {fnPage("Auction Type", 0, 1, m_oSet.ctlAuctionTypeSection),
          fnPage("Outlay", 1, 0, m_oSet.ctlOutlaySection),
          fnPage("Features", 2, 2, m_oSet.ctlSellingFeaturesSection),
          fnPage("PayPal", 3, 3, m_oSet.ctlPayPalSection),
          fnPage("Postage", 4, 4, m_oSet.ctlPostageSection)};
}

/// The sections go after the view, and an input among them that has the focus loses it then.
ctlWizard::~ctlWizard() {
  qApp->disconnect(this);
}

void ctlWizard::MakeFrames() {
  struct FrameDesign {
    int nWidth;
    int nHeight;
    SectionPanel& oSection;
    int nLeft;
    int nSectionWidth;
    int nSectionHeight;
  };
  constexpr int kSectionTop = 120;
  const std::array aoFrames = std::to_array<FrameDesign>({
      {5175, 2415, m_oSet.ctlOutlaySection, 120, 4815, 2295},
      {3495, 7335, m_oSet.ctlAuctionTypeSection, 120, 3255, 7095},
      {4095, 7215, m_oSet.ctlSellingFeaturesSection, 240, 3735, 6975},
      {3255, 4575, m_oSet.ctlPayPalSection, 120, 3015, 4335},
      {4935, 6375, m_oSet.ctlPostageSection, 240, 4575, 6255},
  });
  for (std::size_t i = 0; i < aoFrames.size(); ++i) {
    const auto& [nWidth, nHeight, oSection, nLeft, nSectionWidth, nSectionHeight] = aoFrames.at(i);
    m_apPages.at(i) = Make<Frame>("fraPages", m_pViewPort);
    m_apPages.at(i)->Place(0, 0, nWidth, nHeight);
    oSection.setParent(m_apPages.at(i));
    oSection.SetVisible(true);
    oSection.Place(nLeft, kSectionTop, nSectionWidth, nSectionHeight);
    connect(&oSection, &SectionPanel::Changed, this,
            [this] { m_oSet.FollowChange(WorkingAuction()); });
  }
  m_pVert->raise();
  const std::array aoSections = m_oSet.Sections();
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
  connect(m_pBack, &QAbstractButton::clicked, this, &ctlWizard::imgBack_Click);
  connect(m_pNext, &QAbstractButton::clicked, this, &ctlWizard::imgNext_Click);
  connect(m_pCancel, &QAbstractButton::clicked, this, &ctlWizard::FinishWizard);
}

/// On the last page there is nothing to go on to: only Finish, by its own name or by Enter, ends.
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
  connect(qApp, &QApplication::focusChanged, this,
          [this](const QWidget* /*pOld*/, const QWidget* pNow) { ScrollTo(pNow); });
}

void ctlWizard::RefreshSums(bool bUpdateControlDisplays) {
  m_oSet.RefreshSums(WorkingAuction(), bUpdateControlDisplays);
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
  m_pMissingPrice->Refresh();
  ShowPage(0);
  RefreshSums(true);
  UserControl_Resize();
}

/// What was typed on the page before is entered first, as by any other way to leave its box.
void ctlWizard::ShowPage(std::int16_t nPage) {
  LeaveInput();
  for (const WizardPage& tPage : m_aPages) {
    if (tPage.lIndex == nPage) {
      TurnTo(tPage);
    } else {
      tPage.oSection->SetVisible(false);
      FrameOf(tPage).SetVisible(false);
    }
  }
  FocusFirstInput();
  update();
}

/// The section is laid out first, then shown, which is when it learns the places of its rows. One
/// that was left scrolled is at its beginning again.
void ctlWizard::TurnTo(const WizardPage& tPage) {
  m_tCurrent = tPage;
  SectionPanel& oSection = *tPage.oSection;
  CentreFrame();
  FrameOf(tPage).SetVisible(true);
  m_pInfo->SetCaption(QString::fromStdString(tPage.sInfo));
  m_pSteps->SetCurrent(tPage.lIndex);
  oSection.SetShowConfig(false);
  ShowWithGreys(oSection);
  m_pBack->SetVisible(!tPage.bFirst);
  m_pNext->SetVisible(true);
  oSection.SetTop(std::max(oSection.Top(), 0));
  UpdateScrollBar();
  m_pNext->SetCaption(tPage.bLast ? "&Finish" : "&Next");
  m_pNext->SetPicture(tPage.bLast ? ButtonPicture::Finish : ButtonPicture::Next);
  m_pCancel->SetVisible(true);
}

Frame& ctlWizard::FrameOf(const WizardPage& tPage) const {
  return *m_apPages.at(static_cast<std::size_t>(tPage.nFrame));
}

void ctlWizard::CentreFrame() {
  Frame& oFrame = FrameOf(*m_tCurrent);
  oFrame.SetLeft(RoundToLong(Width() / 2.0 - oFrame.Width() / 2.0));
  oFrame.SetTop(0);
}

/// Whether there is a bar depends on the section, and how far it goes on the frame, so that a bar
/// may have a little way to go where there is nothing more to see.
void ctlWizard::UpdateScrollBar() {
  if (!m_tCurrent) {
    return;
  }
  const Frame& oFrame = FrameOf(*m_tCurrent);
  const SectionPanel& oSection = *m_tCurrent->oSection;
  const int nHeight = m_pViewPort->Height();
  // A section may have grown taller than its frame: what is drawn of it isn't cut off there.
  oFrame.Widget().resize(oFrame.Widget().width(),
                         Pixels(std::max(oFrame.Height(), oSection.Top() + oSection.Height())));
  if (nHeight >= oSection.Height()) {
    m_pVert->SetVisible(false);
    return;
  }
  constexpr int kSteps = 50;
  constexpr int kStepsInLargeOne = 10;
  m_pVert->Place(m_pViewPort->Width() - 2 * m_pVert->Width(), 0, m_pVert->Width(), nHeight);
  m_pVert->setRange(0, std::max(0, oFrame.Height() - nHeight));
  m_pVert->setSingleStep(std::max(1, m_pVert->maximum() / kSteps));
  m_pVert->setPageStep(m_pVert->singleStep() * kStepsInLargeOne);
  m_pVert->setValue(0);
  m_pVert->SetVisible(true);
}

/// The section moves within its frame, which stays.
void ctlWizard::vsbVert_Change() {
  if (m_tCurrent) {
    m_tCurrent->oSection->SetTop(-m_pVert->value());
    update();
  }
}

void ctlWizard::imgBack_Click() {
  ShowPage(static_cast<std::int16_t>(m_tCurrent->lIndex - 1));
}

/// A page with an amount that was refused stays once, for that to be seen.
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

/// The buttons keep to the right edge, but never lie over the summary.
void ctlWizard::UserControl_Resize() {
  m_lLaidWidth = Width();
  m_lLaidHeight = Height();
  ctlSellingCosts& oSummary = m_oSet.ctlSellingCostsSection;
  m_pInfo->SetWidth(Width());
  m_pSteps->SetWidth(Width());
  m_pButtons->SetLeft(std::max(Width() - m_pButtons->Width(), oSummary.Left() + oSummary.Width()));
  m_pButtons->SetTop(Height() - m_pButtons->Height() - kBelowSummary);
  oSummary.SetTop(Height() - oSummary.Height() - kBelowSummary);
  m_pMissingPrice->Place(oSummary.Left(), Height() - kBelowSummary + kMissingPriceGap,
                         Width() - 2 * oSummary.Left(), kMissingPriceHeight);
  m_lLineTop = oSummary.Top() - kLineAboveSummary;
  const int nTop = m_pInfo->Top() + m_pInfo->Height();
  m_pViewPort->Place(0, nTop, Width(), std::max(1, m_lLineTop - nTop));
  if (m_tCurrent) {
    CentreFrame();
  }
  UpdateScrollBar();
  update();
}

/// The card of the page's section, and the band of the summary and the buttons, below its rule.
void ctlWizard::paintEvent(QPaintEvent* /*pEvent*/) {
  QPainter oPainter(this);
  oPainter.fillRect(rect(), InkColour(Ink::Ground));
  const int nLine = Pixels(m_lLineTop);
  oPainter.fillRect(QRect(0, nLine, width(), std::max(0, height() - nLine)), InkColour(Ink::Panel));
  oPainter.fillRect(QRect(0, nLine, width(), 1), InkColour(Ink::Hairline));
  if (m_tCurrent && m_tCurrent->oSection->Height() > 0) {
    PaintCard(oPainter);
  }
}

/// As much of it as the viewport shows. Where it is scrolled, a rule closes it above.
void ctlWizard::PaintCard(QPainter& oPainter) const {
  const QRect oView = m_pViewPort->geometry();
  const QRectF oCard =
      CardOf(FrameOf(*m_tCurrent), *m_tCurrent->oSection).translated(oView.topLeft());
  oPainter.setClipRect(oView);
  oPainter.setRenderHint(QPainter::Antialiasing);
  DrawCard(oPainter, oCard);
  if (oCard.top() < oView.top()) {
    oPainter.setClipping(false);
    oPainter.fillRect(QRectF(oCard.left(), oView.top() - 1, oCard.width(), 1),
                      InkColour(Ink::Hairline));
  }
}

/// A click beside the section leaves the box that was typed into; the buttons keep theirs.
void ctlWizard::mousePressEvent(QMouseEvent* /*pEvent*/) {
  setFocus(Qt::MouseFocusReason);
}

/// From beside the section Tab goes to where the page begins.
bool ctlWizard::focusNextPrevChild(bool bNext) {
  if (!hasFocus() || !bNext || !m_tCurrent) {
    return QWidget::focusNextPrevChild(bNext);
  }
  FocusFirstInput();
  return true;
}

/// Buttons take these keys for themselves.
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

/// With Ctrl held the wheel belongs to the window's zoom.
void ctlWizard::wheelEvent(QWheelEvent* pEvent) {
  constexpr int kTwipsPerUnit = 6;  // three rows for the 120 units of a notch
  const int nTurned = pEvent->angleDelta().y();
  const bool bOverPage = m_pViewPort->geometry().contains(pEvent->position().toPoint());
  if ((pEvent->modifiers() & Qt::ControlModifier) != 0 || !m_pVert->Visible() || !bOverPage) {
    QWidget::wheelEvent(pEvent);
    return;
  }
  m_pVert->setValue(m_pVert->value() - nTurned * kTwipsPerUnit);
  pEvent->accept();
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
    (*pFirst)->setFocus(Qt::TabFocusReason);  // what is typed replaces what stands there
  }
}

/// Brings an input that the keyboard has reached into view.
void ctlWizard::ScrollTo(const QWidget* pInput) {
  if (!m_tCurrent || !m_pVert->Visible() || pInput == nullptr ||
      !m_tCurrent->oSection->isAncestorOf(pInput)) {
    return;
  }
  constexpr int kMargin = 360;
  const SectionPanel& oSection = *m_tCurrent->oSection;
  const int nTop = Twips(pInput->mapTo(&oSection, QPoint()).y());
  const int nBottom = nTop + Twips(pInput->height());
  if (oSection.Top() + nTop < 0) {
    m_pVert->setValue(nTop - kMargin);
  } else if (oSection.Top() + nBottom > m_pViewPort->Height()) {
    m_pVert->setValue(nBottom + kMargin - m_pViewPort->Height());
  }
}

}  // namespace quillet
