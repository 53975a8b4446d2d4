#include "sections/VisibleList.h"

#include <gtest/gtest.h>

#include "base/clsRegistryAccess.h"
#include "base/regionControls.h"
#include "documents/lastFolder.h"
#include "platform/Files.h"
#include "support/ByRegion.h"
#include "support/MemoryHive.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

class VisibleListTest : public ::testing::Test {
 protected:
  void SetUp() override { SetRegistryHive(m_oHive); }
  MemoryHive m_oHive;
};

TEST_F(VisibleListTest, AListThatWasNeverStoredDiffersFromOneStoredWithoutAWord) {
  EXPECT_TRUE(LoadVisibleList("Outlay").IsEmpty());
  EXPECT_TRUE(SaveVisibleList("Outlay", clsTokeniser()));
  EXPECT_FALSE(LoadVisibleList("Outlay").IsEmpty());
  EXPECT_EQ(LoadVisibleList("Outlay").Count(), 0);
  EXPECT_TRUE(LoadVisibleList("PayPal").IsEmpty());
}

TEST_F(VisibleListTest, WordsComeBackAsTheyWereStored) {
  clsTokeniser oList;
  oList.AddToArray("Outlay");
  oList.AddToArray("Quantity");
  SaveVisibleList("Outlay", oList);
  const clsTokeniser oBack = LoadVisibleList("Outlay");
  ASSERT_EQ(oBack.Count(), 2);
  EXPECT_EQ(oBack.Element(0), "Outlay");
  EXPECT_EQ(oBack.Element(1), "Quantity");
  m_oHive.bWritable = false;
  EXPECT_FALSE(SaveVisibleList("Outlay", oList));
}

TEST_F(VisibleListTest, ATextTooLongForAListCountsAsNoneStored) {
  Registry().SetRegSettingString(HiveRoot::User, std::string(40000, 'x'), "Visible",
                                 "Controls\\Outlay");
  EXPECT_TRUE(LoadVisibleList("Outlay").IsEmpty());
}

TEST_F(VisibleListTest, ANameIsListedIfAWordOccursInItInTheSameCase) {
  clsTokeniser oList;
  EXPECT_FALSE(NameInVisibleList("txtOutlay", oList));
  oList.AddToArray("Start");
  oList.AddToArray("Outlay");
  EXPECT_TRUE(NameInVisibleList("chkOutlayInclTax", oList));
  EXPECT_TRUE(NameInVisibleList("txtStartingPrice", oList));
  EXPECT_FALSE(NameInVisibleList("txtoutlay", oList));
  EXPECT_FALSE(NameInVisibleList("txtReservePrice", oList));
}

TEST(RegionControls, TheFirstFittingLineDecides) {
  struct Row {
    const char* sName;
    bool bUnitedKingdom;
    bool bUnitedStates;
  };
  for (const Row& oRow : {Row{"chkBorder", false, true},
                          {"chkShowCarAd", false, true},
                          {"BusinessAuction", false, true},
                          {"Weight", true, false},
                          {"chkOutlayInclTax", true, false},
                          {"txtOutlay", true, true},
                          {"chkborder", true, true},
                          {"optParts", false, true},
                          {"optPartsAndMore", true, true},
                          {"ctlRealEstateOption", false, true},
                          {"ctlRealEstateOptionsLand1", true, true},
                          {"Shop60DaysWeight", false, true},
                          {"", true, true}}) {
    EXPECT_EQ(RegionAllowsControl(oRow.sName), ByRegion(oRow.bUnitedKingdom, oRow.bUnitedStates))
        << oRow.sName;
  }
}

TEST_F(VisibleListTest, TheLastFolderIsRememberedAndStored) {
  SetLastFolder("");  // as at the start
  m_oHive.Clear();
  ScopedHost oHost;
  oHost.sDocumentsFolder = "/home/ann/Documents ";
  EXPECT_EQ(LastFolder(), NativePath("/home/ann/Documents\\My Auctions"));
  SetLastFolder("/elsewhere");
  EXPECT_EQ(LastFolder(), "/elsewhere");
  EXPECT_EQ(Registry().Get(settings::kLastFolder), "/elsewhere");
}

}  // namespace
}  // namespace quillet
