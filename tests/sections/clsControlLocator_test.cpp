#include "sections/clsControlLocator.h"

#include <sstream>

#include <gtest/gtest.h>

#include "base/clsRegistryAccess.h"
#include "sections/VisibleList.h"
#include "support/MemoryHive.h"

namespace quillet {
namespace {

class ControlLocator : public ::testing::Test {
 protected:
  ControlLocator() { SetRegistryHive(m_oHive); }

  /// Rows of "name top height"; a name in brackets is a control in a Frame.
  void Add(const std::string& sRows) {
    std::istringstream oRows(sRows);
    int nTop = 0;
    int nHeight = 0;
    for (std::string sName; oRows >> sName >> nTop >> nHeight;) {
      m_oLocator.AddControl(sName, nTop, nHeight, sName.front() == '[');
    }
  }

  /// The visible controls as "name@top", then "|" and the hidden ones.
  std::string Packed(const std::string& sWanted) {
    clsTokeniser oList;
    oList.Tokenise(sWanted, ",");
    SaveVisibleList("Test", oList);
    m_oLocator.UpdateVisibility();
    m_oLocator.BuildList(true);
    std::string sPacked;
    std::string sName;
    int nTop = 0;
    for (int i = 0; i < m_oLocator.IncludedCount(); ++i) {
      m_oLocator.GetIncludedControl(i, sName, nTop);
      sPacked += sName + "@" + std::to_string(nTop) + " ";
    }
    sPacked += "|";
    for (int i = 0; i < m_oLocator.ExcludedCount(); ++i) {
      m_oLocator.GetExcludedControl(i, sName);
      sPacked += " " + sName;
    }
    return sPacked;
  }

  MemoryHive m_oHive;
  clsControlLocator m_oLocator;
};

TEST_F(ControlLocator, WhatIsLeftMovesUpByTheGapsOfTheDesign) {
  m_oLocator.SetSection("Test");
  Add("chkPlus 920 255 txtPrice 640 285 lblPrice 640 255 chkBold 360 255 [chkBold] 0 255");
  for (const auto& [sWanted, sPacked] :
       {std::pair("Bold,Price,Plus", "chkBold@360 txtPrice@640 lblPrice@640 chkPlus@920 |"),
        {"Price,Plus", "txtPrice@360 lblPrice@360 chkPlus@640 | chkBold"},
        {"Bold,Plus", "chkBold@360 chkPlus@640 | txtPrice lblPrice"},
        {"Plus", "chkPlus@360 | chkBold txtPrice lblPrice"},
        {"Bold,txtPrice,Plus", "chkBold@360 txtPrice@640 chkPlus@640 | lblPrice"},
        {"", "| chkBold txtPrice lblPrice chkPlus"}}) {
    EXPECT_EQ(Packed(sWanted), sPacked) << sWanted;
  }
}

TEST_F(ControlLocator, WhatHasGrownPushesTheRowsBelowItDown) {
  m_oLocator.SetSection("Test");
  Add("optA 360 255 ctlB 640 500 optC 1165 255");
  m_oLocator.UpdateHeight("ctlB", 700);
  EXPECT_EQ(Packed("A,B,C"), "optA@360 ctlB@640 optC@1365 |");
  m_oLocator.UpdateHeight("ctlB", 0);
  EXPECT_EQ(Packed("A,B,C"), "optA@360 ctlB@640 optC@665 |");
  EXPECT_EQ(Packed("A,C"), "optA@360 optC@640 | ctlB");
}

}  // namespace
}  // namespace quillet
