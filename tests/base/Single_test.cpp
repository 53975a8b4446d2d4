#include "base/Single.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "support/Prices.h"

namespace quillet {
namespace {

TEST(Single, RoundsOnceAtTheAssignmentAndATieToEven) {
  EXPECT_EQ(Single(16777217.0).Float(), 16777216.0F);  // 2^24 + 1, between two floats
  EXPECT_EQ(Single(16777219.0).Float(), 16777220.0F);
  const Single fLarge = 1E8;  // as a float 1E8 + 1 is 1E8 again
  EXPECT_EQ(Single(fLarge + 1 - fLarge), 1);
}

TEST(Single, RefusesWhatRoundsBeyondTheLargestFloat) {
  EXPECT_EQ(Single(0x1.fffffefffffffp127).Float(), std::numeric_limits<float>::max());
  EXPECT_EQ(Single(-0x1.fffffefffffffp127).Float(), std::numeric_limits<float>::lowest());
  for (const double fRefused : {0x1.ffffffp127, -0x1.ffffffp127, HUGE_VAL, std::nan("")}) {
    Single fValue = 5;
    EXPECT_THROW(fValue = fRefused, Failure) << fRefused;
    EXPECT_EQ(fValue, 5);
  }
}

}  // namespace
}  // namespace quillet
