#include "shell/zoomSteps.h"

#include <algorithm>
#include <array>

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

bool IsZoomStep(int nPercent) {
  return std::find(kSteps.begin(), kSteps.end(), nPercent) != kSteps.end();
}

}  // namespace quillet
