// The pages of the wizard; the fee schedule in use decides which of them are on view.
#pragma once

#include <QStringList>
#include <cstdint>
#include <string>
#include <vector>

#include "shell/SectionSet.h"

namespace quillet {

class PageScroller;

struct WizardPage {
  const char* sName;
  Frame* pFrame;
  SectionPanel* oSection;   ///< in the frame
  std::string sInfo;        ///< the instruction above it
  std::int32_t lIndex = 0;  ///< its place among the pages on view
  bool bFirst = false;      ///< no page to go back to
  bool bLast = false;       ///< Next finishes
};

class WizardPages {
 public:
  /// Puts each section into a frame within `pViewPort`. Neither is owned.
  WizardPages(SectionSet& oSet, PageScroller* pViewPort);

  /// Updates which pages are on view with the fee schedule in use.
  void Refresh();

  [[nodiscard]] const std::vector<WizardPage>& OnView() const { return m_aOnView; }
  [[nodiscard]] QStringList Names() const;

 private:
  SectionSet& m_oSet;
  std::vector<WizardPage> m_aAll;
  std::vector<WizardPage> m_aOnView;
};

}  // namespace quillet
