#include "sections/clsControlLocator.h"

#include <gtest/gtest.h>

#include "base/clsRegistryAccess.h"
#include "sections/VisibleList.h"
#include "support/ByRegion.h"
#include "support/LayoutCheck.h"
#include "support/MemoryHive.h"

namespace quillet {
namespace {

using Packed = std::vector<PackedControl>;

/// Three rows of a label and a box. The boxes are 5 higher than the rows are apart.
class clsControlLocatorTest : public ::testing::Test {
 protected:
  clsControlLocatorTest() {
    SetRegistryHive(m_oHive);
    m_oLocator.SetSection("Rows");
    for (const auto& oControl : {DesignedControl{"txtThree", 920, 285},
                                 {"txtTwo", 640, 285},
                                 {"txtOne", 360, 285},
                                 {"lblThree", 920, 255},
                                 {"lblTwo", 640, 255},
                                 {"lblOne", 360, 255}}) {
      Add(oControl);
    }
  }

  void Add(const DesignedControl& oControl) {
    m_aoDesign.push_back(oControl);
    m_oLocator.AddControl(oControl.sName, oControl.nTop, oControl.nHeight, false);
  }

  Packed Pack(const std::string& sWords, bool bApplyList = true) {
    clsTokeniser oList;
    oList.Tokenise(sWords, ",");
    SaveVisibleList("Rows", oList);
    m_oLocator.UpdateVisibility();
    m_oLocator.BuildList(bApplyList);
    CheckLayout(m_oLocator, m_aoDesign);
    return Shown(m_oLocator);
  }

  MemoryHive m_oHive;
  std::vector<DesignedControl> m_aoDesign;
  clsControlLocator m_oLocator;
  std::string m_sName = "kept";
  std::int32_t m_lTop = 7;
};

TEST_F(clsControlLocatorTest, WantedRowsMoveUpIntoThePlacesOfUnwantedOnes) {
  EXPECT_EQ(Pack("One,Three"),
            (Packed{{"txtOne", 360}, {"lblOne", 360}, {"txtThree", 640}, {"lblThree", 640}}));
  EXPECT_EQ(Pack("Three"), (Packed{{"txtThree", 360}, {"lblThree", 360}}));
  EXPECT_EQ(Pack("One,Two,Three").back(), PackedControl("lblThree", 920));
  EXPECT_EQ(Pack("Three", false).size(), 6U) << "in config mode the list doesn't count";
}

TEST_F(clsControlLocatorTest, AGrownControlPushesWhatLiesBelowItIfItIsTheLastOfItsRow) {
  m_oLocator.UpdateHeight("lblNobody", 9999);
  m_oLocator.UpdateHeight("txtOne", 785);
  EXPECT_EQ(Pack("One,Three").back(), PackedControl("lblThree", 640));
  m_oLocator.UpdateHeight("lblOne", 755);
  m_aoDesign.back().nCurrentHeight = 755;
  EXPECT_EQ(Pack("One,Three").back(), PackedControl("lblThree", 1140));
  EXPECT_EQ(Pack("Three").back(), PackedControl("lblThree", 360));
}

TEST_F(clsControlLocatorTest, ARowWhoseLastControlIsHiddenAloneIsCoveredByTheNext) {
  EXPECT_EQ(Pack("txtOne,Two"), (Packed{{"txtOne", 360}, {"txtTwo", 360}, {"lblTwo", 360}}));
}

TEST_F(clsControlLocatorTest, WhatTheRegionLacksIsHiddenWithAndWithoutTheList) {
  Add({"chkBorder", 1200, 255});
  Add({"txtWeight", 1480, 285});
  for (const bool bApplyList : {true, false}) {
    EXPECT_EQ(Pack("One,Two,Three,Border,Weight", bApplyList).back(),
              PackedControl(ByRegion("txtWeight", "chkBorder"), 1200));
  }
}

TEST_F(clsControlLocatorTest, ResultsStandUntilAControlIsAdded) {
  Pack("One");
  SaveVisibleList("Rows", clsTokeniser());
  m_oLocator.UpdateVisibility();
  EXPECT_EQ(Shown(m_oLocator).size(), 2U);
  m_oLocator.AddControl("optInside", 0, 10, true);  // goes with its Frame: nothing is added
  EXPECT_TRUE(m_oLocator.BuiltControls());
  Add({"lblFour", 1200, 255});
  EXPECT_FALSE(m_oLocator.BuiltControls());
  EXPECT_FALSE(m_oLocator.GetIncludedControl(0, m_sName, m_lTop));
  EXPECT_FALSE(m_oLocator.GetExcludedControl(0, m_sName));
  EXPECT_EQ(m_sName, "kept");
  EXPECT_EQ(m_lTop, 7);
}

TEST_F(clsControlLocatorTest, AnIndexBeyondTheListIsRefusedButOnePlaceAlwaysStands) {
  EXPECT_TRUE(Pack("Nothing").empty());
  EXPECT_FALSE(m_oLocator.GetIncludedControl(-1, m_sName, m_lTop));
  EXPECT_FALSE(m_oLocator.GetIncludedControl(1, m_sName, m_lTop));
  EXPECT_FALSE(m_oLocator.GetExcludedControl(6, m_sName));
  EXPECT_EQ(m_sName, "kept");
  EXPECT_TRUE(m_oLocator.GetIncludedControl(0, m_sName, m_lTop));
  EXPECT_EQ(m_sName, "");
}

TEST_F(clsControlLocatorTest, ResetStartsOverWithOneNamelessControlUnlessAddingIsComplete) {
  m_oLocator.SetAddingComplete(true);
  EXPECT_FALSE(m_oLocator.Reset());
  m_oLocator.AddControl("lblFour", 1200, 255, false);
  EXPECT_EQ(Pack("One,Two,Three").size(), 6U);

  m_oLocator.SetAddingComplete(false);
  EXPECT_FALSE(m_oLocator.Reset());
  EXPECT_FALSE(m_oLocator.BuiltControls());
  for (const bool bApplyList : {true, false}) {
    m_oLocator.BuildList(bApplyList);
    EXPECT_EQ(m_oLocator.ExcludedCount(), bApplyList ? 1 : 0);
    EXPECT_EQ(m_oLocator.IncludedCount(), bApplyList ? 0 : 1);
  }
}

}  // namespace
}  // namespace quillet
