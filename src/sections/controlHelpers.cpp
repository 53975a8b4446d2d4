#include "sections/controlHelpers.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/clsRegistryAccess.h"
#include "base/conversions.h"
#include "base/regionControls.h"
#include "base/text.h"
#include "look/palette.h"
#include "prices/money.h"
#include "sections/VisibleList.h"

namespace quillet {
namespace {

bool IsType(const Control& oControl, std::string_view sType) {
  return oControl.TypeName() == sType;
}

/// What isn't a number in the settings counts as the default.
std::uint32_t StoredColour(const Setting& oSetting) {
  const std::optional<std::int32_t> nStored = ToLong(Registry().Get(oSetting));
  return static_cast<std::uint32_t>(nStored ? *nStored : ToLong(oSetting.sDefault).value_or(0));
}

}  // namespace

std::uint32_t SubtotalColour() {
  return StoredColour(settings::kSubtotalColour);
}

std::uint32_t TotalColour() {
  return StoredColour(settings::kTotalColour);
}

/// The ground needs no setting: these controls have none of their own and show the panel's.
void ApplyThemeColours(Control& oControl) {
  constexpr std::array<std::string_view, 4> kThemed = {"Label", "CheckBox", "OptionButton",
                                                       "Frame"};
  if (std::find(kThemed.begin(), kThemed.end(), oControl.TypeName()) != kThemed.end()) {
    oControl.SetForeColor(oControl.Name() == "lblTotal" ? SubtotalColour() : kColourWindow);
  }
}

void SetControlActive(bool bActive, Control& oControl, bool bAlsoContainer) {
  const bool bNumeric = IsType(oControl, "ctlNumericText");
  const std::uint32_t nActiveColour = bNumeric ? kColourWindowText : kColourWindow;
  oControl.SetForeColor(bActive ? nActiveColour : kColourGreyText);
  if (bNumeric) {
    oControl.SetEnabled(bActive);  // the tab order passes over a disabled box
  }
  if (auto* const pBox = dynamic_cast<CheckBox*>(&oControl); pBox != nullptr && !bActive) {
    pBox->SetValue(0);
  }
  if (Control* const pContainer = oControl.Container();
      bAlsoContainer && pContainer != nullptr && IsType(*pContainer, "Frame")) {
    pContainer->SetEnabled(bActive);
  }
}

bool IsShowCheck(const Control& oControl) {
  return oControl.Name().find("chkShow") != std::string::npos && IsType(oControl, "CheckBox");
}

bool IsHeaderImage(const Control& oControl) {
  return oControl.Name() == "imgHeader";
}

bool IsSubControl(const Control& oControl) {
  return EqualIgnoringCase(std::string_view(oControl.TypeName()).substr(0, 3), "ctl");
}

bool ControlInVisibleList(const Control& oControl, const clsTokeniser& oList) {
  return NameInVisibleList(oControl.Name(), oList);
}

void ApplyShowCheck(CheckBox& oBox, const clsTokeniser& oList) {
  oBox.SetValue(oList.Exists(oBox.Tag(), false) ? 1 : 0);
}

void ApplyControlVisibility(Control& oControl, const clsTokeniser& oList, bool bShowConfig) {
  const bool bWanted = bShowConfig || ControlInVisibleList(oControl, oList);
  oControl.SetVisible(bWanted && RegionAllowsControl(oControl.Name()));
}

void ShowSectionTotal(Label& oLabel, Single fTotal) {
  oLabel.SetCaption("Section Total " + QString::fromStdString(FormatMoney(fTotal)));
}

}  // namespace quillet
