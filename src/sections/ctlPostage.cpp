#include "sections/ctlPostage.h"

#include <array>

#include "base/FlagGuard.h"
#include "base/conversions.h"
#include "base/failure.h"
#include "base/regionControls.h"
#include "prices/money.h"
#include "sections/controlHelpers.h"
#include "sections/ctlPostageParcelInsurance.h"

namespace quillet {
namespace {

using enum ControlKind;

SectionPanel* MakeParcelInsurance(QWidget* pParent) {
  return new ctlPostageParcelInsurance(pParent);
}

constexpr ControlDesign ShowBox(const char* sName, int nTop, const char* sTag) {
  return {sName, kCheckBox, "Show", 3480, nTop, 855, 255, sTag};
}

// Within a row the control that has the caption comes first: it names the Show box.
constexpr std::array kControls = std::to_array<ControlDesign>({
    {"chkProfit", kCheckBox, "Make Profit", 0, 4280, 1815, 255},
    {"txtProfit", kMoney, "", 1920, 4280, 1335, 255},
    {"chkProofOfDelivery", kCheckBox, "Proof of Delivery", 0, 4000, 1815, 255},
    {"chkRecordedDelivery", kCheckBox, "Recorded Signed For", 0, 3720, 1935, 255},
    {"ctlParcelInsurance", kSubControl, "", 1920, 2600, 2415, 1095, "", nullptr,
     MakeParcelInsurance},
    {"optManual", kOption, "Manual", 0, 2040, 1815, 255},
    {"txtManual", kMoney, "", 1920, 2040, 975, 255},
    {"optParcelService", kOption, "Parcel Service", 0, 1760, 1815, 255},
    {"optFirstClass", kOption, "First Class", 0, 1480, 1815, 255},
    {"optSecondClass", kOption, "Second Class", 0, 1200, 1815, 255},
    {"lblWeight", kLabel, "Weight (kg)", 0, 920, 1455, 255},
    {"txtWeight", kWeight, "", 1560, 920, 1335, 255},
    {"fraSendInduvidually", kFrame, "", 0, 640, 2895, 255},
    {"chkSendInduvidually", kCheckBox, "Send Individually", 0, 0, 2895, 255, "",
     "fraSendInduvidually"},
    {"chkUsePostage", kCheckBox, "Use Royal Mail Postage", 0, 360, 2895, 255},
    ShowBox("chkShowTotal", 4560, "Total"),
    ShowBox("chkShowProfit", 4280, "Profit"),
    ShowBox("chkShowProofOfDelivery", 4000, "ProofOfDelivery"),
    ShowBox("chkShowRecordedDelivery", 3720, "Recorded"),
    ShowBox("chkShowParcelInsurance", 2320, "ParcelInsurance"),
    ShowBox("chkShowManual", 2040, "Manual"),
    ShowBox("chkShowParcelService", 1760, "ParcelService"),
    ShowBox("chkShowFirstClass", 1480, "First"),
    ShowBox("chkShowSecondClass", 1200, "Second"),
    ShowBox("chkShowWeight", 920, "Weight"),
    ShowBox("chkShowSendInduvidually", 640, "SendInduvidually"),
    ShowBox("chkShowUsePostage", 360, "Use"),
    {"imgHeader", kHeader, "Postage", 0, 0, 4335, 255, "0"},
    {"lblTotal", kLabel, "Section Total ", 0, 4560, 3255, 255},
    {"lblProofOfDelivery", kLabel, "", 1920, 4000, 1335, 255},
    {"lblRecordedDelivery", kLabel, "", 1920, 3720, 1335, 255},
    {"lblParcelInsurance", kLabel, "Parcel Insurance:", 0, 2320, 1815, 255},
    {"lblParcelInsuranceCost", kLabel, "", 1920, 2320, 975, 255},
    {"lblParcelService", kLabel, "", 1920, 1760, 975, 255},
    {"lblFirstClass", kLabel, "", 1920, 1480, 975, 255},
    {"lblSecondClass", kLabel, "", 1920, 1200, 975, 255},
});

constexpr PanelDesign kDesign = {.sTypeName = "ctlPostage",
                                 .sTitle = "Postage",
                                 .sSectionKey = "Postage",
                                 .sReferenceBox = "chkShowUsePostage",
                                 .sVisibilityList = "Postage",
                                 .bAddingComplete = true,
                                 .nWidth = 4365,
                                 .nHeight = 4935,
                                 .aoControls = kControls};

/// In the order in which the options are set and read.
constexpr std::array kClasses = std::to_array<OptionCode>({{"optSecondClass", kPostageSecondClass},
                                                           {"optFirstClass", kPostageFirstClass},
                                                           {"optParcelService", kPostageParcel},
                                                           {"optManual", kPostageManual}});

}  // namespace

ctlPostage::ctlPostage(QWidget* pParent) : SectionPanel(kDesign, pParent) {}

void ctlPostage::ApplyFeatures(clsPostage& oPostage, const clsOutlay* oOutlay) {
  if (oOutlay == nullptr) {
    throw Failure(FailureNumber::ObjectNotSet, "The quantity isn't known yet.");
  }
  const FlagGuard oApplying(m_bApplying);
  The<ctlPostageParcelInsurance>("ctlParcelInsurance").ApplyAuctionType(oPostage);
  m_oPostage = &oPostage;
  ShowChoices(oPostage);
  ShowPrices(oPostage);
  ShowWhatIsOpen(oPostage, *oOutlay);
  SetRowCaptionBySchedule(*Find("chkUsePostage"), "UsePostTitle");
  // The cost alone; the profit isn't in it.
  ShowSectionTotal(The<Label>("lblTotal"), oPostage.DoCalc(oOutlay));
}

void ctlPostage::ShowChoices(const clsPostage& oPostage) {
  SetValueOf("chkUsePostage", oPostage.m_bEnabled ? 1 : 0);
  The<ctlNumericText>("txtWeight").SetText(SingleText(oPostage.m_fWeight));
  SetChosen(kClasses, oPostage.m_ePostageClass);
  The<ctlNumericText>("txtManual").SetText(FormatMoney(oPostage.m_fManualPostage));
  SetValueOf("chkRecordedDelivery", oPostage.m_bRecordedDelivery ? 1 : 0);
  SetValueOf("chkProofOfDelivery", oPostage.m_bProofOfDelivery ? 1 : 0);
  SetValueOf("chkProfit", oPostage.m_bMakeProfit ? 1 : 0);
  The<ctlNumericText>("txtProfit").SetText(FormatMoney(oPostage.m_fProfit));
  SetValueOf("chkSendInduvidually", oPostage.m_bSendIndividually ? 1 : 0);
}

/// A class is priced whether it is chosen or not, a service only when it is.
void ctlPostage::ShowPrices(const clsPostage& oPostage) {
  const auto fnShow = [this](const char* sLabel, Single fPrice) {
    Find(sLabel)->SetCaption(QString::fromStdString(FormatMoney(fPrice)));
  };
  fnShow("lblSecondClass", oPostage.DoCalcOnWeight(kPostageSecondClass));
  fnShow("lblFirstClass", oPostage.DoCalcOnWeight(kPostageFirstClass));
  fnShow("lblParcelService", oPostage.DoCalcOnWeight(kPostageParcel));
  fnShow("lblParcelInsuranceCost", oPostage.DoCalcOnInsurance(oPostage.m_eInsuranceBand));
  fnShow("lblRecordedDelivery", oPostage.DoCalcOnRecordedDelivery());
  fnShow("lblProofOfDelivery", oPostage.DoCalcOnProofOfDelivery());
}

/// A greyed input can still be clicked, except the profit's amount and what is in a Frame:
/// UpdateModel undoes the choice.
void ctlPostage::ShowWhatIsOpen(const clsPostage& oPostage, const clsOutlay& oOutlay) {
  const auto fnShow = [this](const std::string& sService, bool bOpen) {
    SetControlActive(bOpen, *Find(sService), false);
    if (Control* const pPrice = Find("lbl" + sService.substr(3))) {
      SetControlActive(bOpen, *pPrice, false);
    }
  };
  for (const OptionCode& oClass : kClasses) {
    fnShow(oClass.sOption, oPostage.CanHaveClass(oClass.nCode));
  }
  fnShow("chkRecordedDelivery", oPostage.CanHaveRecordedDelivery());
  fnShow("chkProofOfDelivery", oPostage.CanHaveProofOfDelivery());
  SetControlActive(oPostage.m_bMakeProfit, *Find("txtProfit"), false);
  SetControlActive(oOutlay.m_lQuantity >= 2, *Find("chkSendInduvidually"), true);
}

void ctlPostage::UpdateModel() {
  if (m_bApplying || m_oPostage == nullptr) {
    return;
  }
  clsPostage& oPostage = *m_oPostage;
  oPostage.m_bEnabled = ValueOf("chkUsePostage") != 0;
  oPostage.m_fWeight = The<ctlNumericText>("txtWeight").Value();
  // A class that has no price at this weight is skipped; manual postage always has one.
  std::int32_t& eClass = oPostage.m_ePostageClass;
  eClass = ChosenOf(kClasses, eClass);
  while (!oPostage.CanHaveClass(eClass)) {
    eClass = clsPostage::GetNextClass(eClass);
  }
  oPostage.m_fManualPostage = The<ctlNumericText>("txtManual").Value();
  oPostage.m_bRecordedDelivery =
      ValueOf("chkRecordedDelivery") != 0 && oPostage.CanHaveRecordedDelivery();
  // After recorded delivery, which it needs.
  oPostage.m_bProofOfDelivery =
      ValueOf("chkProofOfDelivery") != 0 && oPostage.CanHaveProofOfDelivery();
  oPostage.m_bMakeProfit = ValueOf("chkProfit") != 0;
  oPostage.m_fProfit = The<ctlNumericText>("txtProfit").Value();
  oPostage.m_bSendIndividually = ValueOf("chkSendInduvidually") != 0;
  oPostage.m_bDirty = true;
  ApplyFeatures(oPostage, oPostage.m_oLastOutlay);
  emit Changed();
}

/// The tags of three rows aren't the names that the region knows: hide those boxes with their rows.
void ctlPostage::EnableShowChecks() {
  for (Control* const pControl : Controls()) {
    if (IsShowCheck(*pControl)) {
      pControl->SetVisible(RegionAllowsControl(pControl->Tag()));
    }
  }
  SectionPanel::EnableShowChecks();
}

}  // namespace quillet
