// Thousands of random steps over the whole calculator. QUILLET_WALK_SEED sets the seed of every
// walk, QUILLET_WALK_STEPS the number of steps.
#include <QApplication>
#include <QTest>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <deque>
#include <iostream>
#include <numeric>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "base/clsRegistryAccess.h"
#include "documents/lastFolder.h"
#include "sections/controlHelpers.h"
#include "support/Auctions.h"
#include "support/PanelScript.h"
#include "support/Prices.h"
#include "support/TestHost.h"
#include "support/WalkGuard.h"

namespace quillet {
namespace {

constexpr std::size_t kTraced = 20;

/// A click or a key reaches it: it is visible, and neither it nor a parent is disabled.
bool IsReachable(const Control& oControl) {
  return oControl.Widget().isVisible() && oControl.Widget().isEnabled();
}

/// A random walk over the main window: things a user can do, step by step, chosen by a seed.
class Walk {
 public:
  /// Loads the samples of data/ and saves auctions in `oFolder`.
  Walk(frmMain& oWindow, TestHost& oHost, const TemporaryFolder& oFolder, unsigned nSeed)
      : m_oWindow(oWindow),
        m_oHost(oHost),
        m_oFolder(oFolder),
        m_oDice(nSeed),
        m_aoPanels(AllPanels(oWindow.Calculator().Set())) {}

  const WalkStep& Step() {
    static constexpr std::array aoKinds = {
        &Walk::Click,          &Walk::PressKey,    &Walk::Type,
        &Walk::StepNumber,     &Walk::TickShowBox, &Walk::ShowConfiguration,
        &Walk::ShowCalculator, &Walk::StartNew,    &Walk::Load,
        &Walk::Save,           &Walk::VisitWizard};
    // How often each kind comes, in the same order.
    std::discrete_distribution<std::size_t> oWeights({40, 4, 16, 8, 14, 5, 6, 2, 5, 3, 2});
    m_oStep = {};
    (this->*aoKinds.at(oWeights(m_oDice)))();
    m_oHost.aeAnswers.clear();
    m_oHost.asChoices.clear();
    m_asTrace.push_back(std::to_string(++m_nStep) + " " + m_oStep.sWhat);
    if (m_asTrace.size() > kTraced) {
      m_asTrace.pop_front();
    }
    return m_oStep;
  }

  /// The latest steps, one per line.
  [[nodiscard]] std::string Trace() const {
    return std::accumulate(m_asTrace.begin(), m_asTrace.end(), std::string(),
                           [](const auto& sAll, const auto& sStep) { return sAll + sStep + "\n"; });
  }

 private:
  [[nodiscard]] std::size_t Below(std::size_t nEnd) { return m_oDice() % nEnd; }
  template <typename Item>
  [[nodiscard]] const Item& Pick(const std::vector<Item>& aoItems) {
    return aoItems[Below(aoItems.size())];
  }
  template <typename Accept>
  [[nodiscard]] std::vector<Control*> ControlsWhere(Accept&& fnAccept) const {
    std::vector<Control*> aoFound;
    for (const SectionPanel* const pPanel : m_aoPanels) {
      std::copy_if(pPanel->Controls().begin(), pPanel->Controls().end(),
                   std::back_inserter(aoFound),
                   [&](Control* p) { return IsReachable(*p) && fnAccept(*p); });
    }
    return aoFound;
  }

  [[nodiscard]] Control* PickChoice() {
    const std::vector<Control*> aoChoices = ControlsWhere([](const Control& o) {
      return dynamic_cast<const Choice*>(&o) != nullptr && !IsShowCheck(o);
    });
    return aoChoices.empty() ? nullptr : Pick(aoChoices);
  }

  [[nodiscard]] ctlNumericText* PickNumber() {
    const std::vector<Control*> aoBoxes = ControlsWhere(
        [](const Control& o) { return dynamic_cast<const ctlNumericText*>(&o) != nullptr; });
    return aoBoxes.empty() ? nullptr : dynamic_cast<ctlNumericText*>(Pick(aoBoxes));
  }

  void Click() {
    if (Control* const pChoice = PickChoice()) {
      m_oStep = {.sWhat = "click " + pChoice->Name(), .bTouches = true};
      ClickOn(*pChoice);
    }
  }

  void PressKey() {
    static const std::vector<Qt::Key> aeKeys = {Qt::Key_Space, Qt::Key_Up, Qt::Key_Down,
                                                Qt::Key_Tab};
    if (Control* const pChoice = PickChoice()) {
      const Qt::Key eKey = Pick(aeKeys);
      m_oStep = {.sWhat = "key " + std::to_string(eKey) + " on " + pChoice->Name(),
                 .bTouches = true};
      pChoice->Widget().setFocus();
      QTest::keyClick(&pChoice->Widget(), eKey);
    }
  }

  void Type() {
    static const std::vector<std::string> asTexts = {
        "0", "1",  "2",   "3",    "12",      "0.01",  "9.99", "24.995", "149",        "1200",
        "",  "-5", "abc", "1e3",  "2.5",     ".",     "1,5",  "50000",  "3000000000", "1.1",
        "7", "20", "0.2", "1.75", "0.12345", "$4.50", "£6",   "100"};
    if (ctlNumericText* const pBox = PickNumber()) {
      const std::string& sText = Pick(asTexts);
      const bool bStays = Below(4) == 0;
      m_oStep = {.sWhat = "type \"" + sText + "\" into " + pBox->Name() + (bStays ? ", stay" : ""),
                 .bTouches = true};
      pBox->TextBox()->setFocus(Qt::TabFocusReason);
      pBox->TextBox()->selectAll();
      QTest::keyClick(pBox->TextBox(), Qt::Key_Delete);
      QTest::keyClicks(pBox->TextBox(), QString::fromStdString(sText));
      if (!bStays) {
        pBox->TextBox()->clearFocus();
      }
    }
  }

  void StepNumber() {
    if (ctlNumericText* const pBox = PickNumber()) {
      const bool bUp = Below(3) != 0;
      const bool bShift = Below(3) == 0;
      const auto nCaret = static_cast<int>(Below(6));
      m_oStep = {.sWhat = std::string(bUp ? "up" : "down") + (bShift ? ", shifted, at " : " at ") +
                          std::to_string(nCaret) + " in " + pBox->Name(),
                 .bTouches = true};
      pBox->TextBox()->setFocus(Qt::TabFocusReason);
      pBox->TextBox()->setCursorPosition(nCaret);
      QTest::keyClick(pBox->TextBox(), bUp ? Qt::Key_Up : Qt::Key_Down,
                      bShift ? Qt::ShiftModifier : Qt::NoModifier);
    }
  }

  void TickShowBox() {
    const std::vector<Control*> aoBoxes = ControlsWhere(IsShowCheck);
    if (aoBoxes.empty() || !m_oWindow.Calculator().ConfigMode()) {
      Click();
      return;
    }
    Control* const pBox = Pick(aoBoxes);
    m_oStep.sWhat = "show box " + pBox->Name();
    ClickOn(*pBox);
  }

  void ShowConfiguration() {
    m_oStep = {.sWhat = "configuration",
               .bLaysOut = true,
               .bCleans = true,
               .asGiven = {"", Registry().Get(settings::kDefaultAuction)}};
    m_oWindow.ClickButton(kButtonConfig);
  }

  void ShowCalculator() {
    m_oStep = {.sWhat = "calculator", .bLaysOut = true};
    m_oWindow.ClickButton(kButtonCalculator);
  }

  /// Sometimes answers the question whether to save with Cancel.
  void AnswerPrompts() {
    const Answer eAnswer = Below(5) == 0 ? Answer::Cancel : Answer::No;
    m_oStep.sWhat += eAnswer == Answer::No ? ", no save" : ", cancel";
    m_oHost.aeAnswers = {eAnswer};
  }

  void StartNew() {
    m_oStep.sWhat = "new";
    AnswerPrompts();
    const bool bGoesAhead = !WorkingAuction().IsDirty() || m_oHost.aeAnswers.front() == Answer::No;
    m_oStep.bLaysOut = bGoesAhead;
    m_oWindow.ClickButton(kButtonNew);
    m_oStep.asGiven[0] = bGoesAhead ? TextOf(DefaultAuction()) : "";
  }

  void Load() {
    const Sample& oSample = Pick(m_aoSamples);
    m_oStep.sWhat = "load " + oSample.sName;
    if (!m_oWindow.Calculator().ConfigMode()) {  // which loads nothing
      m_oStep.bCleans = true;
      m_oStep.asGiven[0] = oSample.sText;
    }
    m_oHost.asChoices = {oSample.sPath};
    m_oWindow.ClickButton(kButtonLoad);
  }

  void Save() {
    const bool bDefault = m_oWindow.Calculator().ConfigMode();
    m_oStep.sWhat = bDefault ? "save the default auction" : "save";
    m_oStep.bCleans = true;
    m_oHost.asChoices = {m_oFolder / "walk.qlt"};
    m_oWindow.ClickButton(kButtonSave);
  }

  /// Goes to the wizard and back, or stays in the calculator if the question is cancelled.
  void VisitWizard() {
    m_oStep = {.sWhat = "wizard and back", .bLaysOut = true};
    AnswerPrompts();
    m_oStep.bShowsAgain = !WorkingAuction().IsDirty() || m_oHost.aeAnswers.front() == Answer::No;
    m_oWindow.ClickButton(kButtonWizard);
    m_oWindow.ClickButton(kButtonCalculator);
    if (m_oStep.bShowsAgain) {
      clsCalculate oEmpty;
      oEmpty.m_oOutlay.m_lQuantity = 1;
      m_oStep.asGiven[0] = TextOf(oEmpty);
    }
  }

  frmMain& m_oWindow;
  TestHost& m_oHost;
  const TemporaryFolder& m_oFolder;
  std::mt19937 m_oDice;
  std::vector<SectionPanel*> m_aoPanels;
  /// The samples made for the schedule in use.
  std::vector<Sample> m_aoSamples =
      Samples(AreFeesOfToday() ? "data/samples/today" : "data/samples");
  std::deque<std::string> m_asTrace;
  WalkStep m_oStep;
  int m_nStep = 0;
};

unsigned NumberIn(const char* sVariable, unsigned nElse) {
  const char* const sText = std::getenv(sVariable);
  return sText != nullptr ? static_cast<unsigned>(std::strtoul(sText, nullptr, 10)) : nElse;
}

class CalculatorWalk : public ::testing::TestWithParam<unsigned> {
 protected:
  /// Every other walk uses today's fees.
  CalculatorWalk() {
    if (GetParam() % 2 == 0) {
      UseScheduleOfToday();
    }
    Registry().Set(settings::kStartMode, "1");
    SetLastFolder(m_oFolder.sPath);
  }

  ScopedHost m_oHost;
  TemporaryFolder m_oFolder;
};

TEST_P(CalculatorWalk, KeepsSummaryTextRowsAndDirtyFlagsTogether) {
  const unsigned nSeed = NumberIn("QUILLET_WALK_SEED", GetParam());
  const unsigned nSteps = NumberIn("QUILLET_WALK_STEPS", 400);
  std::cout << "seed " << nSeed << std::endl;  // flushed, in case the walk crashes
  frmMain oWindow;
  Walk oWalk(oWindow, m_oHost, m_oFolder, nSeed);
  WalkGuard oGuard(oWindow);
  oWindow.Show();
  QApplication::processEvents();
  for (unsigned i = 1; i <= nSteps && !HasFailure(); ++i) {
    constexpr unsigned kAllEach = 16;
    oGuard.Note();
    const WalkStep& oStep = oWalk.Step();
    if (i % kAllEach == 0) {
      QApplication::processEvents();
    }
    oGuard.Check(oStep, i % kAllEach == 0);
  }
  EXPECT_FALSE(HasFailure()) << "QUILLET_WALK_SEED=" << nSeed << ", the latest steps:\n"
                             << oWalk.Trace();
}

INSTANTIATE_TEST_SUITE_P(Seeds, CalculatorWalk, ::testing::Values(1, 2, 3, 4, 5));

}  // namespace
}  // namespace quillet
