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

  static void Store(const char* sName, const char* sValue) {
    Registry().SetRegSettingString(HiveRoot::User, sValue, sName, "Config");
  }

  QWidget m_oWindow;
  Frame m_oFrame{&m_oWindow};
};

TEST_F(controlHelpersTest, ColoursComeFromTheSettingsIfTheyAreNumbers) {
  EXPECT_EQ(SubtotalColour(), 33023U);
  EXPECT_EQ(TotalColour(), 0xC0FFC0U);
  Store("SubtotalColour", "255");
  Store("TotalColour", "-2147483643");  // a colour of the theme, as a signed number
  EXPECT_EQ(SubtotalColour(), 255U);
  EXPECT_EQ(TotalColour(), kColourWindow);
  Store("SubtotalColour", "orange");
  EXPECT_EQ(SubtotalColour(), 33023U);
}

TEST_F(controlHelpersTest, OnlyTheFourKindsTakeTheThemesColours) {
  auto& oTotal = Make<Label>("lblTotal");
  auto& oOther = Make<Label>("lblTotalCost");
  auto& oBox = Make<ctlNumericText>("lblTotal");
  for (Control* const pControl : std::initializer_list<Control*>{&oTotal, &oOther, &oBox}) {
    pControl->SetForeColor(kColourGreyText);
    ApplyThemeColours(*pControl);
  }
  EXPECT_EQ(oTotal.ForeColor(), SubtotalColour());
  EXPECT_EQ(oOther.ForeColor(), kColourWindow);
  EXPECT_EQ(oBox.ForeColor(), kColourGreyText);
}

TEST_F(controlHelpersTest, GreyingUnticksBoxesDisablesNumbersAndLeavesOptionsAsTheyAre) {
  auto& oCheck = Make<CheckBox>("chkA");
  auto& oOption = Make<OptionButton>("optA");
  auto& oNumber = Make<ctlNumericText>("txtA");
  oCheck.SetValue(1);
  oOption.SetValue(1);
  QSignalSpy oClicked(&oCheck, &QAbstractButton::toggled);
  for (Control* const pControl : std::initializer_list<Control*>{&oCheck, &oOption, &oNumber}) {
    SetControlActive(false, *pControl, false);
    EXPECT_EQ(pControl->ForeColor(), kColourGreyText);
  }
  EXPECT_EQ(oCheck.Value(), 0);
  EXPECT_EQ(oClicked.count(), 1) << "unticking is a click";
  EXPECT_EQ(oOption.Value(), 1);
  EXPECT_TRUE(oCheck.Enabled());
  EXPECT_TRUE(oOption.Enabled());
  EXPECT_FALSE(oNumber.Enabled());
  EXPECT_TRUE(m_oFrame.Enabled());

  SetControlActive(true, oCheck, false);
  SetControlActive(true, oNumber, false);
  EXPECT_EQ(oCheck.ForeColor(), kColourWindow);
  EXPECT_EQ(oCheck.Value(), 0);
  EXPECT_EQ(oNumber.ForeColor(), kColourWindowText);
  EXPECT_TRUE(oNumber.Enabled());
}

TEST_F(controlHelpersTest, TheFrameAroundAControlFollowsOnlyIfAsked) {
  auto& oOption = Make<OptionButton>("optA");
  SetControlActive(false, oOption, true);
  EXPECT_FALSE(m_oFrame.Enabled());
  SetControlActive(true, oOption, true);
  EXPECT_TRUE(m_oFrame.Enabled());
  SetControlActive(false, m_oFrame, true);  // stands in no control
  EXPECT_TRUE(m_oFrame.Enabled());
}

TEST_F(controlHelpersTest, ControlsAreToldApartByNameAndType) {
  EXPECT_TRUE(IsShowCheck(Make<CheckBox>("chkShowOutlay")));
  EXPECT_FALSE(IsShowCheck(Make<CheckBox>("chkOutlay")));
  EXPECT_FALSE(IsShowCheck(Make<Label>("chkShowOutlay")));
  EXPECT_TRUE(IsHeaderImage(Make<Image>("imgHeader")));
  EXPECT_FALSE(IsHeaderImage(Make<Image>("imgHeader2")));
  EXPECT_TRUE(IsSubControl(Make<ctlNumericText>("txtA")));
  EXPECT_FALSE(IsSubControl(Make<Label>("ctlA")));
}

TEST_F(controlHelpersTest, ShowBoxesAreTickedByTheirWholeTag) {
  clsTokeniser oList;
  oList.AddToArray("OutlayOnly");
  oList.AddToArray("Start");
  auto& oBox = Make<CheckBox>("chkShowOutlay");
  oBox.SetTag("Start");
  ApplyShowCheck(oBox, oList);
  EXPECT_EQ(oBox.Value(), 1);
  oBox.SetTag("Outlay");
  ApplyShowCheck(oBox, oList);
  EXPECT_EQ(oBox.Value(), 0);
}

TEST_F(controlHelpersTest, AControlIsSeenIfTheRegionHasItAndTheListOrConfigModeWantsIt) {
  clsTokeniser oList;
  oList.AddToArray("Border");
  auto& oBorder = Make<CheckBox>("chkBorder");
  auto& oBold = Make<CheckBox>("chkBold");
  for (const bool bShowConfig : {false, true}) {
    ApplyControlVisibility(oBorder, oList, bShowConfig);
    EXPECT_EQ(oBorder.Visible(), ByRegion(false, true));
    ApplyControlVisibility(oBold, oList, bShowConfig);
    EXPECT_EQ(oBold.Visible(), bShowConfig);
  }
}

TEST_F(controlHelpersTest, ASectionsTotalIsMoney) {
  auto& oTotal = Make<Label>("lblTotal");
  ShowSectionTotal(oTotal, 4.875);
  EXPECT_EQ(oTotal.Caption(), ByRegion("Section Total £4.88", "Section Total $4.88"));
}

}  // namespace
}  // namespace quillet
