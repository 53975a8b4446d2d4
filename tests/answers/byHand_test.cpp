// What the program says about a choice, against making that choice by hand in the calculator.
#include <QApplication>
#include <QHelpEvent>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "answers/Alternatives.h"
#include "engine/featureNames.h"
#include "prices/money.h"
#include "shell/ctlCalculator.h"
#include "support/Auctions.h"
#include "support/PanelScript.h"
#include "support/Prices.h"

namespace quillet {
namespace {

class ByHand : public ::testing::Test {
 protected:
  ByHand() {
    WorkingAuction().m_oSaleFees = {};  // and the fee that it gave last
    m_oWindow.resize(1400, 1200);
    m_pView = new ctlCalculator(&m_oWindow);
    m_oWindow.show();
    m_oWindow.activateWindow();
    QApplication::processEvents();
  }

  void Show(std::string sText, bool bConfig = false) {
    WorkingAuction().Serialize(sText, false);
    if (m_pView->ConfigMode() != bConfig) {
      m_pView->SetConfigMode(bConfig);
    }
    m_pView->RefreshSums(true, &WorkingAuction());
  }

  QWidget m_oWindow;
  ctlCalculator* m_pView = nullptr;
};

const std::string kRest =
    "[PAYPAL]True|1|1|False[PAYPAL][POSTAGE]True|0|3|8.5|0|False|False|True|1.5|True[POSTAGE]";

TEST_F(ByHand, AnAlternativesFiguresAreThoseOfItsClicksAndStandWhenItIsUsed) {
  SectionSet& oSet = m_pView->Set();
  const std::string sAuction =
      "[TYPE]000|True|False|3|0|0|0|False[TYPE][OUTLAY]42.5|9.99|0|149.95|2|False[OUTLAY]"
      "[FEATURES]48|3[FEATURES]" +
      kRest;
  const struct {
    const char* sName;
    const SectionPanel& oSection;
    const char* sClicks;
  } aoCases[] = {
      {"Standard auction", oSet.ctlAuctionTypeSection, "chkBuyItNow"},
      {"Shop inventory, 30 days", oSet.ctlAuctionTypeSection, "chkShopInventory optShop30Days"},
      {"Shop inventory, 90 days", oSet.ctlAuctionTypeSection, "chkShopInventory optShop90Days"},
      {"Without PayPal", oSet.ctlPayPalSection, "chkUsePayPal"},
      {"Without Bold", oSet.ctlSellingFeaturesSection, "chkBold"},
      {"Unsold", oSet.ctlOutlaySection, nullptr},
  };
  for (const auto& oCase : aoCases) {
    SCOPED_TRACE(oCase.sName);
    Show(sAuction);
    const auto aoFound = Alternatives(WorkingAuction());
    const auto oFound = std::find_if(aoFound.begin(), aoFound.end(),
                                     [&](const auto& o) { return o.sName == oCase.sName; });
    ASSERT_NE(oFound, aoFound.end());
    if (oCase.sClicks != nullptr) {
      ClickOn(oCase.oSection, oCase.sClicks);
    } else {
      TypeInto(oCase.oSection, "txtQuantity", "0");
    }
    EXPECT_EQ(WorkingAuction().m_fProfit, oFound->fProfit);
    const std::string sByHand = TextOf(WorkingAuction());
    Show(sAuction);
    oFound->oChange(WorkingAuction());
    m_pView->RefreshSums(true, &WorkingAuction());
    EXPECT_EQ(TextOf(WorkingAuction()), sByHand);
    EXPECT_EQ(WorkingAuction().m_fProfit, oFound->fProfit);
  }
}

/// The tooltip over an input, or "none".
std::string TipOver(QWidget& oInput) {
  const QPoint oAt = oInput.rect().center();
  QHelpEvent oEvent(QEvent::ToolTip, oAt, oInput.mapToGlobal(oAt));
  QApplication::sendEvent(&oInput, &oEvent);
  return oEvent.isAccepted()
             ? QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText().toStdString()
             : "none";
}

std::vector<Choice*> OptionsIn(const SectionPanel& oSection) {
  std::vector<Choice*> aoOptions;
  for (Control* const pControl : AllControls(oSection)) {
    auto* const pChoice = dynamic_cast<Choice*>(pControl);
    if (pChoice != nullptr && !IsShowCheck(*pControl) && pControl->Widget().isVisible()) {
      aoOptions.push_back(pChoice);
    }
  }
  return aoOptions;
}

/// What one click did to the figures.
struct Clicked {
  bool bWasChosen;
  bool bIsChosen;
  std::string sFees;  ///< of the listing and the sale, with the option
  Single fFeatures;   ///< the change in their fee
  int nDropped;       ///< how many other features went
};

Clicked Click(const SectionPanel& oSection, const Choice& oOption) {
  const auto fnFees = [] {
    return FormatMoney(WorkingAuction().m_oAuctionType.DoCalcAuto() +
                       WorkingAuction().m_oSaleFees.LastFee());
  };
  const clsSellingFeatures oBefore = WorkingAuction().m_oSellingFeatures;
  Clicked oClicked{oOption.Value() != 0, false, fnFees(), 0, 0};
  ClickOn(oSection, oOption.Name());
  const clsSellingFeatures& oAfter = WorkingAuction().m_oSellingFeatures;
  oClicked.bIsChosen = oOption.Value() != 0;
  oClicked.sFees = oClicked.bWasChosen ? oClicked.sFees : fnFees();
  oClicked.fFeatures = oAfter.LastFee() - oBefore.LastFee();
  for (const FeatureName& oFeature : kFeatureNames) {
    oClicked.nDropped += oBefore.HasFeature(oFeature.eBit) && !oAfter.HasFeature(oFeature.eBit) &&
                         oFeature.sName != WordsOf(oOption);
  }
  return oClicked;
}

/// A tooltip, up to the features that it may name after the profit.
std::string ExpectedTip(const Clicked& oClicked, const Choice& oOption, bool bFeature) {
  const std::string sName = WordsOf(oOption).toStdString();
  if (bFeature ? !oClicked.bWasChosen && !oClicked.bIsChosen : IsGrey(oOption)) {
    return sName + " isn't on offer for this kind of listing.";
  }
  const double fCost = oClicked.fFeatures * (oClicked.bWasChosen ? -1 : 1);
  const std::string sCost = (fCost < -0.005 ? "saves " : "") + FormatMoney(std::abs(fCost)) + ".";
  const bool bStays = oClicked.bWasChosen && oClicked.bIsChosen;
  return sName + ": " + (bFeature ? sCost : oClicked.sFees + " in fees.") +
         (bStays ? ""
                 : std::string(" Profit ") + (oClicked.bWasChosen ? "without it " : "") +
                       "would be " + FormatMoney(WorkingAuction().m_fProfit) +
                       (oClicked.nDropped > 0 ? ", without " : "."));
}

TEST_F(ByHand, ATooltipTellsWhatItsClickThenLeaves) {
  const SectionSet& oSet = m_pView->Set();
  const std::string sPrices = "[OUTLAY]42.5|9.99|0|149.95|2|False[OUTLAY]";
  const std::vector<std::string> asAuctions = {
      "[TYPE]000|False|False|3|0|0|0|False[TYPE]" + sPrices + "[FEATURES]2019|3[FEATURES]" + kRest,
      "[TYPE]000|True|False|3|0|0|0|False[TYPE]" + sPrices + "[FEATURES]4624|20[FEATURES]" + kRest,
      "[TYPE]000|False|True|1|0|0|0|False[TYPE]" + sPrices + "[FEATURES]24624|5[FEATURES]" + kRest,
      "[TYPE]001|True|False|3|3|0|0|False[TYPE]" + sPrices + "[FEATURES]1573008|5[FEATURES]" +
          kRest,
      "[TYPE]002|False|False|3|0|1|0|True[TYPE]" + sPrices + "[FEATURES]7|0[FEATURES]" + kRest,
  };
  int nTips = 0;
  for (const bool bToday : {false, true}) {
    const bool bConfig = !bToday;
    if (bToday) {
      UseScheduleOfToday();
      m_pView->FollowSchedule();
    }
    for (const std::string& sAuction : asAuctions) {
      for (const SectionPanel* const pSection :
           {static_cast<const SectionPanel*>(&oSet.ctlAuctionTypeSection),
            static_cast<const SectionPanel*>(&oSet.ctlSellingFeaturesSection)}) {
        Show(sAuction, bConfig);
        for (const Choice* const pOption : OptionsIn(*pSection)) {
          SCOPED_TRACE(pOption->Name() + (bToday ? " today of " : " of ") + sAuction);
          Show(sAuction, bConfig);
          const std::string sTip = TipOver(pOption->Widget());
          const Clicked oClicked = Click(*pSection, *pOption);
          const std::string sExpected =
              ExpectedTip(oClicked, *pOption, pSection == &oSet.ctlSellingFeaturesSection);
          EXPECT_EQ(sTip.substr(0, sExpected.size()), sExpected) << sTip;
          EXPECT_TRUE(sTip.size() == sExpected.size() || oClicked.nDropped > 0) << sTip;
          ++nTips;
        }
      }
    }
  }
  EXPECT_GT(nTips, 200);
  QWidget& oPayPal = ControlOf(oSet.ctlPayPalSection, "chkUsePayPal").Widget();
  EXPECT_NE(TipOver(oPayPal), "none") << "a sale on eBay doesn't pay it today";
  UseShippedSchedule();
  EXPECT_EQ(TipOver(oPayPal), "none");
}

TEST_F(ByHand, ATooltipNamesWhatWouldGoAndComesByAKeyToo) {
  Show(
      "[TYPE]000|False|False|3|0|0|0|False[TYPE][OUTLAY]0|1|0|10|1|False[OUTLAY]"
      "[FEATURES]19|0[FEATURES]" +
      kRest);
  const SectionPanel& oSection = m_pView->Set().ctlAuctionTypeSection;
  QWidget& oShop = ControlOf(oSection, "chkShopInventory").Widget();
  const std::string sTip = TipOver(oShop);
  EXPECT_TRUE(sTip.ends_with(", without Home Page Featured and Feature Plus.")) << sTip;
  EXPECT_EQ(TipOver(ControlOf(oSection, "chkShowShopInventory").Widget()), "none");
  TipOver(ControlOf(oSection, "chkBuyItNow").Widget());
  oShop.setFocus();
  QTest::keyClick(&oShop, Qt::Key_F1, Qt::ShiftModifier);
  EXPECT_EQ(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText().toStdString(), sTip);
}

}  // namespace
}  // namespace quillet
