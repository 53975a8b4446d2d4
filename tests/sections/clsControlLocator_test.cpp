#include "sections/clsControlLocator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/clsRegistryAccess.h"
#include "sections/VisibleList.h"
#include "support/ByRegion.h"
#include "support/LayoutCheck.h"
#include "support/MemoryHive.h"

namespace quillet {
namespace {

using ::testing::ElementsAre;

/// Three rows of a label and a box. The boxes are 5 higher than the rows are apart.
class clsControlLocatorTest : public ::testing::Test {
 protected:
  void SetUp() override {
    SetRegistryHive(m_oHive);
    Store("One,Two,Three");
    m_oLocator.SetSection("Rows");
    for (const DesignedControl& oControl : m_aoDesign) {
      m_oLocator.AddControl(oControl.sName, oControl.nTop, oControl.nHeight, false);
    }
  }

  static void Store(const std::string& sWords) {
    clsTokeniser oList;
    oList.Tokenise(sWords, ",");
    SaveVisibleList("Rows", oList);
  }

  std::vector<PackedControl> Pack(const std::string& sWords, bool bApplyList = true) {
    Store(sWords);
    m_oLocator.UpdateVisibility();
    m_oLocator.BuildList(bApplyList);
    CheckLayout(m_oLocator, m_aoDesign);
    return Shown(m_oLocator);
  }

  void Grow(std::size_t nControl, int nHeight) {
    m_aoDesign[nControl].nCurrentHeight = nHeight;
    m_oLocator.UpdateHeight(m_aoDesign[nControl].sName, nHeight);
  }

  MemoryHive m_oHive;
  // Added from below, as collections are.
  std::vector<DesignedControl> m_aoDesign = {
      {"txtThree", 920, 285, 285}, {"txtTwo", 640, 285, 285}, {"txtOne", 360, 285, 285},
      {"lblThree", 920, 255, 255}, {"lblTwo", 640, 255, 255}, {"lblOne", 360, 255, 255}};
  clsControlLocator m_oLocator;
};

TEST_F(clsControlLocatorTest, WantedRowsMoveUpIntoThePlacesOfUnwantedOnes) {
  using P = PackedControl;
  EXPECT_THAT(Pack("One,Two,Three"),
              ElementsAre(P{"txtOne", 360}, P{"lblOne", 360}, P{"txtTwo", 640}, P{"lblTwo", 640},
                          P{"txtThree", 920}, P{"lblThree", 920}));
  EXPECT_THAT(Pack("One,Three"), ElementsAre(P{"txtOne", 360}, P{"lblOne", 360}, P{"txtThree", 640},
                                             P{"lblThree", 640}));
  EXPECT_THAT(Pack("Three"), ElementsAre(P{"txtThree", 360}, P{"lblThree", 360}));
  EXPECT_EQ(Pack("Three", false).size(), 6U) << "in config mode the list doesn't count";
}

TEST_F(clsControlLocatorTest, AGrownControlPushesWhatLiesBelowItIfItIsTheLastOfItsRow) {
  using P = PackedControl;
  Grow(5, 755);  // lblOne, by 500
  EXPECT_THAT(Pack("One,Three"), ElementsAre(P{"txtOne", 360}, P{"lblOne", 360},
                                             P{"txtThree", 1140}, P{"lblThree", 1140}));
  EXPECT_THAT(Pack("Three"), ElementsAre(P{"txtThree", 360}, P{"lblThree", 360}));
  Grow(5, 255);
  m_oLocator.UpdateHeight("txtOne", 785);
  m_oLocator.UpdateHeight("lblNobody", 9999);
  EXPECT_EQ(Pack("One,Three").back().nTop, 640) << "txtOne isn't the last of its row";
}

TEST_F(clsControlLocatorTest, ARowWhoseLastControlIsHiddenAloneIsCoveredByTheNext) {
  using P = PackedControl;
  EXPECT_THAT(Pack("txtOne,Two"),
              ElementsAre(P{"txtOne", 360}, P{"txtTwo", 360}, P{"lblTwo", 360}));
}

TEST_F(clsControlLocatorTest, WhatTheRegionLacksIsHiddenWithAndWithoutTheList) {
  m_aoDesign.push_back({"chkBorder", 1200, 255, 255});
  m_aoDesign.push_back({"txtWeight", 1480, 285, 285});
  m_oLocator.AddControl("chkBorder", 1200, 255, false);
  m_oLocator.AddControl("txtWeight", 1480, 285, false);
  for (const bool bApplyList : {true, false}) {
    EXPECT_EQ(Pack("One,Two,Three,Border,Weight", bApplyList).back(),
              ByRegion(PackedControl{"txtWeight", 1200}, PackedControl{"chkBorder", 1200}));
  }
}

TEST_F(clsControlLocatorTest, ResultsStandUntilAControlIsAdded) {
  Pack("One");
  Store("Two");
  m_oLocator.UpdateVisibility();
  EXPECT_EQ(Shown(m_oLocator).front().sName, "txtOne");

  m_oLocator.AddControl("fraInside", 0, 10, true);  // goes with its Frame: nothing is added
  EXPECT_TRUE(m_oLocator.BuiltControls());
  m_oLocator.AddControl("lblFour", 1200, 255, false);
  EXPECT_FALSE(m_oLocator.BuiltControls());
  std::string sName = "kept";
  std::int32_t lTop = 7;
  EXPECT_FALSE(m_oLocator.GetIncludedControl(0, sName, lTop));
  EXPECT_FALSE(m_oLocator.GetExcludedControl(0, sName));
  EXPECT_EQ(sName, "kept");
  EXPECT_EQ(lTop, 7);
}

TEST_F(clsControlLocatorTest, AnIndexBeyondTheListIsRefusedButOnePlaceAlwaysStands) {
  Pack("Nothing");
  EXPECT_EQ(m_oLocator.IncludedCount(), 0);
  EXPECT_EQ(m_oLocator.ExcludedCount(), 6);
  std::string sName = "kept";
  std::int32_t lTop = 7;
  EXPECT_FALSE(m_oLocator.GetIncludedControl(-1, sName, lTop));
  EXPECT_FALSE(m_oLocator.GetIncludedControl(1, sName, lTop));
  EXPECT_FALSE(m_oLocator.GetExcludedControl(6, sName));
  EXPECT_EQ(sName, "kept");
  EXPECT_TRUE(m_oLocator.GetIncludedControl(0, sName, lTop));
  EXPECT_EQ(sName, "");
}

TEST_F(clsControlLocatorTest, OnceComplete_WhatIsRegisteredStays) {
  m_oLocator.SetAddingComplete(true);
  EXPECT_FALSE(m_oLocator.Reset());
  m_oLocator.AddControl("lblFour", 1200, 255, false);
  EXPECT_EQ(Pack("One,Two,Three").size(), 6U);
}

TEST_F(clsControlLocatorTest, ResetStartsOverWithOneNamelessControl) {
  EXPECT_FALSE(m_oLocator.Reset());
  EXPECT_FALSE(m_oLocator.BuiltControls());
  m_oLocator.BuildList(true);
  EXPECT_EQ(m_oLocator.ExcludedCount(), 1);
  EXPECT_EQ(m_oLocator.IncludedCount(), 0);
  m_oLocator.BuildList(false);
  EXPECT_EQ(m_oLocator.ExcludedCount(), 0);
  EXPECT_EQ(m_oLocator.IncludedCount(), 1);
}

}  // namespace
}  // namespace quillet
