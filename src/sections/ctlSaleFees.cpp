#include "sections/ctlSaleFees.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "base/FlagGuard.h"
#include "base/conversions.h"
#include "controls/ComboBox.h"
#include "prices/clsPrices.h"
#include "sections/controlHelpers.h"

namespace quillet {
namespace {

using enum ControlKind;

constexpr std::size_t kExtras = SaleRates::kMostExtras;

struct ExtraNames {
  std::string sBox;
  std::string sShowBox;
  std::string sTag;
};

/// Two digits each, so that no name is part of another.
std::string Numbered(const char* sWord, std::size_t nNumber) {
  return sWord + std::string(nNumber < 10 ? "0" : "") + std::to_string(nNumber);
}

std::vector<ExtraNames> MakeExtraNames() {
  std::vector<ExtraNames> aoNames;
  for (std::size_t i = 1; i <= kExtras; ++i) {
    aoNames.push_back({Numbered("chkExtra", i), Numbered("chkShowExtra", i), Numbered("Extra", i)});
  }
  return aoNames;
}

const std::vector<ExtraNames>& AllExtras() {
  static const std::vector<ExtraNames> aoNames = MakeExtraNames();
  return aoNames;
}

constexpr int kFirstTop = 360;
constexpr int kPitch = 280;
constexpr int kRowHeight = 255;

constexpr int TopOf(std::size_t nRow) {
  return kFirstTop + static_cast<int>(nRow) * kPitch;
}

constexpr std::size_t kFirstExtra = 3;
constexpr std::size_t kFreeListing = kFirstExtra + kExtras;
constexpr std::size_t kTaxIsCost = kFreeListing + 1;
constexpr std::size_t kTotal = kTaxIsCost + 1;

constexpr ControlDesign ShowBox(const char* sName, std::size_t nRow, const char* sTag) {
  return {sName, kCheckBox, "Show", 3480, TopOf(nRow), 855, kRowHeight, sTag};
}

constexpr ControlDesign Row(const char* sName, ControlKind eKind, const char* sCaption,
                            std::size_t nRow, int nWidth) {
  return {sName, eKind, sCaption, 0, TopOf(nRow), nWidth, kRowHeight};
}

constexpr std::array kOtherControls = std::to_array<ControlDesign>({
    Row("lblCategory", kLabel, "Category", 0, 855),
    {"lstCategory", kList, "", 900, TopOf(0), 2355, kRowHeight},
    Row("lblBuyerTax", kLabel, "Buyer's Tax (%)", 1, 1815),
    {"txtBuyerTax", kPercent, "", 1920, TopOf(1), 1335, kRowHeight},
    Row("lblAdvertising", kLabel, "Advertising (%)", 2, 1815),
    {"txtAdvertising", kPercent, "", 1920, TopOf(2), 1335, kRowHeight},
    Row("chkFreeListing", kCheckBox, "Free Listing", kFreeListing, 3255),
    Row("chkTaxIsCost", kCheckBox, "Tax Is a Cost", kTaxIsCost, 3255),
    Row("lblTotal", kLabel, "Section Total ", kTotal, 3255),
    ShowBox("chkShowCategory", 0, "Category"),
    ShowBox("chkShowBuyerTax", 1, "BuyerTax"),
    ShowBox("chkShowAdvertising", 2, "Advertising"),
    ShowBox("chkShowFreeListing", kFreeListing, "FreeListing"),
    ShowBox("chkShowTaxIsCost", kTaxIsCost, "TaxIsCost"),
    ShowBox("chkShowTotal", kTotal, "Total"),
    {"imgHeader", kHeader, "Sale Fees", 0, 0, 4335, 255, "0"},
});

std::vector<ControlDesign> MakeControls() {
  std::vector<ControlDesign> aoControls(kOtherControls.begin(), kOtherControls.end());
  std::size_t nRow = kFirstExtra;
  for (const ExtraNames& oNames : AllExtras()) {
    aoControls.push_back(Row(oNames.sBox.c_str(), kCheckBox, "", nRow, 3255));
    aoControls.push_back(ShowBox(oNames.sShowBox.c_str(), nRow, oNames.sTag.c_str()));
    ++nRow;
  }
  return aoControls;
}

const PanelDesign& Design() {
  static const std::vector<ControlDesign> aoControls = MakeControls();
  static const PanelDesign oDesign = {.sTypeName = "ctlSaleFees",
                                      .sTitle = "Sale Fees",
                                      .sSectionKey = "SaleFees",
                                      .sReferenceBox = "chkShowCategory",
                                      .sVisibilityList = nullptr,
                                      .bAddingComplete = true,
                                      .bRowsByLabel = false,
                                      .nWidth = 4365,
                                      .nHeight = 2695,
                                      .aoControls = aoControls};
  return oDesign;
}

QString CaptionOf(const std::string& sName) {
  return QString::fromStdString(sName).replace("&", "&&");
}

QStringList CategoriesOf(const SaleRates& oRates) {
  QStringList asNames;
  for (const SaleCategory& oCategory : oRates.aoCategories) {
    asNames += QString::fromStdString(oCategory.sName);
  }
  return asNames;
}

QStringList ChoicesOf(const ComboBox& oList) {
  QStringList asChoices;
  for (int i = 0; i < oList.count(); ++i) {
    asChoices += oList.itemText(i);
  }
  return asChoices;
}

}  // namespace

ctlSaleFees::ctlSaleFees(QWidget* pParent) : SectionPanel(Design(), pParent) {
  The<ComboBox>("lstCategory").setPlaceholderText("Not in these fees");
}

/// An input that affects no fee of the schedule has no row.
bool ctlSaleFees::IsInUse(const Control& oControl) const {
  const SaleRates* const pRates = Prices().Sale();
  const auto fnIsOf = [&](std::string_view sTag) {
    return oControl.Name().find(sTag) != std::string::npos;
  };
  if (pRates == nullptr || fnIsOf("BuyerTax")) {
    return pRates != nullptr && pRates->bWithTax;
  }
  if (fnIsOf("TaxIsCost")) {
    return pRates->nFeeTax != 0;
  }
  return std::none_of(AllExtras().begin() + static_cast<std::ptrdiff_t>(pRates->aoExtras.size()),
                      AllExtras().end(),
                      [&](const ExtraNames& oNames) { return fnIsOf(oNames.sTag); });
}

/// The Show box of a row that is in use again comes back with it.
void ctlSaleFees::EnableShowChecks() {
  for (Control* const pControl : Controls()) {
    if (IsShowCheck(*pControl)) {
      pControl->SetVisible(IsInUse(*pControl));
    }
  }
  SectionPanel::EnableShowChecks();
}

void ctlSaleFees::ApplyFees(clsSaleFees& oSaleFees) {
  const FlagGuard oApplying(m_bApplying);
  m_oSaleFees = &oSaleFees;
  if (const SaleRates* const pRates = Prices().Sale()) {
    ShowNames(*pRates);
  }
  ShowInputs(oSaleFees.m_oInputs);
  ShowSectionTotal(The<Label>("lblTotal"), oSaleFees.LastFee());
}

void ctlSaleFees::ShowNames(const SaleRates& oRates) {
  auto& oList = The<ComboBox>("lstCategory");
  if (const QStringList asNames = CategoriesOf(oRates); ChoicesOf(oList) != asNames) {
    oList.clear();
    oList.addItems(asNames);
  }
  for (std::size_t i = 0; i < oRates.aoExtras.size(); ++i) {
    SetRowCaption(*Find(AllExtras()[i].sBox), CaptionOf(oRates.aoExtras[i].sName));
  }
  if (!oRates.sFeeTaxName.empty()) {
    SetRowCaption(*Find("chkTaxIsCost"), CaptionOf(oRates.sFeeTaxName) + " Is a Cost");
  }
}

void ctlSaleFees::ShowInputs(const SaleInputs& oInputs) {
  ShowCategory(oInputs.nCategory);
  The<ctlNumericText>("txtBuyerTax").SetText(SingleText(oInputs.fBuyerTax));
  The<ctlNumericText>("txtAdvertising").SetText(SingleText(oInputs.fAdvertising));
  for (std::size_t i = 0; i < kExtras; ++i) {
    SetValueOf(AllExtras()[i].sBox, oInputs.lExtras >> i & 1);
  }
  SetValueOf("chkFreeListing", oInputs.bFreeListing ? 1 : 0);
  SetValueOf("chkTaxIsCost", oInputs.bTaxIsCost ? 1 : 0);
}

/// For a category that the schedule lacks, nothing is chosen.
void ctlSaleFees::ShowCategory(std::int32_t nCategory) {
  auto& oList = The<ComboBox>("lstCategory");
  oList.setCurrentIndex(nCategory >= 1 && nCategory <= oList.count() ? nCategory - 1 : -1);
  oList.setToolTip(oList.currentText());
}

void ctlSaleFees::UpdateModel() {
  if (m_bApplying || m_oSaleFees == nullptr) {
    return;
  }
  SaleInputs& oInputs = m_oSaleFees->m_oInputs;
  if (const int nChosen = The<ComboBox>("lstCategory").currentIndex(); nChosen >= 0) {
    oInputs.nCategory = nChosen + 1;
  }
  oInputs.fBuyerTax = The<ctlNumericText>("txtBuyerTax").Value();
  oInputs.fAdvertising = The<ctlNumericText>("txtAdvertising").Value();
  oInputs.lExtras = 0;
  for (std::size_t i = 0; i < kExtras; ++i) {
    oInputs.lExtras |= ValueOf(AllExtras()[i].sBox) << i;
  }
  oInputs.bFreeListing = ValueOf("chkFreeListing") != 0;
  oInputs.bTaxIsCost = ValueOf("chkTaxIsCost") != 0;
  m_oSaleFees->m_bDirty = true;
  emit Changed();
}

}  // namespace quillet
