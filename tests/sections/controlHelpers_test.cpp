#include "sections/controlHelpers.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include "base/clsRegistryAccess.h"
#include "sections/ctlNumericText.h"
#include "support/ByRegion.h"

namespace quillet {
namespace {

class controlHelpersTest : public ::testing::Test {
 protected:
  template <typename Kind>
  Kind& Make(const char* sName) {
    auto* const pControl = new Kind(&m_oFrame);
    pControl->SetName(sName);
    return *pControl;
  }

  static std::uint32_t SubtotalColourStored(const char* sText) {
    Registry().Set(settings::kSubtotalColour, sText);
    return SubtotalColour();
  }

  QWidget m_oWindow;
  Frame m_oFrame{&m_oWindow};
};

TEST_F(controlHelpersTest, ColoursComeFromTheSettingsIfTheyAreNumbers) {
  EXPECT_EQ(TotalColour(), 0xC0FFC0U);
  EXPECT_EQ(SubtotalColour(), 33023U);
  EXPECT_EQ(SubtotalColourStored("255"), 255U);
  EXPECT_EQ(SubtotalColourStored("-2147483643"), kColourWindow) << "of the theme, as it is signed";
  EXPECT_EQ(SubtotalColourStored("orange"), 33023U);
}

TEST_F(controlHelpersTest, OnlyTheFourKindsTakeTheThemesColours) {
  const auto fnThemed = [](Control& oControl) {
    oControl.SetForeColor(kColourGreyText);
    ApplyThemeColours(oControl);
    return oControl.ForeColor();
  };
  EXPECT_EQ(fnThemed(Make<Label>("lblTotal")), SubtotalColour());
  EXPECT_EQ(fnThemed(Make<Label>("lblTotalCost")), kColourWindow);
  EXPECT_EQ(fnThemed(Make<OptionButton>("optA")), kColourWindow);
  EXPECT_EQ(fnThemed(Make<ctlNumericText>("lblTotal")), kColourGreyText);
}

TEST_F(controlHelpersTest, GreyingUnticksBoxesDisablesNumbersAndLeavesOptionsAsTheyAre) {
  auto& oCheck = Make<CheckBox>("chkA");
  auto& oOption = Make<OptionButton>("optA");
  auto& oNumber = Make<ctlNumericText>("txtA");
  oCheck.SetValue(1);
  oOption.SetValue(1);
  QSignalSpy oClicked(&oCheck, &QAbstractButton::toggled);
  for (const bool bActive : {false, true}) {
    SetControlActive(bActive, oCheck, false);
    SetControlActive(bActive, oOption, false);
    SetControlActive(bActive, oNumber, false);
    EXPECT_EQ(oOption.ForeColor(), bActive ? kColourWindow : kColourGreyText);
    EXPECT_EQ(oNumber.ForeColor(), bActive ? kColourWindowText : kColourGreyText);
    EXPECT_EQ(oNumber.Enabled(), bActive);
    EXPECT_TRUE(oCheck.Enabled() && oOption.Enabled() && m_oFrame.Enabled());
    EXPECT_EQ(oCheck.Value(), 0);
    EXPECT_EQ(oOption.Value(), 1);
  }
  EXPECT_EQ(oClicked.count(), 1) << "unticking is a click";
  SetControlActive(false, oOption, true);
  EXPECT_FALSE(m_oFrame.Enabled());
  SetControlActive(true, oOption, true);
  EXPECT_TRUE(m_oFrame.Enabled());
}

TEST_F(controlHelpersTest, RowsAreSeenByRegionListAndModeAndBoxesTickedByTheirWholeTag) {
  clsTokeniser oList;
  oList.AddToArray("BorderLine");
  oList.AddToArray("Border");
  auto& oBorder = Make<CheckBox>("chkBorder");
  auto& oBold = Make<CheckBox>("chkBold");
  for (const bool bShowConfig : {false, true}) {
    ApplyControlVisibility(oBorder, oList, bShowConfig);
    ApplyControlVisibility(oBold, oList, bShowConfig);
    EXPECT_EQ(oBorder.Visible(), ByRegion(false, true));
    EXPECT_EQ(oBold.Visible(), bShowConfig);
  }
  for (const auto& [sTag, nTicked] : {std::pair("Border", 1), std::pair("Line", 0)}) {
    oBold.SetTag(sTag);
    ApplyShowCheck(oBold, oList);
    EXPECT_EQ(oBold.Value(), nTicked) << sTag;
  }
}

}  // namespace
}  // namespace quillet
