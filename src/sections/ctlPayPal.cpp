#include "sections/ctlPayPal.h"

#include <array>

#include "base/FlagGuard.h"
#include "base/failure.h"
#include "prices/clsPrices.h"
#include "sections/controlHelpers.h"
#include "sections/ctlPaypalBusinessTypes.h"

namespace quillet {
namespace {

using enum ControlKind;

SectionPanel* MakeBusinessTypes(QWidget* pParent) {
  return new ctlPaypalBusinessTypes(pParent);
}

constexpr const char* kBusinessTypes = "ctlPaypalBusinessType";

constexpr std::array kControls = std::to_array<ControlDesign>({
    {kBusinessTypes, kSubControl, "", 240, 1760, 2775, 1400, "", nullptr, MakeBusinessTypes},
    {"optBusinessAccount", kOption, "Business Account", 0, 1480, 1815, 255},
    {"optPremierAccount", kOption, "Premier Account", 0, 1200, 1815, 255},
    {"optPersonalAccount", kOption, "Personal Account", 0, 920, 1815, 255},
    {"fraPayInduvidually", kFrame, "", 0, 640, 1815, 255},
    {"chkPayInduvidually", kCheckBox, "Pay Individually", 0, 0, 1815, 255, "",
     "fraPayInduvidually"},
    {"chkUsePayPal", kCheckBox, "Use PayPal", 0, 360, 1815, 255},
    {"chkShowTotal", kCheckBox, "Show", 2160, 3160, 975, 255, "Total"},
    {"chkShowBusinessAccount", kCheckBox, "Show", 2160, 1480, 975, 255, "BusinessAccount"},
    {"chkShowPremierAccount", kCheckBox, "Show", 2160, 1200, 975, 255, "Premier"},
    {"chkShowPersonalAccount", kCheckBox, "Show", 2160, 920, 975, 255, "Personal"},
    {"chkShowPayInduvidually", kCheckBox, "Show", 2160, 640, 975, 255, "PayInduvidually"},
    {"chkShowUsePayPal", kCheckBox, "Show", 2160, 360, 975, 255, "PayPal"},
    {"imgHeader", kHeader, "PayPal", 0, 0, 4335, 255, "0"},
    {"lblTotal", kLabel, "Section Total ", 0, 3160, 1815, 255},
});

constexpr PanelDesign kDesign = {.sTypeName = "ctlPayPal",
                                 .sTitle = "PayPal",
                                 .sSectionKey = "PayPal",
                                 .sReferenceBox = "chkShowUsePayPal",
                                 .sVisibilityList = "PayPal",
                                 .nWidth = 3255,
                                 .nHeight = 3510,
                                 .aoControls = kControls};

constexpr const char* kNotOnEbay =
    "A sale on eBay pays no PayPal fee: eBay takes the payment itself, within its own fees. "
    "PayPal is for a sale elsewhere.";

constexpr std::array kAccounts =
    std::to_array<OptionCode>({{"optPersonalAccount", kAccountPersonal},
                               {"optPremierAccount", kAccountPremier},
                               {"optBusinessAccount", kAccountBusiness}});

}  // namespace

ctlPayPal::ctlPayPal(QWidget* pParent) : SectionPanel(kDesign, pParent) {}

/// The bands have no Show box, so their panel's own name is in the list for them. It is missing
/// from a list that the user's ticks have just made, until the section is shown again.
bool ctlPayPal::AddOwnNames(clsTokeniser& oList) const {
  if (oList.Exists(kBusinessTypes, false)) {
    return false;
  }
  oList.AddToArray(kBusinessTypes);
  return true;
}

void ctlPayPal::ApplyFeatures(clsPayPal& oPayPal, const clsOutlay* oOutlay) {
  if (oOutlay == nullptr) {
    throw Failure(FailureNumber::ObjectNotSet, "The quantity isn't known yet.");
  }
  const FlagGuard oApplying(m_bApplying);
  m_oPayPal = &oPayPal;
  oPayPal.m_oLastOutlay = oOutlay;
  The<ctlPaypalBusinessTypes>(kBusinessTypes).ApplyFeatures(oPayPal);
  SetValueOf("chkUsePayPal", oPayPal.m_bEnabled ? 1 : 0);
  SetValueOf("chkPayInduvidually", oPayPal.m_bPayIndividually ? 1 : 0);
  SetChosen(kAccounts, oPayPal.m_eAccountType);
  SetControlActive(oOutlay->m_lQuantity >= 2, *Find("chkPayInduvidually"), true);
  ShowSectionTotal(The<Label>("lblTotal"), oPayPal.DoCalcAuto());
}

std::string ctlPayPal::TipOf(const Control& oInput, const clsCalculate& /*oAuction*/) const {
  return oInput.Name() == "chkUsePayPal" && AreFeesOfToday() ? kNotOnEbay : "";
}

void ctlPayPal::UpdateModel() {
  if (m_bApplying || m_oPayPal == nullptr) {
    return;
  }
  m_oPayPal->m_bEnabled = ValueOf("chkUsePayPal") != 0;
  m_oPayPal->m_bPayIndividually = ValueOf("chkPayInduvidually") != 0;
  m_oPayPal->m_eAccountType = ChosenOf(kAccounts, m_oPayPal->m_eAccountType);
  m_oPayPal->m_bDirty = true;
  ApplyFeatures(*m_oPayPal, m_oPayPal->m_oLastOutlay);
  emit Changed();
}

}  // namespace quillet
