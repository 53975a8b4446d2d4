#include "sections/ctlPayPal.h"

#include "sections/ctlPaypalBusinessTypes.h"
#include "support/PanelTest.h"

namespace quillet {
namespace {

constexpr const char* kBandNames = "optBand1 optBand2 optBand3 optBand4 optBand5";

/// For an amount of 100.
class PayPal : public PanelTest<ctlPayPal> {
 protected:
  PayPal() { Start(1); }

  void Start(int nQuantity, clsPayPal oModel = {}) {
    m_oAuction.m_oOutlay.m_lQuantity = nQuantity;
    m_oModel = std::move(oModel);
    static_cast<void>(m_oModel.DoCalc(100, nullptr));
    m_oSection.ApplyFeatures(m_oModel, &m_oAuction.m_oOutlay);
    m_oModel.m_bDirty = false;
    m_oChanged.clear();
  }
  /// "used, account 1, band 1, individually"
  std::string Fields() const {
    return std::string(m_oModel.m_bEnabled ? "used, " : "") + "account " +
           std::to_string(m_oModel.m_eAccountType) + ", band " +
           std::to_string(m_oModel.m_nBusinessBand) +
           (m_oModel.m_bPayIndividually ? ", individually" : "");
  }
  ctlPaypalBusinessTypes& Bands() const {
    return dynamic_cast<ctlPaypalBusinessTypes&>(ControlOf(m_oSection, "ctlPaypalBusinessType"));
  }

  clsPayPal m_oModel;
};

TEST_F(PayPal, ClicksReachTheModelAndTheTotalAtOnce) {
  struct Row {
    int nQuantity;
    const char* sClicks;
    const char* sFields;
    const char* sChosen;
    bool bBandsGrey;
    const char* sUnitedStates;
    const char* sUnitedKingdom;
  };
  // United States: 2.9 % + 0.30 for a personal account and band 1, 2.2 % for band 3.
  // United Kingdom: 3.4 % + 0.20, and 2.4 %.
  const std::array aoRows = std::to_array<Row>({
      {1, "chkUsePayPal", "used, account 0, band 1", "optBand1 optPersonalAccount chkUsePayPal",
       true, "$3.20", "£3.60"},
      {1, "chkUsePayPal optBand3 optPremierAccount", "used, account 1, band 3",
       "optBand3 optPremierAccount chkUsePayPal", false, "$2.50", "£2.60"},
      {1, "optBusinessAccount optBand5 optPersonalAccount chkUsePayPal", "used, account 0, band 5",
       "optBand5 optPersonalAccount chkUsePayPal", true, "$3.20", "£3.60"},
      // Two payments: the fixed charge comes twice.
      {2, "chkUsePayPal chkPayInduvidually", "used, account 0, band 1, individually",
       "optBand1 optPersonalAccount chkPayInduvidually chkUsePayPal", true, "$3.50", "£3.80"},
  });
  for (const Row& oRow : aoRows) {
    SCOPED_TRACE(oRow.sClicks);
    Start(oRow.nQuantity);
    ClickOn(oRow.sClicks);
    EXPECT_EQ(Fields(), oRow.sFields);
    EXPECT_EQ(Chosen(), oRow.sChosen);
    EXPECT_EQ(NamesWhere(Bands(), IsGrey), oRow.bBandsGrey ? kBandNames : "");
    EXPECT_EQ(Total(),
              std::string("Section Total ") + ByRegion(oRow.sUnitedKingdom, oRow.sUnitedStates));
    EXPECT_TRUE(m_oModel.m_bDirty);
    EXPECT_GE(m_oChanged.count(), 1);
  }
}

TEST_F(PayPal, OneUnitCannotBePaidForIndividually) {
  clsPayPal oModel;
  oModel.m_bPayIndividually = true;
  Start(1, oModel);
  EXPECT_EQ(Chosen(), "optBand1 optPersonalAccount");
  EXPECT_TRUE(IsGrey(ControlOf(m_oSection, "chkPayInduvidually")));
  EXPECT_FALSE(Usable("chkPayInduvidually"));
  EXPECT_TRUE(m_oModel.m_bPayIndividually) << "until the section writes its boxes";
  ClickOn("chkUsePayPal");
  EXPECT_FALSE(m_oModel.m_bPayIndividually);
}

TEST_F(PayPal, BandsAreCalledAsTheScheduleSays) {
  EXPECT_EQ(Caption("optBand2"), ByRegion("to £6000", "to $10000"));
}

TEST_F(PayPal, EachShowBoxStandsForItsRowAlone) {
  ExpectEachShowBoxStandsForItsRow(m_oSection, 6);
  ExpectEachShowBoxStandsForItsRow(Bands(), 5);
}

TEST_F(PayPal, TheRowsBelowTheBandsFollowTheirHeight) {
  for (const auto& [sBoxes, nHeight, nTotalTop] :
       {std::tuple("", 1375, 3135), {"chkShowBusinessRateBand5", 1095, 2855}}) {
    m_oSection.SetShowConfig(true);
    ClickOn(sBoxes);
    m_oSection.SetShowConfig(false);
    EXPECT_EQ(Bands().Height(), nHeight) << sBoxes;
    EXPECT_EQ(ControlOf(m_oSection, "lblTotal").Top(), nTotalTop) << sBoxes;
    EXPECT_EQ(m_oSection.Height(), nTotalTop + 255) << sBoxes;
  }
}

TEST_F(PayPal, NoCaptionIsClippedAndEveryInputHasAName) {
  m_oSection.SetShowConfig(true);
  ClickOn("chkUsePayPal");
  EXPECT_EQ(ClippedCaptionsIn(m_oSection), "");
  EXPECT_EQ(UnnamedInputsIn(m_oSection), "");
}

}  // namespace
}  // namespace quillet
