#include "shell/ctlCalculator.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <cstring>
#include <set>

#include <gtest/gtest.h>

#include "base/basCommon.h"
#include "base/basMain.h"
#include "base/clsRegistryAccess.h"
#include "base/region.h"
#include "look/palette.h"
#include "look/scale.h"
#include "sections/VisibleList.h"
#include "sections/controlHelpers.h"
#include "shell/ctlWizard.h"
#include "shell/tabOrder.h"
#include "support/Auctions.h"
#include "support/ByRegion.h"
#include "support/Log.h"
#include "support/PanelScript.h"
#include "support/Places.h"
#include "support/Prices.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

std::string Stored(const std::string& sSection, const std::string& sName) {
  std::string sText;
  const bool bFound =
      Registry().GetRegSettingString(HiveRoot::User, sText, sName, "Controls\\" + sSection, "");
  return bFound ? sText : "none";
}

/// An input that a screen reader has no name for.
bool IsUnnamedInput(const Control& oControl) {
  if (const auto* const pBox = dynamic_cast<const ctlNumericText*>(&oControl)) {
    return pBox->TextBox()->accessibleName().isEmpty();
  }
  const QString sName = oControl.Widget().accessibleName();
  return IsShowCheck(oControl)
             ? sName.isEmpty() || sName == "Show"
             : dynamic_cast<const Choice*>(&oControl) != nullptr && oControl.Caption().isEmpty();
}

class Calculator : public ::testing::Test {
 protected:
  Calculator() {
    ClearAuctions();
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

  /// Drags a section by its header, by so many twips.
  void Drag(SectionPanel& oSection, int nX, int nY) {
    oSection.setFocus();
    Control& oHeader = ControlOf(oSection, "imgHeader");
    ASSERT_TRUE(oHeader.Visible()) << "the focus brings the header up";
    const QPoint oStart(20, 5);
    QTest::mousePress(&oHeader.Widget(), Qt::RightButton, {}, oStart);
    QTest::mouseMove(&oHeader.Widget(), oStart + QPoint(Pixels(nX), Pixels(nY)));
    QTest::mouseRelease(&oHeader.Widget(), Qt::RightButton, {}, oStart);
  }

  /// The inputs that the first so many presses of Tab come to in the view.
  std::string Tabs(int nPresses) {
    m_pView->setFocus();
    std::string sWalked;
    for (int i = 0; i < nPresses; ++i) {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
      const QWidget* const pAt = QApplication::focusWidget();
      const QWidget* const pNamed = pAt->objectName() == "txtValue" ? pAt->parentWidget() : pAt;
      sWalked += pNamed->objectName().toStdString() + " ";
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

  Registry().SetRegSettingString(HiveRoot::User, "here", "Top", "Controls\\Outlay");
  auto* const pOther = new ctlCalculator(&m_oWindow);
  pOther->SetVisible(true);
  EXPECT_EQ(pOther->Set().ctlPayPalSection.Left(), 6960);
  EXPECT_EQ(pOther->Set().ctlOutlaySection.Top(), 1560) << "no number, no place";
  pOther->ResetControlPositions();
  EXPECT_EQ(pOther->Set().ctlPayPalSection.Left(), 5760);
  EXPECT_EQ(Stored("PayPal", "Left"), "5760");
}

TEST_F(Calculator, WhatTheRegionLacksIsGoneInBothModesAndAllElseIsThere) {
  const std::string sLacking = ByRegion<std::string>(
      "fraBorder chkBorder fra10DayDuration chk10DayDuration fraListingItem chkListingItem "
      "fraGiftServices chkGiftServices fraCarAd chkCarAd fraPreviewPicture chkPreviewPicture "
      "optShop60Days optShop120Days ctlRealEstateOption ctlRealEstateOptionsLand1 "
      "optRealEstateTimeShare optRealEstateOther ctlRealEstateOptionsSale1 "
      "optRealEstate10DayAuction optRealEstate30DayAuction optRealEstate30DayAd "
      "optRealEstate90DayAd chkRealEstateBinding optPassenger optMotorcycle optPowersports "
      "optPocketBikes optOtherVehicle optParts optBusinessAuction ",
      "chkOutlayInclTax chkProofOfDelivery chkRecordedDelivery ctlParcelInsurance optBand1 "
      "optBand2 optBand3 optBand4 optParcelService optFirstClass optSecondClass lblWeight "
      "txtWeight lblProofOfDelivery lblRecordedDelivery lblParcelInsurance "
      "lblParcelInsuranceCost lblParcelService lblFirstClass lblSecondClass ");
  for (const bool bConfig : {true, false}) {
    ShowView(bConfig, WorkingAuction());
    std::string sGone;
    for (const SectionPanel* const pSection : m_pView->Set().Sections()) {
      const std::string sNames = NamesWhere(*pSection, [&](const Control& oControl) {
        return !oControl.Widget().isVisibleTo(pSection) && !IsHeaderImage(oControl) &&
               !IsShowCheck(oControl);
      });
      sGone += sNames + (sNames.empty() ? "" : " ");
    }
    EXPECT_EQ(sGone, sLacking) << bConfig;
  }
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
        EXPECT_EQ(OverlapsIn(*pSection), "") << oBox.Name();
        m_pView->SetVisible(false);
        ShowView(false, WorkingAuction());
        EXPECT_EQ(PlacesOf(m_pView->Set().Sections()), PlacesAfterRestart()) << oBox.Name();
        ShowView(true, WorkingAuction());
        oBox.SetValue(1);
      }
    }
  }
}

TEST_F(Calculator, EachShowBoxStandsForItsRowAlone) {
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
  EXPECT_EQ(asRows.size(), ByRegion(69U, 74U));
}

TEST_F(Calculator, NoCaptionIsClippedAndEveryInputHasAName) {
  std::string sAuction =
      "[TYPE]000|False|False|3|0|0|0|False[TYPE][OUTLAY]1000000|0|0|100|1|False[OUTLAY]"
      "[FEATURES]1048575|0[FEATURES][PAYPAL]True|0|1|False[PAYPAL]"
      "[POSTAGE]True|1|2|50|3|False|False|False|0|False[POSTAGE]";
  WorkingAuction().Serialize(sAuction, false);
  for (const bool bConfig : {false, true}) {
    ShowView(bConfig, WorkingAuction());
    ShowSectionTotal(
        dynamic_cast<Label&>(ControlOf(m_pView->Set().ctlAuctionTypeSection, "lblTotal")),
        9999.99F);
    for (const double fZoom : kZooms) {
      SetZoom(fZoom);
      RescaleAll(m_oWindow);
      for (const SectionPanel* const pSection : m_pView->Set().Sections()) {
        EXPECT_EQ(ClippedIn(*pSection), "") << pSection->SectionKey();
      }
    }
  }
  for (const SectionPanel* const pSection : m_pView->Set().Sections()) {
    EXPECT_EQ(NamesWhere(*pSection, IsUnnamedInput), "") << pSection->SectionKey();
  }
}

/// Figures stand beside their captions, one below the other in each block, and nothing on another.
TEST_F(Calculator, TheSummaryIsAStripOrAColumn) {
  ctlSellingCosts& oSummary = m_pView->Set().ctlSellingCostsSection;
  for (const int nMode : {0, 1, 0}) {
    SCOPED_TRACE(nMode);
    oSummary.SetMode(nMode);
    std::set<int> anRight;
    QRegion oTaken;
    const auto aoLabels = oSummary.findChildren<Label*>();
    for (qsizetype i = 0; i < aoLabels.size(); ++i) {
      const QRect oPlace = aoLabels[i]->geometry();
      EXPECT_FALSE(oTaken.intersects(oPlace.adjusted(2, 2, -2, -2))) << aoLabels[i]->Name();
      oTaken += oPlace;
      if (i % 2 == 1) {
        const QRect oCaption = aoLabels[i - 1]->geometry();
        EXPECT_NEAR(oCaption.center().y(), oPlace.center().y(), 1) << aoLabels[i]->Name();
        EXPECT_LE(oCaption.right(), oPlace.left() + 1) << aoLabels[i]->Name();
        anRight.insert(oPlace.right());
      }
    }
    EXPECT_EQ(anRight.size(), nMode == 0 ? 3U : 2U);
  }
}

/// The line of a view, which lies on no figure at any zoom, be it as long as it will.
template <typename View>
std::string MissingPriceIn(View& oView) {
  oView.Place(0, 0, 9900, 9000);
  oView.SetVisible(true);
  auto& oLine = *oView.template findChild<Label*>("MissingPrice");
  for (const double fZoom : {0.75, 1.0, 2.0}) {
    SetZoom(fZoom);
    oView.Rescale();
    RescaleAll(oView);
    for (const Label* const pFigure :
         oView.Set().ctlSellingCostsSection.template findChildren<Label*>()) {
      const QRect oPlace(pFigure->mapTo(&oView, QPoint()), pFigure->size());
      EXPECT_FALSE(oLine.geometry().intersects(oPlace)) << pFigure->Name() << " at " << fZoom;
    }
    EXPECT_TRUE(oView.rect().contains(oLine.geometry()));
  }
  SetZoom(1);
  return oLine.Visible() ? oLine.Caption().toStdString() : "";
}

TEST_F(Calculator, BothViewsNameWhatKeepsTheScheduleFromPricingASale) {
  const std::string sName = UpdateFileName(true);
  const std::string sShipped = ReadTestFile(std::string(QUILLET_SOURCE_DIR "/data/") + sName);
  const std::string sLong(300, 'x');
  const std::tuple<const char*, std::string, std::string> aoRows[] = {
      {"", "", ""},
      {"OpeningRanges,", "OpeningRanges," + sLong,
       "\"OpeningRanges\" isn't a number of tiers: \"x"},
      {"BusinessRateBand1Value", "#", "\"BusinessRateBand1Value\" is missing"}};
  for (const auto& [sOld, sNew, sExpected] : aoRows) {
    SCOPED_TRACE(sOld);
    const TemporaryFolder oFolder;
    ScopedHost oHost;
    oHost.sProgramFolder = oFolder.sPath;
    const std::size_t nAt = sShipped.find(sOld);
    WriteTestFile(oFolder / sName, std::string(sShipped).replace(nAt, std::strlen(sOld), sNew));
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
  const struct {
    std::vector<SectionPlace> aoPlaces;
    std::vector<std::size_t> anOrder;
  } kRows[] = {
      {{{240, 1560, 4670},
        {120, 3600, 3750},
        {9000, 1560, 3030},
        {5760, 1560, 3150},
        {4440, 5640, 4350}},
       {0, 1, 3, 4, 2}},                        // as designed
      {{{0, 100, 100}, {51, 0, 100}}, {0, 1}},  // less than half side by side
      {{{0, 100, 100}, {50, 0, 100}}, {1, 0}},  // half of it on top
      {{{0, 200, 1000}, {0, 0, 100}, {400, 100, 90}},
       {1, 0, 2}},  // a wide one goes with the column that it begins in
      {{{0, 0, 100}, {50, 100, 100}, {100, 50, 100}}, {0, 1, 2}},  // a stair is no column
      {{{-500, 0, 100}, {-600, 0, 100}}, {1, 0}},                  // beyond the edge
  };
  for (const auto& [aoPlaces, anOrder] : kRows) {
    EXPECT_EQ(ReadingOrder(aoPlaces), anOrder);
  }
}

TEST_F(Calculator, AScreenReaderIsToldOfRowsOptionsAndFigures) {
  for (const bool bConfig : {true, false}) {
    ShowView(bConfig, WorkingAuction());
    Control& oBox = ControlOf(m_pView->Set().ctlPayPalSection, "chkShowUsePayPal");
    EXPECT_NE(QAccessible::queryAccessibleInterface(&oBox.Widget())->state().invisible, bConfig);
  }
  const SectionSet& oSet = m_pView->Set();
  const auto fnTold = [](const SectionPanel& oSection, const char* sName) {
    return QAccessible::queryAccessibleInterface(&ControlOf(oSection, sName).Widget());
  };
  const auto& oCost = dynamic_cast<ctlNumericText&>(ControlOf(oSet.ctlOutlaySection, "txtOutlay"));
  EXPECT_EQ(oCost.TextBox()->accessibleName(), "Outlay") << "not after the tax box in its row";
  EXPECT_EQ(oSet.ctlOutlaySection.accessibleName(), "Outlay");

  const SectionPanel& oKinds = oSet.ctlAuctionTypeSection;
  QAccessibleInterface* const pMotor = fnTold(oKinds, "optMotorAuction");
  ASSERT_NE(pMotor, nullptr);
  EXPECT_EQ(pMotor->role(), QAccessible::RadioButton);
  EXPECT_FALSE(pMotor->state().checked);
  pMotor->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(pMotor->state().checked);
  EXPECT_EQ(WorkingAuction().m_oAuctionType.m_eAuctionType, kAuctionMotor);
  EXPECT_EQ(fnTold(oKinds, "optStandardAution")->text(QAccessible::Name), "Standard Auction");
  EXPECT_EQ(fnTold(oKinds, "optParts")->text(QAccessible::Name), "Parts & Accsr's");
  EXPECT_EQ(fnTold(oKinds, "chkShowParts")->text(QAccessible::Name), "Show Parts & Accsr's");
  EXPECT_EQ(oSet.ctlSellingCostsSection.The("lblPayPalTotal").accessibleDescription(),
            "PayPal Fee");
}

}  // namespace
}  // namespace quillet
