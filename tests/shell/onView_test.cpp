// Showing an auction changes neither it nor the one that was shown before.
#include <cstring>

#include <gtest/gtest.h>

#include "base/clsRegistryAccess.h"
#include "shell/frmMain.h"
#include "support/ByRegion.h"
#include "support/Screen.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

/// The region's samples, one with insurance for parcels only, and one with codes of no option.
std::vector<std::string> Auctions() {
  std::vector<std::string> asAuctions = SampleTexts();
  asAuctions.insert(asAuctions.end(),
                    {"[TYPE]000|True|False|3|0|0|0|True[TYPE][OUTLAY]40|1|0|9|2|False[OUTLAY]"
                     "[FEATURES]0|0[FEATURES][PAYPAL]True|1|4|True[PAYPAL]"
                     "[POSTAGE]True|0.2|0|3|2|True|True|True|1|True[POSTAGE]",
                     "[TYPE]009|False|False|3|8|7|6|False[TYPE][OUTLAY]40|1|0|9|1|False[OUTLAY]"
                     "[FEATURES]0|0[FEATURES][PAYPAL]True|7|0|False[PAYPAL]"
                     "[POSTAGE]True|0.2|7|3|0|False|False|True|1|False[POSTAGE]"});
  return asAuctions;
}

class OnView : public ::testing::Test {
 protected:
  OnView() {
    Registry().Set(settings::kStartMode, "1");
    m_oWindow.Show();
  }

  void Load(std::string sAuction) {
    WorkingAuction().Serialize(sAuction, false);
    m_oWindow.Calculator().RefreshSums(true);
  }

  /// Expects these texts of both documents, both clean, and one of them shown by the view.
  void ExpectShown(clsCalculate& oOnView, const SectionSet& oSet, const std::string& sWorking,
                   const std::string& sDefault) {
    EXPECT_EQ(TextOf(WorkingAuction()), sWorking);
    EXPECT_EQ(TextOf(DefaultAuction()), sDefault);
    EXPECT_FALSE(WorkingAuction().IsDirty());
    EXPECT_FALSE(DefaultAuction().IsDirty());
    EXPECT_EQ(m_oMirror.Differences(oSet, oOnView), "");
  }

  ScopedHost m_oHost;
  frmMain m_oWindow;
  Mirror m_oMirror;
};

TEST_F(OnView, EveryAuctionIsWholeWhateverWasOnViewBeforeIt) {
  const std::vector<std::string> asAuctions = Auctions();
  const SectionSet& oCalculator = m_oWindow.Calculator().Set();
  clsCalculate oEmpty;  // what the wizard begins with
  oEmpty.m_oAuctionType.m_eShopDuration = kShopNone;
  oEmpty.m_oOutlay.m_lQuantity = 1;
  const std::string sEmpty = TextOf(oEmpty);
  for (const std::string& sOther : asAuctions) {
    Registry().Set(settings::kDefaultAuction, sOther);
    Load(sOther);  // the first time, right after the start
    EXPECT_EQ(TextOf(WorkingAuction()), sOther);
    for (const std::string& sAuction : asAuctions) {
      SCOPED_TRACE("after " + sOther + "\n" + sAuction);
      Load(sAuction);
      ExpectShown(WorkingAuction(), oCalculator, sAuction, TextOf(DefaultAuction()));
      m_oWindow.ClickButton(kButtonConfig);
      ExpectShown(DefaultAuction(), oCalculator, sAuction, sOther);
      m_oWindow.ClickButton(kButtonCalculator);
      ExpectShown(WorkingAuction(), oCalculator, sAuction, sOther);
      m_oWindow.ClickButton(kButtonWizard);
      ExpectShown(WorkingAuction(), m_oWindow.Wizard().Set(), sEmpty, sOther);
      m_oWindow.ClickButton(kButtonConfig);
      ExpectShown(DefaultAuction(), oCalculator, sEmpty, sOther);
      m_oWindow.ClickButton(kButtonNew);
      ExpectShown(WorkingAuction(), oCalculator, sOther, sOther);
      if (HasFailure()) {
        return;
      }
    }
  }
}

// And it doesn't come back when the listing can have it again.
TEST_F(OnView, AFeatureThatGoesGreyIsChargedNoLonger) {
  struct Row {
    const char* sClicks;
    const char* sUndone;
    const char* sLeft;
  };
  const std::vector<Row> aoEverywhere = {
      {"chkHomePageFeatured chkFeaturePlus chkItemSubtitle chkShopInventory optShop90Days",
       "chkShopInventory", ""},
      {"chkFeaturePlus chkBold chkScheduledListing chkListIn2Categories chkShopInventory",
       "chkShopInventory", "chkBold"}};
  const std::vector<Row> aoUnitedStates = {
      {"optMotorAuction chkCarAd chkListingItem optStandardAution", "optMotorAuction", ""}};
  SectionSet& oSet = m_oWindow.Calculator().Set();
  const auto fnClick = [&](const std::string& sNames) {
    std::istringstream oNames(sNames);
    for (std::string sName; oNames >> sName;) {
      const SectionPanel& oSection = oSet.ctlSellingFeaturesSection;
      ClickOn(oSection.Find(sName) != nullptr ? oSection : oSet.ctlAuctionTypeSection, sName);
    }
  };
  for (const auto& aoRows : {aoEverywhere, ByRegion({}, aoUnitedStates)}) {
    for (const auto& [sClicks, sUndone, sLeft] : aoRows) {
      SCOPED_TRACE(sClicks);
      Load(TextOf(DefaultAuction()));
      for (const char* const sNames : {sClicks, sUndone}) {
        fnClick(sNames);
        EXPECT_EQ(ChosenIn(oSet.ctlSellingFeaturesSection), sLeft) << sNames;
        EXPECT_EQ(m_oMirror.Differences(oSet, WorkingAuction()), "") << sNames;
      }
    }
  }
}

TEST_F(OnView, ABoxTickedForOneAuctionIsNotTickedForTheNext) {
  using Boxes = std::vector<const char*>;
  const SectionPanel& oFeatures = m_oWindow.Calculator().Set().ctlSellingFeaturesSection;
  const std::string sMotor =
      TextOf(DefaultAuction()).replace(0, std::strlen("[TYPE]000"), "[TYPE]001");
  for (const char* const sBox : ByRegion(Boxes{"chkBold"}, Boxes{"chkBold", "chkCarAd"})) {
    Load(sMotor);
    ClickOn(oFeatures, sBox);
    Load(sMotor);
    ClickOn(oFeatures, "chkGallery");
    EXPECT_EQ(ChosenIn(oFeatures), "chkGallery") << "after " << sBox;
  }
}

}  // namespace
}  // namespace quillet
