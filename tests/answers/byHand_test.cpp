// An alternative against the same choice made by hand in the calculator, and used from outside.
#include <QApplication>
#include <string>

#include <gtest/gtest.h>

#include "answers/Alternatives.h"
#include "shell/ctlCalculator.h"
#include "support/Auctions.h"
#include "support/PanelScript.h"
#include "support/Prices.h"

namespace quillet {
namespace {

TEST(ByHand, AnAlternativesFiguresAreThoseOfItsClicksAndStandWhenItIsUsed) {
  UseShippedSchedule();
  QWidget oWindow;
  oWindow.resize(1400, 1200);
  auto* const pView = new ctlCalculator(&oWindow);
  oWindow.show();
  oWindow.activateWindow();
  QApplication::processEvents();
  SectionSet& oSet = pView->Set();
  const auto fnShow = [&] {
    std::string sText =
        "[TYPE]000|True|False|3|0|0|0|False[TYPE][OUTLAY]42.5|9.99|0|149.95|2|False[OUTLAY]"
        "[FEATURES]48|3[FEATURES][PAYPAL]True|1|1|False[PAYPAL]"
        "[POSTAGE]True|0|3|8.5|0|False|False|True|1.5|True[POSTAGE]";
    WorkingAuction().Serialize(sText, false);
    pView->SetConfigMode(false);
    pView->RefreshSums(true, &WorkingAuction());
  };
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
    fnShow();
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
    fnShow();
    oFound->oChange(WorkingAuction());
    pView->RefreshSums(true, &WorkingAuction());
    EXPECT_EQ(TextOf(WorkingAuction()), sByHand);
    EXPECT_EQ(WorkingAuction().m_fProfit, oFound->fProfit);
  }
}

}  // namespace
}  // namespace quillet
