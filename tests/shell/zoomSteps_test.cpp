#include "shell/zoomSteps.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(ZoomSteps, GoUpAndDownAndStopAtTheEnds) {
  const struct {
    int nFrom;
    bool bLarger;
    int nTo;
  } kRows[] = {{100, true, 110}, {100, false, 90}, {300, true, 300},
               {75, false, 75},  {103, true, 110}, {103, false, 100}};
  for (const auto& [nFrom, bLarger, nTo] : kRows) {
    EXPECT_EQ(NextZoomStep(nFrom, bLarger), nTo) << nFrom;
  }
}

TEST(ZoomSteps, TheLargestThatFitsIsChosen) {
  EXPECT_EQ(LargestFittingZoom(900, 720, 1920, 1040), 125) << "150 % would be 1080 high";
  EXPECT_EQ(LargestFittingZoom(900, 720, 1920, 1080), 150) << "an exact fit fits";
  EXPECT_EQ(LargestFittingZoom(900, 720, 640, 480), 75) << "the smallest where none fits";
}

}  // namespace
}  // namespace quillet
