// A random walk over the main window: what a user may do, one step after the other, told by a seed.
#pragma once

#include <deque>
#include <random>
#include <string>
#include <vector>

#include "sections/SectionPanel.h"
#include "shell/frmMain.h"
#include "support/TestHost.h"

namespace quillet {

/// A step that was taken, and what it may have changed.
struct WalkStep {
  std::string sWhat{};
  bool bTouches = false;                  ///< edits the auction on view
  bool bLaysOut = false;                  ///< packs the rows anew
  bool bShowsAgain = false;               ///< hides the calculator and shows it again
  bool bCleans = false;                   ///< loads or saves the auction on view
  std::string sSaved{};                   ///< the file that was saved
  const SectionPanel* pTicked = nullptr;  ///< whose Show box was clicked
};

class Walk {
 public:
  /// The samples are those of data/; `oFolder` is where auctions are saved.
  Walk(frmMain& oWindow, TestHost& oHost, const TemporaryFolder& oFolder, unsigned nSeed);

  /// Takes a step.
  const WalkStep& Step();

  /// Every panel of the calculator, those within panels too.
  [[nodiscard]] const std::vector<SectionPanel*>& Panels() const { return m_aoPanels; }

  /// The latest steps, one a line.
  [[nodiscard]] std::string Trace() const;

 private:
  struct Kind {
    int nWeight;
    void (Walk::*pTake)();
  };
  static const std::vector<Kind> kKinds;

  void Click();
  void PressKey();
  void Type();
  void StepNumber();
  void TickShowBox();
  void ShowConfiguration();
  void ShowCalculator();
  void StartNew();
  void Load();
  void Save();
  void VisitWizard();

  [[nodiscard]] std::size_t Below(std::size_t nEnd) { return m_oDice() % nEnd; }
  template <typename Item>
  [[nodiscard]] const Item& Pick(const std::vector<Item>& aoItems) {
    return aoItems[Below(aoItems.size())];
  }
  template <typename Accept>
  [[nodiscard]] std::vector<Control*> ControlsWhere(Accept&& fnAccept) const;
  [[nodiscard]] Control* PickChoice();
  [[nodiscard]] class ctlNumericText* PickNumber();
  void AnswerPrompts();

  frmMain& m_oWindow;
  TestHost& m_oHost;
  const TemporaryFolder& m_oFolder;
  std::mt19937 m_oDice;
  std::vector<SectionPanel*> m_aoPanels;
  std::vector<std::string> m_asSamples;
  std::deque<std::string> m_asTrace;
  WalkStep m_oStep;
  int m_nStep = 0;
};

}  // namespace quillet
