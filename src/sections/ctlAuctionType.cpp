#include "sections/ctlAuctionType.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "answers/tips.h"
#include "sections/AuctionOptionsPanel.h"
#include "sections/controlHelpers.h"
#include "sections/ctlRealEstateOptions.h"

namespace quillet {
namespace {

using enum ControlKind;

constexpr std::array kControls = std::to_array<ControlDesign>({
    {"ctlShopDuration", kSubControl, "", 360, 5685, 2895, 1335, "", nullptr,
     MakeOptions<ctlShopDurations>},
    {"ctlRealEstateOption", kSubControl, "", 360, 2880, 2655, 1935, "", nullptr,
     [](QWidget* p) -> SectionPanel* { return new ctlRealEstateOptions(p); }},
    {"ctlMotorAuction", kSubControl, "", 360, 915, 2655, 1680, "", nullptr,
     MakeOptions<ctlMotorOptions>},
    {"chkShowBusinessAuction", kCheckBox, "Show", 2160, 4840, 975, 255, "BusinessAuction"},
    {"optBusinessAuction", kOption, "Business && Industrial", 0, 4840, 1815, 255},
    {"chkShowShopInventory", kCheckBox, "Show", 2160, 5400, 975, 255, "Shop"},
    {"chkShopInventory", kCheckBox, "Shop Inventory", 0, 5400, 1815, 255},
    {"chkBuyItNow", kCheckBox, "Buy it Now Only", 0, 5120, 1815, 255},
    {"chkShowBuyItNow", kCheckBox, "Show", 2160, 5120, 975, 255, "BuyItNow"},
    {"chkShowTotal", kCheckBox, "Show", 2160, 7080, 975, 255, "Total"},
    {"optMotorAuction", kOption, "Motor Auction", 0, 640, 1815, 255},
    {"optRealEstateAuction", kOption, "Real Estate Auction", 0, 2600, 1815, 255},
    {"optStandardAution", kOption, "&Standard Auction", 0, 360, 1815, 255},
    {"chkShowRealEstate", kCheckBox, "Show", 2160, 2600, 975, 255, "RealEstate"},
    {"chkShowMotor", kCheckBox, "Show", 2160, 640, 975, 255, "Motor"},
    {"chkShowStandard", kCheckBox, "Show", 2160, 360, 975, 255, "Standard"},
    {"lblTotal", kLabel, "Section Total £0.00", 0, 7080, 1815, 255},
    {"imgHeader", kHeader, "Auction Type", 0, 0, 3015, 255, "0"},
});

constexpr PanelDesign kDesign = {.sTypeName = "ctlAuctionType",
                                 .sTitle = "Auction Type",
                                 .sSectionKey = "AuctionType",
                                 .sReferenceBox = "chkShowStandard",
                                 .sVisibilityList = "AuctionType",
                                 .nWidth = 3330,
                                 .nHeight = 7485,
                                 .aoControls = kControls};

constexpr std::array kKinds = std::to_array<OptionCode>({
    {"optStandardAution", kAuctionStandard},
    {"optMotorAuction", kAuctionMotor},
    {"optRealEstateAuction", kAuctionRealEstate},
    {"optBusinessAuction", kAuctionBusiness},
});

/// How a click on a box changes the way to list; empty if it doesn't.
Change ClickOn(std::string_view sBox, bool bTicked) {
  if (sBox == "chkBuyItNow") {
    return bTicked ? ListAsAuction() : ListAtFixedPrice();
  }
  if (sBox == "chkShopInventory") {
    return bTicked ? ListAsAuction() : ListInShop(kShopNone);
  }
  return {};
}

}  // namespace

ctlAuctionType::ctlAuctionType(QWidget* pParent) : SectionPanel(kDesign, pParent) {}

/// No write is guarded: each can raise a click, which writes every box, set already or not, into
/// the listing and comes back here, until nothing changes any more. So where the kind on screen
/// differs from the listing's, the two flags on screen overwrite the listing's.
void ctlAuctionType::ApplyAuctionType(clsAuctionType& oAuctionType) {
  m_oAuctionType = &oAuctionType;
  SetChosen(kKinds, oAuctionType.m_eAuctionType);
  SetValueOf("chkBuyItNow", oAuctionType.m_bBuyItNowOnly ? 1 : 0);
  The<AuctionOptionsPanel>("ctlMotorAuction").ApplyAuctionType(oAuctionType);
  The<ctlRealEstateOptions>("ctlRealEstateOption").ApplyAuctionType(oAuctionType);
  SetValueOf("chkShopInventory", oAuctionType.m_bShopInventory ? 1 : 0);
  The<AuctionOptionsPanel>("ctlShopDuration").ApplyAuctionType(oAuctionType);
  ShowWhatIsOnOffer();
  ShowTotal(oAuctionType);
}

/// A listing may be of a kind that isn't on offer: that option is chosen and grey.
void ctlAuctionType::ShowWhatIsOnOffer() {
  for (const OptionCode& oKind : kKinds) {
    Control& oOption = *Find(oKind.sOption);
    SetControlActive(clsAuctionType::IsOnOffer(oKind.nCode), oOption, false);
    oOption.SetEnabled(clsAuctionType::IsOnOffer(oKind.nCode));
  }
}

void ctlAuctionType::ShowTotal(clsAuctionType& oAuctionType) {
  ShowSectionTotal(The<Label>("lblTotal"), oAuctionType.DoCalcAuto());
}

void ctlAuctionType::InputClicked(Control& oInput) {
  const std::string_view sName = oInput.Name();
  if (sName == "optMotorAuction" || sName == "optRealEstateAuction" ||
      sName == "optBusinessAuction") {
    SyncShopInventory(false);
  } else if (sName == "chkBuyItNow" && ValueOf("chkBuyItNow") != 0) {
    SetValueOf("chkShopInventory", 0);
  } else if (sName == "chkShopInventory") {
    if (ValueOf("chkShopInventory") != 0) {
      SetValueOf("chkBuyItNow", 0);
    }
    SyncShopInventory(true);
  }
  if (sName == "optMotorAuction" && ValueOf("optMotorAuction") != 0 && m_oAuctionType != nullptr) {
    m_oAuctionType->TakeVehicleOnOffer();
  }
  UpdateModel();
}

std::string ctlAuctionType::TipOf(const Control& oInput, const clsCalculate& oAuction) const {
  const auto* const pChoice = dynamic_cast<const Choice*>(&oInput);
  const bool bChosen = pChoice != nullptr && pChoice->Value() != 0;
  const auto* const pKind = std::find_if(kKinds.begin(), kKinds.end(), [&](const OptionCode& o) {
    return o.sOption == oInput.Name();
  });
  if (pKind != kKinds.end() && !clsAuctionType::IsOnOffer(pKind->nCode)) {
    return NotOnOfferTip(WordsOf(oInput).toStdString());
  }
  Change oClick = ClickOn(oInput.Name(), bChosen);
  if (pKind != kKinds.end() && !bChosen) {
    oClick = ListAs(pKind->nCode);
  }
  return pKind != kKinds.end() || oClick
             ? ListingTip(oAuction, WordsOf(oInput).toStdString(), bChosen, oClick)
             : std::string();
}

/// The shop takes only standard auctions: whichever of the two was clicked last wins.
void ctlAuctionType::SyncShopInventory(bool bShopClicked) {
  if (!bShopClicked) {
    SetValueOf("chkShopInventory", 0);
  } else if (ValueOf("chkShopInventory") != 0) {
    SetValueOf("optStandardAution", 1);
  }
}

void ctlAuctionType::UpdateModel() {
  if (m_oAuctionType == nullptr) {
    return;
  }
  m_oAuctionType->m_eAuctionType = ChosenOf(kKinds, m_oAuctionType->m_eAuctionType);
  m_oAuctionType->m_bBuyItNowOnly = ValueOf("chkBuyItNow") != 0;
  m_oAuctionType->m_bShopInventory = ValueOf("chkShopInventory") != 0;
  if (!m_oAuctionType->m_bShopInventory) {
    m_oAuctionType->m_eShopDuration = kShopNone;
  }
  m_oAuctionType->m_bDirty = true;
  ApplyAuctionType(*m_oAuctionType);
  emit Changed();
}

}  // namespace quillet
