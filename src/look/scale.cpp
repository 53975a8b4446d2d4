#include "look/scale.h"

#include <algorithm>
#include <cmath>

namespace quillet {
namespace {

double g_fZoom = 1.0;

}  // namespace

double Zoom() {
  return g_fZoom;
}

void SetZoom(double fZoom) {
  g_fZoom = std::clamp(fZoom, 0.75, 3.0);
}

int Pixels(double fTwips) {
  return static_cast<int>(std::lround(fTwips / kTwipsPerPixel * g_fZoom));
}

int Twips(double fPixels) {
  return static_cast<int>(std::lround(fPixels * kTwipsPerPixel / g_fZoom));
}

}  // namespace quillet
