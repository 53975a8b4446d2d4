#include "sections/controlHelpers.h"

#include <gtest/gtest.h>

#include "base/clsRegistryAccess.h"

namespace quillet {
namespace {

std::uint32_t SubtotalColourStored(const char* sText) {
  Registry().Set(settings::kSubtotalColour, sText);
  return SubtotalColour();
}

TEST(ControlHelpers, ColoursComeFromTheSettingsIfTheyAreNumbers) {
  EXPECT_EQ(TotalColour(), 0xC0FFC0U);
  EXPECT_EQ(SubtotalColour(), 33023U);
  EXPECT_EQ(SubtotalColourStored("255"), 255U);
  EXPECT_EQ(SubtotalColourStored("-2147483643"), kColourWindow) << "of the theme, as it is signed";
  EXPECT_EQ(SubtotalColourStored("orange"), 33023U);
}

}  // namespace
}  // namespace quillet
