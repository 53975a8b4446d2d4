#include "shell/ctlCalculator.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "base/basCommon.h"
#include "base/basMain.h"
#include "base/clsRegistryAccess.h"
#include "look/palette.h"
#include "look/scale.h"
#include "sections/VisibleList.h"
#include "sections/controlHelpers.h"
#include "shell/ScheduleButton.h"
#include "shell/ctlWizard.h"
#include "shell/tabOrder.h"
#include "support/Auctions.h"
#include "support/ByRegion.h"
#include "support/Log.h"
#include "support/PanelScript.h"
#include "support/Prices.h"
#include "support/Screen.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

std::string Stored(const char* sSection, const char* sName) {
  return Registry().Find(std::string(settings::kControls) + sSection, sName).value_or("none");
}

class Calculator : public ::testing::Test {
 protected:
  Calculator() {
    g_lSnapToGrid = 120;
    m_oWindow.resize(1400, 1200);
    m_pView = new ctlCalculator(&m_oWindow);
    m_pView->SetVisible(false);
    m_oWindow.show();
    m_oWindow.activateWindow();
    QApplication::processEvents();
  }

  void ShowView(bool bConfig, clsCalculate& oDocument) {
    m_pView->SetVisible(true);
    m_pView->SetConfigMode(bConfig);
    m_pView->RefreshSums(true, &oDocument);
  }

  /// Drags a section by its header, by a distance in twips.
  void Drag(SectionPanel& oSection, int nX, int nY) {
    oSection.setFocus();
    Control& oHeader = ControlOf(oSection, "imgHeader");
    ASSERT_TRUE(oHeader.Visible()) << "the focus brings the header up";
    const QPoint oStart(20, 5);
    QTest::mousePress(&oHeader.Widget(), Qt::RightButton, {}, oStart);
    QTest::mouseMove(&oHeader.Widget(), oStart + QPoint(Pixels(nX), Pixels(nY)));
    QTest::mouseRelease(&oHeader.Widget(), Qt::RightButton, {}, oStart);
  }

  /// The inputs that the first presses of Tab reach in the view.
  std::string Tabs(int nPresses) {
    m_pView->setFocus();
    std::string sWalked;
    for (int i = 0; i < nPresses; ++i) {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
      sWalked += FocusName() + " ";
    }
    return sWalked;
  }

  QWidget m_oWindow;
  ctlCalculator* m_pView = nullptr;
};

TEST_F(Calculator, ADraggedPlaceSnapsIsStoredAndComesBackUntilItIsReset) {
  ShowView(true, DefaultAuction());
  ctlPayPal& oPayPal = m_pView->Set().ctlPayPalSection;
  Drag(oPayPal, 1230, 570);  // to the grid of 120
  EXPECT_EQ(oPayPal.Left(), 6960);
  EXPECT_EQ(oPayPal.Top(), 2160);
  EXPECT_EQ(Stored("PayPal", "Left"), "6960");
  EXPECT_EQ(Stored("Postage", "Top"), "5640") << "every place is stored on each move";

  Registry().Set("Controls\\Outlay", settings::kTop, "here");
  auto* const pOther = new ctlCalculator(&m_oWindow);
  pOther->SetVisible(true);
  EXPECT_EQ(pOther->Set().ctlPayPalSection.Left(), 6960);
  EXPECT_EQ(pOther->Set().ctlOutlaySection.Top(), 1560) << "no number, no place";
  pOther->ResetControlPositions();
  EXPECT_EQ(pOther->Set().ctlPayPalSection.Left(), 5760);
  EXPECT_EQ(Stored("PayPal", "Left"), "5760");
}

TEST_F(Calculator, GoesWithTheFocusInABox) {
  ShowView(false, WorkingAuction());
  m_pView->Set().ctlOutlaySection.findChild<QLineEdit*>()->setFocus();
  ASSERT_TRUE(m_pView->isAncestorOf(QApplication::focusWidget()));
  delete m_pView;
  EXPECT_FALSE(m_oWindow.findChild<QLineEdit*>());
}

TEST_F(Calculator, AViewThatIsShownAgainLooksAsAfterARestartWhicheverRowIsHidden) {
  for (SectionPanel* const pSection : m_pView->Set().Sections()) {
    for (Control* const pControl : AllControls(*pSection)) {
      if (IsShowCheck(*pControl)) {
        auto& oBox = dynamic_cast<CheckBox&>(*pControl);
        ShowView(true, WorkingAuction());
        oBox.SetValue(0);
        ShowView(false, WorkingAuction());
        EXPECT_EQ(OverlapsIn(*pSection, pSection->Controls()), "") << oBox.Name();
        m_pView->SetVisible(false);
        ShowView(false, WorkingAuction());
        EXPECT_EQ(PlacesIn(m_pView->Set()), Mirror().Places()) << oBox.Name();
        ShowView(true, WorkingAuction());
        oBox.SetValue(1);
      }
    }
  }
}

TEST_F(Calculator, ShowsTheRowsOfItsRegionAlone) {
  const std::vector<const char*> asUk = {"txtWeight", "optSecondClass", "optParcelService",
                                         "ctlParcelInsurance", "chkOutlayInclTax"};
  const std::vector<const char*> asUs = {"chkBorder", "chkCarAd", "optParts", "optShop120Days",
                                         "optBusinessAuction"};
  ShowView(false, WorkingAuction());
  const auto fnOnView = [this](const char* sName) {
    return ControlOf(*m_pView, sName).Widget().isVisible();
  };
  for (const char* const sName : ByRegion(asUk, asUs)) {
    EXPECT_TRUE(fnOnView(sName)) << sName;
  }
  for (const char* const sName : ByRegion(asUs, asUk)) {
    EXPECT_FALSE(fnOnView(sName)) << sName;
  }
  EXPECT_TRUE(fnOnView("ctlPaypalBusinessType")) << "it has no box of its own";
}

TEST_F(Calculator, EachShowBoxStandsForItsRowAlone) {
  UseScheduleOfToday();  // shows all sections
  ShowView(true, WorkingAuction());
  std::set<std::string> asRows;
  for (SectionPanel* const pPanel : AllPanels(m_pView->Set())) {
    const auto fnShown = [&](const Control& o) {
      return o.Visible() && o.Container() == pPanel && !IsShowCheck(o) && !IsHeaderImage(o);
    };
    for (const Control* const pBox : pPanel->Controls()) {
      if (IsShowCheck(*pBox)) {
        clsTokeniser oList;
        oList.AddToArray(pBox->Tag());
        SaveVisibleList(pPanel->SectionKey(), oList);
        pPanel->SetShowConfig(true);
        const std::string sBeside = NamesWhere(*pPanel, [&](const Control& o) {
          return fnShown(o) && pBox->Visible() &&
                 (o.Top() == pBox->Top() || o.Name().starts_with("ctl" + pBox->Tag()));
        });
        const bool bNew = asRows.insert(pPanel->SectionKey() + (" " + sBeside)).second;
        EXPECT_EQ(bNew && !sBeside.empty(), pBox->Visible()) << pBox->Name();
        pPanel->SetShowConfig(false);
        EXPECT_EQ(NamesWhere(*pPanel, fnShown), sBeside) << pBox->Name();
      }
    }
  }
  EXPECT_EQ(asRows.size(), ByRegion(79U, 83U));
}

/// Figures are beside their captions and aligned in each block, and nothing overlaps.
TEST_F(Calculator, TheSummaryIsAStripOrAColumn) {
  ctlSellingCosts& oSummary = m_pView->Set().ctlSellingCostsSection;
  const auto aoLabels = oSummary.findChildren<Label*>();
  const auto aoSamples = Samples();
  std::string sText =
      std::ranges::find(aoSamples, ByRegion<std::string>("uk-record-player", "used-camera"),
                        &Sample::sName)
          ->sText;
  WorkingAuction().Serialize(sText, false);
  ShowView(false, WorkingAuction());
  std::string sFigures;
  for (qsizetype i = 1; i < aoLabels.size(); i += 2) {
    sFigures += aoLabels[i]->Caption().toStdString() + " ";
  }
  EXPECT_EQ(sFigures, ByRegion("£0.20 £1.31 £0.00 £3.36 £43.45 £11.45 £3.53 £43.05 (99%) ",
                               "$0.40 $2.05 $0.00 $5.34 $52.26 $8.50 $4.87 $96.74 (185%) "));
  for (const auto& [nMode, nBlocks] : {std::pair(0, 3U), {1, 2U}, {0, 3U}}) {
    oSummary.SetMode(nMode);
    std::set<int> anRight;
    EXPECT_EQ(OverlapsIn(oSummary, aoLabels), "") << nMode;
    for (qsizetype i = 1; i < aoLabels.size(); i += 2) {
      const QRect oCaption = aoLabels[i - 1]->geometry();
      const QRect oFigure = aoLabels[i]->geometry();
      EXPECT_NEAR(oCaption.center().y(), oFigure.center().y(), 1) << aoLabels[i]->Name();
      EXPECT_LE(oCaption.right(), oFigure.left() + 1) << aoLabels[i]->Name();
      anRight.insert(oFigure.right());
    }
    EXPECT_EQ(anRight.size(), nBlocks);
  }
}

/// The text of a view's line, which must not cover a figure at any zoom, however long it is.
template <typename View>
std::string MissingPriceIn(View& oView) {
  oView.Place(0, 0, 9900, 9000);
  oView.SetVisible(true);
  auto& oLine = *oView.template findChild<Label*>("MissingPrice");
  for (const double fZoom : {0.75, 2.0, 1.0}) {
    SetZoom(fZoom);
    oView.Rescale();
    RescaleAll(oView);
    const auto fnPlace = [&](const QWidget& o) {
      return QRect(o.mapTo(&oView, QPoint()), o.size());
    };
    const QRect oPlace =
        fnPlace(oLine).united(fnPlace(*oView.template findChild<ScheduleButton*>()));
    for (const Label* const pFigure :
         oView.Set().ctlSellingCostsSection.template findChildren<Label*>()) {
      EXPECT_FALSE(oPlace.intersects(fnPlace(*pFigure))) << pFigure->Name() << " at " << fZoom;
    }
    EXPECT_FALSE(oPlace.intersects(fnPlace(*oView.template findChild<QWidget*>("imgWhatIf"))));
    EXPECT_TRUE(oView.rect().contains(oPlace));
  }
  return oLine.Visible() ? oLine.Caption().toStdString() : "";
}

TEST_F(Calculator, BothViewsNameWhatKeepsTheScheduleFromPricingASale) {
  const std::string sName = UpdateFileName(true);
  const std::string sShipped = ReadTestFile(QUILLET_SOURCE_DIR "/data/" + sName);
  const std::tuple<std::string, std::string, std::string> aoRows[] = {
      {"", "", ""},
      {"OpeningRanges,", "OpeningRanges," + std::string(300, 'x'),
       "\"OpeningRanges\" isn't a number of tiers: \"x"},
      {"BusinessRateBand1Value", "#", "\"BusinessRateBand1Value\" is missing"}};
  for (const auto& [sOld, sNew, sExpected] : aoRows) {
    const TemporaryFolder oFolder;
    ScopedHost oHost;
    oHost.sProgramFolder = oFolder.sPath;
    WriteTestFile(oFolder / sName,
                  std::string(sShipped).replace(sShipped.find(sOld), sOld.size(), sNew));
    UsePrices(nullptr);
    QWidget oWindow;
    oWindow.show();
    for (const std::string& sTold :
         {MissingPriceIn(*new ctlCalculator(&oWindow)), MissingPriceIn(*new ctlWizard(&oWindow))}) {
      EXPECT_NE(sTold.find(sExpected), std::string::npos) << sTold;
      EXPECT_EQ(sTold.starts_with(sName + ":"), !sExpected.empty()) << sTold;
    }
    EXPECT_TRUE(oHost.aoShown.empty());
  }
}

TEST_F(Calculator, ColoursComeFromTheSettingsIfTheyAreNumbers) {
  EXPECT_EQ(TotalColour(), 0xC0FFC0U);
  for (const auto& [sStored, nColour] :
       {std::pair("255", 255U), {"-2147483643", kColourWindow}, {"orange", 33023U}}) {
    Registry().Set(settings::kSubtotalColour, sStored);
    EXPECT_EQ(SubtotalColour(), nColour) << sStored;
  }
}

TEST_F(Calculator, TabWalksTheInputsInReadingOrderAndNeverReachesAShowBox) {
  ShowView(false, WorkingAuction());
  EXPECT_EQ(Tabs(6), RegionCode() == 1
                         ? "txtOutlay txtStartingPrice txtReservePrice txtEstimatedEndPrice "
                           "txtQuantity chkHomePageFeatured "
                         : "txtOutlay chkOutlayInclTax txtStartingPrice txtReservePrice "
                           "txtEstimatedEndPrice txtQuantity ");
  EXPECT_EQ(Tabs(80).find("chkShow"), std::string::npos);
}

TEST_F(Calculator, TabFollowsASectionThatIsDragged) {
  ShowView(true, DefaultAuction());
  Drag(m_pView->Set().ctlPayPalSection, -5520, -240);
  EXPECT_EQ(Tabs(1), "chkUsePayPal ");
  m_pView->ResetControlPositions();
  EXPECT_EQ(Tabs(1), "txtOutlay ");
}

TEST(TabOrder, GoesDownEachColumnFromTheLeft) {
  const std::pair<std::vector<SectionPlace>, std::vector<std::size_t>> aoRows[] = {
      {{{240, 1560, 4670}, {120, 3600, 3750}, {9000, 1560, 3030}, {5760, 1560, 3150}},
       {0, 1, 3, 2}},                                              // as designed
      {{{0, 100, 100}, {51, 0, 100}}, {0, 1}},                     // less than half: side by side
      {{{0, 100, 100}, {50, 0, 100}}, {1, 0}},                     // half: one column
      {{{0, 200, 1000}, {0, 0, 100}, {400, 100, 90}}, {1, 0, 2}},  // in the column where it begins
      {{{0, 0, 100}, {50, 100, 100}, {100, 50, 100}}, {0, 1, 2}},  // a staircase is no column
      {{{-500, 0, 100}, {-600, 0, 100}}, {1, 0}},                  // beyond the edge
  };
  for (const auto& [aoPlaces, anOrder] : aoRows) {
    EXPECT_EQ(ReadingOrder(aoPlaces), anOrder);
  }
}

TEST_F(Calculator, AScreenReaderIsToldOfRowsOptionsAndFigures) {
  const SectionSet& oSet = m_pView->Set();
  const auto fnTold = [](const SectionPanel& oSection, const char* sName) {
    return QAccessible::queryAccessibleInterface(&ControlOf(oSection, sName).Widget());
  };
  for (const bool bConfig : {true, false}) {
    ShowView(bConfig, WorkingAuction());
    EXPECT_NE(fnTold(oSet.ctlPayPalSection, "chkShowUsePayPal")->state().invisible, bConfig);
  }
  const auto& oCost = dynamic_cast<ctlNumericText&>(ControlOf(oSet.ctlOutlaySection, "txtOutlay"));
  EXPECT_EQ(oCost.TextBox()->accessibleName(), "Outlay") << "not after the tax box in its row";
  const SectionPanel& oKinds = oSet.ctlAuctionTypeSection;
  QAccessibleInterface* const pMotor = fnTold(oKinds, "optMotorAuction");
  EXPECT_EQ(pMotor->role(), QAccessible::RadioButton);
  pMotor->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(pMotor->state().checked);
  EXPECT_EQ(WorkingAuction().m_oAuctionType.m_eAuctionType, kAuctionMotor);
  EXPECT_EQ(fnTold(oKinds, "optParts")->text(QAccessible::Name), "Parts & Accsr's");
  EXPECT_EQ(fnTold(oKinds, "chkShowParts")->text(QAccessible::Name), "Show Parts & Accsr's");
  EXPECT_EQ(oSet.ctlSellingCostsSection.The("lblPayPalTotal").accessibleDescription(),
            "PayPal Fee");
}

}  // namespace
}  // namespace quillet
