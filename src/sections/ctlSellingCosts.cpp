#include "sections/ctlSellingCosts.h"

#include <QShowEvent>
#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "engine/profitPercent.h"
#include "prices/money.h"
#include "sections/GrandTotal.h"
#include "sections/controlHelpers.h"

namespace quillet {
namespace {

struct LabelDesign {
  const char* sName;
  const char* sCaption;
  int nLeft;
  int nTop;
  int nWidth;
  int nHeight;
};

constexpr std::array kLabels = std::to_array<LabelDesign>({
    {"lblInsertionFeeLabel", "Insertion Fee", 0, 0, 1695, 255},
    {"lblInsertionFeeTotal", "£0.00", 1800, 0, 1215, 255},
    {"lblListingCostLabel", "Total Listing Fee", 0, 240, 1695, 255},
    {"lblListingCostTotal", "£0.00", 1800, 240, 1215, 255},
    {"lblReserveFeeLabel", "Reserve Fee", 0, 480, 1695, 255},
    {"lblReserveFeeTotal", "£0.00", 1800, 480, 1215, 255},
    {"lblFinalValueFeeLabel", "Final Value Fee", 0, 720, 1695, 255},
    {"lblFinalValueFeeTotal", "£0.00", 1800, 720, 1215, 255},
    {"lblSellingCostLabel", "Selling Cost", 3120, 0, 1695, 255},
    {"lblSellingCostTotal", "£0.00", 4920, 0, 1215, 255},
    {"lblPostageLabel", "Postage && Packing", 3120, 240, 1695, 255},
    {"lblPostageTotal", "£0.00", 4920, 240, 1215, 255},
    {"lblPayPalLabel", "PayPal Fee", 3120, 480, 1695, 255},
    {"lblPayPalTotal", "£0.00", 4920, 480, 1215, 255},
    {"lblProfitLabel", "Profit", 6840, 120, 615, 255},
    {"lblProfitGrandTotal", "£0.00", 7560, 0, 2895, 495},
});

constexpr int kDesignWidth = 10530;
constexpr int kDesignHeight = 1095;

/// Where a label goes: the left of one label, and the top of another plus some rows.
struct Move {
  const char* sName;
  const char* sLeftOf;
  const char* sTopOf;
  int nRows;
};

bool NameHolds(const Label& oLabel, const char* sPart) {
  return oLabel.Name().find(sPart) != std::string::npos;
}

Label* MakeLabel(std::string_view sName, QWidget* pParent) {
  if (sName == "lblProfitGrandTotal") {
    return new GrandTotal(pParent);
  }
  return sName.ends_with("Total") ? new Figure(pParent) : new Label(pParent);
}

}  // namespace

ctlSellingCosts::ctlSellingCosts(QWidget* pParent)
    : QWidget(pParent), Control(static_cast<QWidget&>(*this)) {
  for (const LabelDesign& oDesign : kLabels) {
    Label* const pLabel = MakeLabel(oDesign.sName, this);
    pLabel->SetName(oDesign.sName);
    pLabel->SetCaption(QString::fromUtf8(oDesign.sCaption));
    pLabel->Place(oDesign.nLeft, oDesign.nTop, oDesign.nWidth, oDesign.nHeight);
    m_aoLabels.push_back(pLabel);
  }
  setAccessibleName(tr("Selling Costs"));
  DescribeFigures();
  Place(0, 0, kDesignWidth, kDesignHeight);
  SetMode(0);
}

/// A figure's text is only the number: this tells a screen reader what it is.
void ctlSellingCosts::DescribeFigures() {
  for (std::size_t i = 0; i + 1 < m_aoLabels.size(); i += 2) {
    m_aoLabels[i + 1]->setAccessibleDescription(m_aoLabels[i]->text());
  }
}

Label& ctlSellingCosts::The(const char* sName) const {
  return **std::find_if(m_aoLabels.begin(), m_aoLabels.end(),
                        [&](const Label* p) { return p->Name() == sName; });
}

void ctlSellingCosts::SetMode(int nMode) {
  m_nMode = nMode;
  if (nMode == 0) {
    ArrangeAsStrip();
  } else {
    ArrangeAsColumn();
  }
}

void ctlSellingCosts::ApplySellingCosts(clsCalculate& oCalculation) {
  const auto fnShow = [this](const char* sName, Single fValue) {
    The(sName).SetCaption(QString::fromStdString(FormatMoney(fValue)));
  };
  std::string sProfit = FormatMoney(oCalculation.m_fProfit);
  if (const auto sPercent = ProfitPercentText(oCalculation)) {
    sProfit += " (" + *sPercent + "%)";
  }
  The("lblProfitGrandTotal").SetCaption(QString::fromStdString(sProfit));
  fnShow("lblSellingCostTotal", oCalculation.m_fSellCost);
  fnShow("lblPostageTotal", oCalculation.m_fPostageCost);
  const Single fFeatures = oCalculation.m_oSellingFeatures.DoCalc(nullptr, nullptr);
  fnShow("lblListingCostTotal", oCalculation.m_fListingCost + fFeatures);
  fnShow("lblInsertionFeeTotal", oCalculation.m_fListingCost);
  fnShow("lblReserveFeeTotal", oCalculation.m_fReserveCost);
  fnShow("lblFinalValueFeeTotal", oCalculation.m_fFinalValueFee);
  fnShow("lblPayPalTotal", oCalculation.m_fPayPayCost);
}

void ctlSellingCosts::showEvent(QShowEvent* pEvent) {
  QWidget::showEvent(pEvent);
  if (pEvent->spontaneous()) {
    return;
  }
  for (Label* const pLabel : m_aoLabels) {
    ApplyThemeColours(*pLabel);
    if (NameHolds(*pLabel, "GrandTotal")) {
      pLabel->SetForeColor(TotalColour());
    } else if (NameHolds(*pLabel, "Total")) {
      pLabel->SetForeColor(SubtotalColour());
    }
  }
}

void ctlSellingCosts::ArrangeAsStrip() {
  constexpr int kCaptions = 3120;
  constexpr int kFigures = 4920;
  constexpr int kProfit = 6840;
  constexpr int kGrandTotal = 7440;
  const auto fnPlace = [this](const char* sName, int nLeft, const char* sTopOf) {
    The(sName).SetTop(The(sTopOf).Top());
    The(sName).SetLeft(nLeft);
  };
  fnPlace("lblSellingCostLabel", kCaptions, "lblInsertionFeeLabel");
  fnPlace("lblSellingCostTotal", kFigures, "lblSellingCostLabel");
  fnPlace("lblPostageLabel", kCaptions, "lblListingCostLabel");
  fnPlace("lblPostageTotal", kFigures, "lblPostageLabel");
  fnPlace("lblProfitGrandTotal", kGrandTotal, "lblInsertionFeeLabel");
  GrandTotalLabel().SetAmountPlace(0, 0);
  The("lblProfitLabel").SetLeft(kProfit);
  CentreProfitLabel();
  fnPlace("lblPayPalLabel", kCaptions, "lblReserveFeeLabel");
  fnPlace("lblPayPalTotal", kFigures, "lblPayPalLabel");
  SetHeight(960);
  SetWidth(9780);
}

void ctlSellingCosts::ArrangeAsColumn() {
  constexpr std::array kMoves = std::to_array<Move>({
      {"lblSellingCostLabel", "lblFinalValueFeeLabel", "lblFinalValueFeeLabel", 1},
      {"lblSellingCostTotal", "lblFinalValueFeeTotal", "lblSellingCostLabel", 0},
      {"lblPostageLabel", "lblSellingCostLabel", "lblSellingCostLabel", 1},
      {"lblPostageTotal", "lblSellingCostTotal", "lblPostageLabel", 0},
      {"lblPayPalLabel", "lblPostageLabel", "lblPostageLabel", 1},
      {"lblPayPalTotal", "lblPostageTotal", "lblPayPalLabel", 0},
      {"lblProfitGrandTotal", "lblPayPalTotal", "lblPayPalTotal", 1},
  });
  const int nPitch = The("lblListingCostLabel").Top() - The("lblInsertionFeeLabel").Top();
  for (const Move& oMove : kMoves) {
    The(oMove.sName).SetLeft(The(oMove.sLeftOf).Left());
    The(oMove.sName).SetTop(The(oMove.sTopOf).Top() + oMove.nRows * nPitch);
  }
  Label& oProfit = The("lblProfitLabel");
  oProfit.SetLeft(The("lblPayPalLabel").Left());
  CentreProfitLabel();
  const Label& oAbove = The("lblPayPalTotal");
  GrandTotalLabel().SetAmountPlace(oProfit.Left() + oProfit.Width(),
                                   oAbove.Left() + oAbove.Width() - Figure::kGap);
  SetHeight(2130);
  SetWidth(4380);
}

GrandTotal& ctlSellingCosts::GrandTotalLabel() const {
  return dynamic_cast<GrandTotal&>(The("lblProfitGrandTotal"));
}

void ctlSellingCosts::CentreProfitLabel() const {
  const Label& oGrandTotal = The("lblProfitGrandTotal");
  Label& oLabel = The("lblProfitLabel");
  oLabel.SetTop(oGrandTotal.Top() + (oGrandTotal.Height() - oLabel.Height()) / 2);
}

}  // namespace quillet
