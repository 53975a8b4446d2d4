#include "shell/whatif/GoalCard.h"

#include <QKeyEvent>
#include <QPainter>
#include <array>
#include <cmath>

#include "base/conversions.h"
#include "controls/Controls.h"
#include "controls/ImageButton.h"
#include "controls/layout.h"
#include "look/font.h"
#include "look/scale.h"
#include "platform/Host.h"
#include "sections/ctlNumericText.h"
#include "shell/whatif/Segments.h"
#include "shell/whatif/figures.h"

namespace quillet {
namespace {

constexpr double kFirstGoal = 20;
constexpr double kMostMoney = 9'999'999.99;
constexpr double kMostPercent = 99'999;
constexpr double kPricePoints = 15.0;
constexpr double kNonePoints = 8.0;

// Twips.
constexpr int kLine = 420;
constexpr int kLineGap = 120;
constexpr int kGap = 120;
constexpr int kToMake = 780;
constexpr int kBox = 1380;
constexpr int kBoxHeight = 390;
constexpr int kKind = 1080;
constexpr int kKinds = 3 * kKind;
constexpr int kUse = 1080;
constexpr int kPrice = 1300;  // at least

constexpr int kOneLine = kToMake + kBox + kKinds + kPrice + kUse + 3 * kGap;

bool IsOneLine(int nWidth) {
  return nWidth >= kOneLine;
}

}  // namespace

GoalCard::GoalCard(QWidget* pParent)
    : TitledCard("What must it sell for?", pParent),
      m_pToMake(Make<Label>("lblToMake", this)),
      m_pBox(Make<ctlNumericText>("txtGoal", this)),
      m_pKinds(Make<Segments>("fraGoalKind", QStringList{"Profit", "% of cost", "% of price"},
                              kKind, this)),
      m_pUse(Make<ImageButton>("imgUse", this)) {
  m_pToMake->SetCaption("To make");
  m_pBox->SetDecimalSeperator(TheHost().DecimalSeparator());
  m_pBox->SetDecimalPlaces(2);
  m_pBox->SetAccessibleName("To make");
  m_pBox->TextBox()->installEventFilter(this);
  m_pUse->SetCaption("&Use it");
  m_pUse->SetPrimary(true);
  m_pUse->setToolTip("Enter this price in the auction");
  m_oGoal.fAmount = kFirstGoal;
  m_pBox->SetText(SingleText(kFirstGoal));
  ChangeKind();
  connect(m_pBox, &ctlNumericText::Changed, this, &GoalCard::ChangeAmount);
  connect(m_pKinds, &Segments::ChosenChanged, this, [this] {
    ChangeKind();
    emit GoalChanged();
  });
  connect(m_pUse, &QAbstractButton::clicked, this, [this] {
    if (m_nPrice) {
      emit UseClicked(*m_nPrice);
    }
  });
}

/// The number stays, though it means something else now.
void GoalCard::ChangeKind() {
  constexpr std::array kKindsInOrder = {GoalKind::Profit, GoalKind::PercentOfCost,
                                        GoalKind::PercentOfPrice};
  const Single fAmount = m_pBox->Value();
  m_oGoal.eKind = kKindsInOrder.at(static_cast<std::size_t>(m_pKinds->Chosen()));
  const bool bMoney = m_oGoal.eKind == GoalKind::Profit;
  m_pBox->SetMin(bMoney ? -kMostMoney : 0);
  m_pBox->SetMax(bMoney ? kMostMoney : kMostPercent);
  m_pBox->SetShowMoney(bMoney);
  m_pBox->SetText(SingleText(fAmount));
  m_oGoal.fAmount = m_pBox->Value();
}

void GoalCard::ChangeAmount() {
  m_pBox->SetValue({});  // in the box's format
  m_oGoal.fAmount = m_pBox->Value();
  emit GoalChanged();
}

void GoalCard::Show(std::optional<Cents> nPrice, Single fToday) {
  m_nPrice = nPrice;
  m_pUse->SetEnabled(nPrice && PriceOf(*nPrice) != fToday);
  m_pUse->setAccessibleName(nPrice ? "Use it: " + Money(*nPrice) : "Use it: no price does it");
  update();
}

int GoalCard::ContentHeight(int nWidth) const {
  return IsOneLine(nWidth) ? kLine : 2 * kLine + kLineGap;
}

void GoalCard::resizeEvent(QResizeEvent* pEvent) {
  TitledCard::resizeEvent(pEvent);
  PlaceControls();
}

void GoalCard::PlaceControls() {
  const QRect oContent = ContentTwips();
  const int nTop = oContent.top() + (kLine - kBoxHeight) / 2;
  const int nBox = oContent.left() + kToMake;
  const int nUse = oContent.left() + oContent.width() - kUse;
  const int nLast = oContent.top() + ContentHeight(oContent.width()) - kLine;
  PlaceAll(std::to_array<ControlPlace>({
      {m_pToMake, oContent.left(), nTop, kToMake, kBoxHeight},
      {m_pBox, nBox, nTop, kBox, kBoxHeight},
      {m_pKinds, nBox + kBox + kGap, nTop, kKinds, kBoxHeight - 15},
      {m_pUse, nUse, nLast, kUse, kLine},
  }));
}

void GoalCard::PaintContent(QPainter& oPainter) {
  const QRect oContent = ContentTwips();
  const bool bOneLine = IsOneLine(oContent.width());
  const int nFrom = oContent.left() + (bOneLine ? kToMake + kBox + kGap + kKinds + kGap : 0);
  const int nTop = oContent.top() + ContentHeight(oContent.width()) - kLine;
  const int nEnd = oContent.left() + oContent.width() - kUse - kGap;
  const QRectF oPlace(Pixels(nFrom), Pixels(nTop), Pixels(nEnd - nFrom), Pixels(kLine));
  if (m_nPrice) {
    DrawFitted(oPainter, oPlace, Money(*m_nPrice), ThemeFont(kPricePoints, QFont::DemiBold),
               InkColour(Ink::Text), Qt::AlignRight);
  } else {
    DrawFitted(oPainter, oPlace, "No price does it", ThemeFont(kNonePoints),
               InkColour(Ink::Warning), Qt::AlignRight);
  }
}

/// Leaves the undo key to the window unless the box holds text that isn't entered yet.
bool GoalCard::eventFilter(QObject* pWatched, QEvent* pEvent) {
  if (pEvent->type() == QEvent::ShortcutOverride && pWatched == m_pBox->TextBox() &&
      static_cast<QKeyEvent*>(pEvent)->matches(QKeySequence::Undo) &&
      !m_pBox->TextBox()->isModified()) {
    pEvent->ignore();
    return true;
  }
  return TitledCard::eventFilter(pWatched, pEvent);
}

}  // namespace quillet
