#include "sections/VisibleList.h"

#include <gtest/gtest.h>

#include "base/clsRegistryAccess.h"
#include "support/MemoryHive.h"

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
}

}  // namespace
}  // namespace quillet
