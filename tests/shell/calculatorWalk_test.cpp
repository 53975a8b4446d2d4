// Thousands of random steps over the whole calculator. QUILLET_WALK_SEED takes one walk alone, and
// QUILLET_WALK_STEPS another number of steps; with QUILLET_WALK_TRACE each step is printed before
// it is checked.
#include <QApplication>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "base/clsRegistryAccess.h"
#include "documents/lastFolder.h"
#include "support/Auctions.h"
#include "support/Walk.h"
#include "support/WalkGuard.h"

namespace quillet {
namespace {

unsigned NumberIn(const char* sVariable, unsigned nElse) {
  const char* const sText = std::getenv(sVariable);
  return sText != nullptr ? static_cast<unsigned>(std::strtoul(sText, nullptr, 10)) : nElse;
}

class CalculatorWalk : public ::testing::TestWithParam<unsigned> {
 protected:
  CalculatorWalk() {
    ClearAuctions();
    Registry().Set(settings::kStartMode, "1");
    Registry().Set(settings::kZoom, "100");
    SetLastFolder(m_oFolder.sPath);
  }

  ScopedHost m_oHost;
  TemporaryFolder m_oFolder;
};

TEST_P(CalculatorWalk, KeepsSummaryTextRowsAndDirtyFlagsTogether) {
  const unsigned nSeed = NumberIn("QUILLET_WALK_SEED", GetParam());
  const unsigned nSteps = NumberIn("QUILLET_WALK_STEPS", 400);
  const bool bTrace = std::getenv("QUILLET_WALK_TRACE") != nullptr;
  std::cout << "seed " << nSeed << std::endl;  // at once, for a walk that ends in a crash
  frmMain oWindow;
  Walk oWalk(oWindow, m_oHost, m_oFolder, nSeed);
  WalkGuard oGuard(oWindow, oWalk.Panels());
  oWindow.Show();
  QApplication::processEvents();
  for (unsigned i = 1; i <= nSteps && !HasFailure(); ++i) {
    constexpr unsigned kAllEach = 16;
    oGuard.Note();
    const WalkStep& oStep = oWalk.Step();
    if (bTrace) {
      std::cout << i << " " << oStep.sWhat << std::endl;
    }
    if (i % kAllEach == 0) {
      QApplication::processEvents();
    }
    oGuard.Check(oStep, i % kAllEach == 0);
  }
  EXPECT_FALSE(HasFailure()) << "QUILLET_WALK_SEED=" << nSeed << ", the latest steps:\n"
                             << oWalk.Trace();
  RecordProperty("MostRaised", oGuard.MostRaised());
}

INSTANTIATE_TEST_SUITE_P(Seeds, CalculatorWalk, ::testing::Values(1, 2, 3, 4, 5));

}  // namespace
}  // namespace quillet
