// What must hold after each step of a walk over the main window.
#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "shell/frmMain.h"
#include "support/LayoutCheck.h"
#include "support/Walk.h"

namespace quillet {

class WalkGuard {
 public:
  /// Before the window is first shown: its panels stand as designed.
  WalkGuard(frmMain& oWindow, const std::vector<SectionPanel*>& aoPanels);
  WalkGuard(const WalkGuard&) = delete;
  WalkGuard& operator=(const WalkGuard&) = delete;
  ~WalkGuard();

  /// Before a step: notes how things stand.
  void Note();

  /// After it: fails the test for each rule that is broken. What costs much is checked if `bAll`.
  void Check(const WalkStep& oStep, bool bAll);

  /// The most that one step has raised so far.
  [[nodiscard]] int MostRaised() const { return m_nMostRaised; }

 private:
  /// An auction as it stood before the step.
  struct Document {
    clsCalculate* pAuction;
    bool bDirty = false;
    std::string sText{};
    std::string sCalculated{};  ///< its text when the view last calculated
    bool bExact = true;         ///< that text held every digit
  };

  [[nodiscard]] Document& OnView();
  void CheckRecursion();
  void CheckDirty(const WalkStep& oStep);
  void CheckSummary(const WalkStep& oStep);
  void CheckSectionTotals(clsCalculate& oFresh);
  void CheckSaved(const WalkStep& oStep);
  void FollowRegistration(const WalkStep& oStep);
  void CheckPlaces(const WalkStep& oStep);

  frmMain& m_oWindow;
  const std::vector<SectionPanel*>& m_aoPanels;
  std::array<Document, 2> m_aoDocuments;
  const Document* m_pOnViewBefore = nullptr;
  bool m_bInBox = false;  ///< a numeric box had the focus
  int m_nRaised = 0;      ///< clicks and changes raised by the step
  int m_nCalculated = 0;  ///< of them, the calculations of the view
  int m_nMostRaised = 0;
  QObject m_oListener;
  /// Where each panel's rows stood when it registered them last, and where they stand now.
  std::map<const SectionPanel*, std::vector<DesignedControl>> m_aoRegistered;
  std::map<const SectionPanel*, std::vector<DesignedControl>> m_aoBefore;
};

}  // namespace quillet
