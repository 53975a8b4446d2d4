// A section on a window of its own, for an auction that a test sets up.
#pragma once

#include <QSignalSpy>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "engine/clsCalculate.h"
#include "prices/money.h"
#include "sections/VisibleList.h"
#include "support/ByRegion.h"
#include "support/PanelScript.h"
#include "support/Prices.h"

namespace quillet {

/// Those inputs that a screen reader has no name for.
inline std::string UnnamedInputsIn(const SectionPanel& oPanel) {
  return NamesWhere(oPanel, [](const Control& oControl) {
    if (const auto* const pBox = dynamic_cast<const ctlNumericText*>(&oControl)) {
      return pBox->TextBox()->accessibleName().isEmpty();
    }
    const QString sName = oControl.Widget().accessibleName();
    return IsShowCheck(oControl)
               ? sName.isEmpty() || sName == "Show"
               : dynamic_cast<const Choice*>(&oControl) != nullptr && oControl.Caption().isEmpty();
  });
}

template <typename Section>
class PanelTest : public ::testing::Test {
 protected:
  PanelTest() {
    m_oAuction.m_oAuctionType.m_eShopDuration = kShopNone;
    m_oAuction.m_oOutlay.m_fEstimatedEndPrice = 30;
    m_oAuction.m_oOutlay.m_lQuantity = 1;
    m_oWindow.resize(600, 900);
    m_oWindow.show();
    m_oWindow.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&m_oWindow));
    m_oSection.SetShowConfig(false);
  }

  void ClickOn(const std::string& sNames) { quillet::ClickOn(m_oSection, sNames); }
  void TypeInto(const std::string& sName, const std::string& sText) {
    quillet::TypeInto(m_oSection, sName, sText);
  }
  std::string Chosen() const { return ChosenIn(m_oSection); }
  std::string Grey() const { return NamesWhere(m_oSection, IsGrey); }
  std::string Caption(const std::string& sName) const {
    return ControlOf(m_oSection, sName).Caption().toStdString();
  }
  std::string Total() const { return Caption("lblTotal"); }
  ctlNumericText& Box(const std::string& sName) const {
    return dynamic_cast<ctlNumericText&>(ControlOf(m_oSection, sName));
  }
  bool Usable(const std::string& sName) const {
    return ControlOf(m_oSection, sName).Widget().isEnabled();
  }

  /// Each Show box has a row of its own. With it ticked alone, what is on view are the controls
  /// beside it in config mode, and the panel below that is called after it.
  static void ExpectEachShowBoxStandsForItsRow(SectionPanel& oPanel, std::size_t nBoxes) {
    std::set<std::string> asRows;
    const auto fnShown = [&](const Control& o) {
      return o.Visible() && o.Container() == &oPanel && !IsShowCheck(o) && !IsHeaderImage(o);
    };
    for (const Control* const pBox : oPanel.Controls()) {
      if (IsShowCheck(*pBox)) {
        clsTokeniser oList;
        oList.AddToArray(pBox->Tag());
        SaveVisibleList(oPanel.SectionKey(), oList);
        oPanel.SetShowConfig(true);
        const std::string sBeside = NamesWhere(oPanel, [&](const Control& o) {
          return fnShown(o) && pBox->Visible() &&
                 (o.Top() == pBox->Top() || o.Name().starts_with("ctl" + pBox->Tag()));
        });
        EXPECT_EQ(asRows.insert(sBeside).second && !sBeside.empty(), pBox->Visible())
            << pBox->Name();
        oPanel.SetShowConfig(false);
        EXPECT_EQ(NamesWhere(oPanel, fnShown), sBeside) << pBox->Name();
      }
    }
    asRows.erase("");  // of the boxes that the region lacks
    EXPECT_EQ(asRows.size(), nBoxes);
  }

  clsCalculate m_oAuction;
  QWidget m_oWindow;
  Section m_oSection{&m_oWindow};
  QSignalSpy m_oChanged{&m_oSection, &SectionPanel::Changed};
};

}  // namespace quillet
