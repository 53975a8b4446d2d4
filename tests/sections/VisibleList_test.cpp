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
  VisibleListTest() { SetRegistryHive(m_oHive); }
  MemoryHive m_oHive;
};

TEST_F(VisibleListTest, AListThatWasNeverStoredDiffersFromOneStoredWithoutAWord) {
  EXPECT_TRUE(LoadVisibleList("Outlay").IsEmpty());
  EXPECT_TRUE(SaveVisibleList("Outlay", clsTokeniser()));
  EXPECT_FALSE(LoadVisibleList("Outlay").IsEmpty());
  EXPECT_EQ(LoadVisibleList("Outlay").Count(), 0);
  Registry().SetRegSettingString(HiveRoot::User, std::string(40000, 'x'), "Visible",
                                 "Controls\\PayPal");
  EXPECT_TRUE(LoadVisibleList("PayPal").IsEmpty()) << "too long for a list";
}

TEST_F(VisibleListTest, WordsComeBackAndNamesThatHoldOneAreListed) {
  clsTokeniser oList;
  EXPECT_FALSE(NameInVisibleList("txtOutlay", oList));
  oList.AddToArray("Start");
  oList.AddToArray("Outlay");
  SaveVisibleList("Outlay", oList);
  const clsTokeniser oBack = LoadVisibleList("Outlay");
  EXPECT_EQ(oBack.Count(), 2);
  for (const char* const sName : {"chkOutlayInclTax", "txtStartingPrice", "Start"}) {
    EXPECT_TRUE(NameInVisibleList(sName, oBack)) << sName;
  }
  for (const char* const sName : {"txtoutlay", "txtReservePrice", ""}) {
    EXPECT_FALSE(NameInVisibleList(sName, oBack)) << sName;
  }
  m_oHive.bWritable = false;
  EXPECT_FALSE(SaveVisibleList("Outlay", oList));
}

TEST(RegionControls, TheFirstFittingLineDecides) {
  for (const char* const sName : {"chkBorder", "chkShowCarAd", "BusinessAuction", "optParts",
                                  "ctlRealEstateOption", "Shop60DaysWeight"}) {
    EXPECT_EQ(RegionAllowsControl(sName), ByRegion(false, true)) << sName;
  }
  for (const char* const sName : {"Weight", "chkOutlayInclTax", "optParcelServiceStandard"}) {
    EXPECT_EQ(RegionAllowsControl(sName), ByRegion(true, false)) << sName;
  }
  for (const char* const sName :
       {"txtOutlay", "chkborder", "optPartsAndMore", "ctlRealEstateOptionsLand1", ""}) {
    EXPECT_TRUE(RegionAllowsControl(sName)) << sName;
  }
}

TEST_F(VisibleListTest, TheLastFolderIsRememberedAndStored) {
  SetLastFolder("");  // as at the start
  m_oHive.Clear();
  ScopedHost oHost;
  oHost.sDocumentsFolder = "/home/ann/Documents ";
  EXPECT_EQ(LastFolder(), "/home/ann/Documents" + NativePath("\\My Auctions"));
  SetLastFolder("/elsewhere");
  EXPECT_EQ(LastFolder(), "/elsewhere");
  EXPECT_EQ(Registry().Get(settings::kLastFolder), "/elsewhere");
}

}  // namespace
}  // namespace quillet
