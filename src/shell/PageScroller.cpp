#include "shell/PageScroller.h"

#include <QApplication>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <vector>

#include "base/conversions.h"
#include "controls/ScrollBar.h"
#include "controls/layout.h"
#include "look/marks.h"
#include "look/palette.h"
#include "look/scale.h"
#include "sections/SectionPanel.h"

namespace quillet {

namespace {

/// Keeps disabled controls grey: a section that becomes visible gives its rows the colour of text,
/// and isn't filled in again when its page comes up.
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

/// Extends equally to both sides of the middle of the frame, as the instruction above it does.
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

PageScroller::PageScroller(QWidget* pParent)
    : Frame(pParent), m_pVert(Make<ScrollBar>("vsbVert", this)) {
  m_pVert->SetWidth(255);
  m_pVert->setAccessibleName("Scroll the page");
  m_pVert->SetVisible(false);
  connect(m_pVert, &QScrollBar::valueChanged, this, &PageScroller::vsbVert_Change);
  connect(qApp, &QApplication::focusChanged, this,
          [this](const QWidget* /*pOld*/, const QWidget* pNow) { ScrollTo(pNow); });
}

/// The sections are destroyed after the viewport, and a focused input among them then loses focus.
PageScroller::~PageScroller() {
  qApp->disconnect(this);
}

/// Lays the section out, then shows it, which is when it learns the places of its rows. A section
/// that was scrolled goes back to its top.
void PageScroller::Show(Frame& oFrame, SectionPanel& oSection) {
  m_pFrame = &oFrame;
  m_pSection = &oSection;
  CentreFrame();
  oFrame.SetVisible(true);
  oSection.SetShowConfig(false);
  ShowWithGreys(oSection);
  oSection.SetTop(std::max(oSection.Top(), 0));
  UpdateScrollBar();
}

void PageScroller::LayOut() {
  if (m_pFrame != nullptr) {
    CentreFrame();
    UpdateScrollBar();
  }
}

void PageScroller::CentreFrame() {
  m_pFrame->SetLeft(RoundToLong(Width() / 2.0 - m_pFrame->Width() / 2.0));
  m_pFrame->SetTop(0);
}

/// Whether there is a bar depends on the section, but its range on the frame, so a bar may still
/// scroll a little when there is nothing more to see.
void PageScroller::UpdateScrollBar() {
  // A section may have grown taller than its frame, which mustn't cut it off.
  m_pFrame->resize(m_pFrame->width(),
                   Pixels(std::max(m_pFrame->Height(), m_pSection->Top() + m_pSection->Height())));
  if (Height() >= m_pSection->Height()) {
    m_pVert->SetVisible(false);
    return;
  }
  constexpr int kSteps = 50;
  constexpr int kStepsInLargeOne = 10;
  m_pVert->Place(Width() - 2 * m_pVert->Width(), 0, m_pVert->Width(), Height());
  m_pVert->setRange(0, std::max(0, m_pFrame->Height() - Height()));
  m_pVert->setSingleStep(std::max(1, m_pVert->maximum() / kSteps));
  m_pVert->setPageStep(m_pVert->singleStep() * kStepsInLargeOne);
  m_pVert->setValue(0);
  m_pVert->raise();
  m_pVert->SetVisible(true);
}

/// The section moves within its frame, which stays.
void PageScroller::vsbVert_Change() {
  m_pSection->SetTop(-m_pVert->value());
  parentWidget()->update();
}

/// With Ctrl held the wheel zooms the window.
void PageScroller::wheelEvent(QWheelEvent* pEvent) {
  constexpr int kTwipsPerUnit = 6;  // three rows for the 120 units of a notch
  if ((pEvent->modifiers() & Qt::ControlModifier) != 0 || !m_pVert->Visible()) {
    Frame::wheelEvent(pEvent);
    return;
  }
  m_pVert->setValue(m_pVert->value() - pEvent->angleDelta().y() * kTwipsPerUnit);
  pEvent->accept();
}

/// Scrolls an input that the keyboard has reached into view.
void PageScroller::ScrollTo(const QWidget* pInput) {
  if (!m_pVert->Visible() || pInput == nullptr || !m_pSection->isAncestorOf(pInput)) {
    return;
  }
  constexpr int kMargin = 360;
  const int nTop = Twips(pInput->mapTo(m_pSection, QPoint()).y());
  const int nBottom = nTop + Twips(pInput->height());
  if (m_pSection->Top() + nTop < 0) {
    m_pVert->setValue(nTop - kMargin);
  } else if (m_pSection->Top() + nBottom > Height()) {
    m_pVert->setValue(nBottom + kMargin - Height());
  }
}

/// When it is scrolled, a rule marks its top.
void PageScroller::PaintCard(QPainter& oPainter) const {
  if (m_pSection == nullptr || m_pSection->Height() <= 0) {
    return;
  }
  const QRect oView = geometry();
  const QRectF oCard = CardOf(*m_pFrame, *m_pSection).translated(oView.topLeft());
  oPainter.setClipRect(oView);
  oPainter.setRenderHint(QPainter::Antialiasing);
  DrawCard(oPainter, oCard);
  if (oCard.top() < oView.top()) {
    oPainter.setClipping(false);
    oPainter.fillRect(QRectF(oCard.left(), oView.top() - 1, oCard.width(), 1),
                      InkColour(Ink::Hairline));
  }
}

}  // namespace quillet
