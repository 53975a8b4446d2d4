#include "base/regionControls.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "base/region.h"

namespace quillet {
namespace {

constexpr std::int32_t kUk = 0;
constexpr std::int32_t kUs = 1;

struct RegionalControl {
  std::string_view sText;
  bool bWhole;  ///< the name must equal this text, not merely contain it
  std::int32_t nRegion;
};

// The first line that matches decides. A name that matches none belongs to both regions.
constexpr std::array<RegionalControl, 25> kControls = {{
    {"10DayDuration", false, kUs},
    {"GiftServices", false, kUs},
    {"PreviewPicture", false, kUs},
    {"Border", false, kUs},
    {"MotorOptions", false, kUs},
    {"ListingItem", false, kUs},
    {"CarAd", false, kUs},
    {"Shop60Days", false, kUs},
    {"Shop120Days", false, kUs},
    {"BusinessAuction", false, kUs},
    {"Weight", false, kUk},
    {"SecondClass", false, kUk},
    {"FirstClass", false, kUk},
    {"ParcelService", false, kUk},
    {"ParcelInsurance", false, kUk},
    {"RecordedDelivery", false, kUk},
    {"ProofOfDelivery", false, kUk},
    {"OutlayInclTax", false, kUk},
    {"optPassenger", true, kUs},
    {"optMotorcycle", true, kUs},
    {"optPowersports", true, kUs},
    {"optPocketBikes", true, kUs},
    {"optOtherVehicle", true, kUs},
    {"optParts", true, kUs},
    {"ctlRealEstateOption", true, kUs},
}};

}  // namespace

bool RegionAllowsControl(std::string_view sName) {
  const auto* const oFound =
      std::find_if(kControls.begin(), kControls.end(), [&](const auto& oControl) {
        return oControl.bWhole ? sName == oControl.sText
                               : sName.find(oControl.sText) != std::string_view::npos;
      });
  return oFound == kControls.end() || oFound->nRegion == RegionCode();
}

}  // namespace quillet
