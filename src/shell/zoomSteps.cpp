#include "shell/zoomSteps.h"

#include <algorithm>
#include <array>

#include "base/clsRegistryAccess.h"
#include "base/conversions.h"

namespace quillet {
namespace {

constexpr std::array kSteps = {75, 80, 90, 100, 110, 125, 150, 175, 200, 225, 250, 275, 300};

}  // namespace

int NextZoomStep(int nPercent, bool bLarger) {
  if (bLarger) {
    const auto* const pNext = std::upper_bound(kSteps.begin(), kSteps.end(), nPercent);
    return pNext == kSteps.end() ? kSteps.back() : *pNext;
  }
  const auto* const pHere = std::lower_bound(kSteps.begin(), kSteps.end(), nPercent);
  return pHere == kSteps.begin() ? kSteps.front() : *(pHere - 1);
}

int LargestFittingZoom(double fWidth, double fHeight, double fRoomWidth, double fRoomHeight) {
  const auto pFits = std::find_if(kSteps.rbegin(), kSteps.rend(), [&](int nPercent) {
    return fWidth * nPercent / 100 <= fRoomWidth && fHeight * nPercent / 100 <= fRoomHeight;
  });
  return pFits == kSteps.rend() ? kSteps.front() : *pFits;
}

std::optional<int> StoredZoom() {
  const auto nStored = ToLong(Registry().Get(settings::kZoom));
  const bool bStep = nStored && std::find(kSteps.begin(), kSteps.end(), *nStored) != kSteps.end();
  return bStep ? std::optional<int>(*nStored) : std::nullopt;
}

}  // namespace quillet
