#include "sections/ctlPostage.h"

#include <sstream>
#include <vector>

#include "sections/ctlPostageParcelInsurance.h"
#include "support/PanelTest.h"
#include "support/Screen.h"

namespace quillet {
namespace {

class Postage : public PanelTest<ctlPostage> {
 protected:
  Postage() { Start(1); }

  void Start(int nQuantity, clsPostage oModel = {}) {
    m_oAuction.m_oOutlay.m_lQuantity = nQuantity;
    m_oModel = std::move(oModel);
    m_oSection.ApplyFeatures(m_oModel, &m_oAuction.m_oOutlay);
    m_oModel.m_bDirty = false;
    m_oChanged.clear();
  }
  /// Clicks "name" and types "name=text".
  void Play(const std::string& sScript) {
    std::istringstream oScript(sScript);
    for (std::string sStep; oScript >> sStep;) {
      const std::size_t nEquals = sStep.find('=');
      if (nEquals == std::string::npos) {
        ClickOn(sStep);
      } else {
        TypeInto(sStep.substr(0, nEquals), sStep.substr(nEquals + 1));
      }
    }
  }
  /// "class 1, band 0, recorded, proof, each"
  std::string Fields() const {
    return "class " + std::to_string(m_oModel.m_ePostageClass) + ", band " +
           std::to_string(m_oModel.m_eInsuranceBand) +
           (m_oModel.m_bRecordedDelivery ? ", recorded" : "") +
           (m_oModel.m_bProofOfDelivery ? ", proof" : "") +
           (m_oModel.m_bSendIndividually ? ", each" : "");
  }
  /// What must hold whenever the section has come to rest.
  void ExpectScreenShowsModel() {
    m_oAuction.m_oPostage = m_oModel;
    m_oAuction.DoCalc();
    EXPECT_EQ(WrongIn(m_oSection, m_oAuction), "");
  }
  ctlPostageParcelInsurance& Insurance() const {
    return dynamic_cast<ctlPostageParcelInsurance&>(ControlOf(m_oSection, "ctlParcelInsurance"));
  }

  clsPostage m_oModel;
};

TEST_F(Postage, TheModelDecidesWhatIsChosen) {
  struct ScriptRow {
    int nQuantity;
    const char* sScript;
    const char* sFields;
    const char* sTotal;
  };
  EXPECT_EQ(Fields(), "class 0, band 0") << "until the section first writes its boxes";
  EXPECT_EQ(Chosen(), "optBand1 optFirstClass");
  const std::vector<ScriptRow> aoRoyalMail = {
      {1, "txtWeight=0.2 optSecondClass", "class 1, band 0", "£1.09"},
      // Beyond the second class: on to the parcel, and beyond that to manual.
      {1, "txtWeight=1.1 optSecondClass", "class 2, band 0", "£3.85"},
      {1, "optParcelService txtWeight=20.5", "class 3, band 0", "£0.00"},
      // The first class never ends: 4.74 and 0.85 for each of three quarters of a kilogram.
      {1, "txtWeight=2", "class 0, band 0", "£7.29"},
      {1, "optManual txtManual=8.5", "class 3, band 0", "£8.50"},
      // Only a parcel is insured above the first band. The band stays with another class, without
      // a premium, until the bands are clicked.
      {1, "optParcelService optBand3", "class 2, band 2", "£6.10"},
      {1, "optBand3", "class 0, band 0", "£1.00"},
      {1, "optParcelService optBand3 optFirstClass", "class 0, band 2", "£1.00"},
      {1, "optParcelService optBand3 optFirstClass optBand2", "class 0, band 0", "£1.00"},
      // Proof of delivery goes with recorded delivery, and that with letters.
      {1, "chkRecordedDelivery chkProofOfDelivery", "class 0, band 0, recorded, proof", "£3.88"},
      {1, "chkRecordedDelivery chkProofOfDelivery chkRecordedDelivery", "class 0, band 0", "£1.00"},
      {2, "chkRecordedDelivery optParcelService chkSendInduvidually", "class 2, band 0, each",
       "£7.70"},
  };
  const std::vector<ScriptRow> aoTypedByHand = {
      {1, "txtManual=8.5 txtManual=abc", "class 3, band 0", "$8.50"},
      {3, "txtManual=8.5 chkSendInduvidually", "class 3, band 0, each", "$25.50"},
  };
  for (const ScriptRow& oRow : ByRegion(aoRoyalMail, aoTypedByHand)) {
    SCOPED_TRACE(oRow.sScript);
    Start(oRow.nQuantity);
    Play("chkUsePostage");
    Play(oRow.sScript);
    EXPECT_EQ(Fields(), oRow.sFields);
    EXPECT_EQ(Total(), std::string("Section Total ") + oRow.sTotal);
    EXPECT_TRUE(m_oModel.m_bDirty);
    EXPECT_GE(m_oChanged.count(), 1);
    ExpectScreenShowsModel();
  }
}

TEST_F(Postage, PricesStandBesideTheServices) {
  Play(ByRegion("optParcelService optBand4 txtWeight=0.3", "txtManual=8.5"));
  std::string sPrices;
  for (const char* const sLabel :
       {"lblSecondClass", "lblFirstClass", "lblParcelService", "lblParcelInsuranceCost"}) {
    sPrices += Caption(sLabel) + " ";
  }
  EXPECT_EQ(sPrices, ByRegion("£1.44 £1.70 £3.85 £8.00 ", "$0.00 $0.00 $0.00 $0.00 "));
  Play(ByRegion("optFirstClass chkRecordedDelivery chkProofOfDelivery", ""));
  EXPECT_EQ(Caption("lblRecordedDelivery") + Caption("lblProofOfDelivery"),
            ByRegion("£0.68£2.20", "$0.00$0.00"));
}

TEST_F(Postage, WhatCannotBeChosenIsGrey) {
  struct Row {
    int nQuantity;
    const char* sScript;
    const char* sUnitedKingdom;
    const char* sUnitedStates;  ///< null where the script needs the other region's rows
  };
  const std::array aoRows = std::to_array<Row>({
      {1, "chkUsePostage",
       "txtProfit chkProofOfDelivery optBand2 optBand3 optBand4 chkSendInduvidually "
       "lblProofOfDelivery",
       "txtProfit chkProofOfDelivery chkRecordedDelivery optBand2 optBand3 optBand4 "
       "optParcelService optFirstClass optSecondClass chkSendInduvidually lblProofOfDelivery "
       "lblRecordedDelivery lblParcelService lblFirstClass lblSecondClass"},
      {2, "chkProfit txtWeight=30",
       "chkProofOfDelivery optBand2 optBand3 optBand4 optParcelService optSecondClass "
       "lblProofOfDelivery lblParcelService lblSecondClass",
       nullptr},
      {2, "chkProfit txtWeight=1",
       "chkProofOfDelivery optBand2 optBand3 optBand4 lblProofOfDelivery", nullptr},
  });
  for (const Row& oRow : aoRows) {
    const char* const sGrey = ByRegion(oRow.sUnitedKingdom, oRow.sUnitedStates);
    if (sGrey == nullptr) {
      continue;
    }
    SCOPED_TRACE(oRow.sScript);
    Start(oRow.nQuantity);
    Play(oRow.sScript);
    EXPECT_EQ(Grey(), sGrey);
    EXPECT_EQ(Usable("txtProfit"), !IsGrey(Box("txtProfit")));
    EXPECT_EQ(Usable("chkSendInduvidually"), oRow.nQuantity >= 2);
  }
}

TEST_F(Postage, TheScheduleNamesTheServiceAndTheBands) {
  EXPECT_EQ(Caption("chkUsePostage"), ByRegion("Use Royal Mail Postage", "Use Postage"));
  EXPECT_EQ(ControlOf(m_oSection, "chkShowUsePostage").Widget().accessibleName().toStdString(),
            ByRegion("Show Use Royal Mail Postage", "Show Use Postage"));
  EXPECT_EQ(Caption("optBand4"), ByRegion("up to £2500", "not offered"));
}

TEST_F(Postage, AScheduleWithoutTheTiersLeavesTheSectionUsable) {
  UseSchedule("");
  ClickOn("chkUsePostage");
  EXPECT_EQ(m_oChanged.count(), 0);
  UseShippedSchedule();
  ClickOn("chkUsePostage");
  EXPECT_EQ(m_oChanged.count(), 1);
  EXPECT_THROW(m_oSection.ApplyFeatures(m_oModel, nullptr), Failure);
}

TEST_F(Postage, EachShowBoxStandsForItsRowAlone) {
  ExpectEachShowBoxStandsForItsRow(m_oSection, ByRegion(12U, 5U));
  ExpectEachShowBoxStandsForItsRow(Insurance(), 4);
}

TEST_F(Postage, NoCaptionIsClippedAndEveryInputHasAName) {
  Play(ByRegion("optParcelService optBand4 chkUsePostage", "txtManual=100 chkUsePostage"));
  m_oSection.SetShowConfig(true);
  EXPECT_EQ(ClippedCaptionsIn(m_oSection), "");
  EXPECT_EQ(UnnamedInputsIn(m_oSection), "");
}

}  // namespace
}  // namespace quillet
