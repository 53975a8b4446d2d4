// Choosing another fee schedule while an auction is on view.
#include <QMenu>

#include <gmock/gmock.h>

#include "base/basCommon.h"
#include "base/clsRegistryAccess.h"
#include "prices/clsPrices.h"
#include "prices/lines.h"
#include "shell/ScheduleButton.h"
#include "shell/frmMain.h"
#include "support/Log.h"
#include "support/Screen.h"

namespace quillet {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

using Edits = std::vector<std::pair<std::string, std::string>>;

/// Replaces lines by how they begin; the first edit that matches counts.
std::string Edited(std::string_view sText, const Edits& aoEdits) {
  std::string sEdited;
  std::string_view sLine;
  while (TakeLine(sText, sLine)) {
    const auto pEdit = std::find_if(aoEdits.begin(), aoEdits.end(), [&](const auto& oEdit) {
      return sLine.starts_with(oEdit.first);
    });
    sEdited += (pEdit != aoEdits.end() ? pEdit->second : std::string(sLine)) + "\n";
  }
  return sEdited;
}

/// Changes figures, words and currency of the shipped schedule, and removes some keys.
const Edits& EditsOfOther() {
  static const Edits kEdits = {
      {"# As of", "# As of May 2030."},
      {"ScheduleName", "ScheduleName,Fish & chips"},
      {"CurrencySymbol", "CurrencySymbol,EUR "},
      {"OpeningRanges",
       "OpeningRanges,1\nOpeningRangeStart1,0\nOpeningRangeEnd1,-1\nOpeningRangeValue1,3"},
      {"OpeningRange", "#"},
      {"FeatureGallery", "#"},
      {"FeatureItemSubtitle,", "FeatureItemSubtitle,-1"},
      {"PicturePackRangeEnd2", "PicturePackRangeEnd2,9"},
      {"BusinessRateBand2Name", "BusinessRateBand2Name,Middling"},
      {"UsePostTitle", "#"},
      {"InsuranceBandName2", "#"}};
  return kEdits;
}

std::string CostAndProfit(const ctlSellingCosts& oSummary) {
  return (oSummary.The("lblSellingCostTotal").Caption() + " " +
          oSummary.The("lblProfitGrandTotal").Caption())
      .toStdString();
}

class ChoosingSchedules : public ::testing::Test {
 protected:
  ChoosingSchedules() {
    ClearAuctions();
    m_oHost.sProgramFolder = m_oFolder.sPath;
    const std::string sShipped = ReadTestFile(QUILLET_SOURCE_DIR "/data/" + m_sDefault);
    WriteTestFile(m_oFolder / m_sDefault, sShipped);
    WriteTestFile(m_oFolder / m_sOther, Edited(sShipped, EditsOfOther()));
    WriteTestFile(m_oFolder / m_sBad, "Final,1\nFINAL,2\n");
    Registry().Set(settings::kStartMode, "1");
    Registry().Set(settings::kZoom, "100");
    UsePrices(nullptr);
    m_oWindow.Show();
    m_oWindow.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&m_oWindow));
  }

  std::string NameFor(const char* sRest) const {
    return m_sDefault.substr(0, m_sDefault.find('_') + 1) + sRest;
  }

  template <typename View>
  static ScheduleButton& ButtonOf(const View& oView) {
    return *oView.template findChild<ScheduleButton*>();
  }

  /// Chooses the other schedule, then the default again, with an auction on view.
  template <typename View>
  void ExpectOnlyFeesToChange(View& oView, clsCalculate& oAuction) {
    const std::string sText = TextOf(oAuction);
    const std::string sFigures = CostAndProfit(oView.Set().ctlSellingCostsSection);
    for (const std::string& sFile : {m_sOther, m_sDefault}) {
      ButtonOf(oView).Choose(sFile);
      EXPECT_EQ(TextOf(oAuction), sText);
      EXPECT_FALSE(oAuction.IsDirty());
      EXPECT_EQ(Mirror().Differences(oView.Set(), oAuction), "");
      EXPECT_EQ(CostAndProfit(oView.Set().ctlSellingCostsSection) == sFigures, sFile == m_sDefault);
    }
  }

  const std::string m_sDefault = UpdateFileName(true);
  const std::string m_sOther = NameFor("mine.dat");
  const std::string m_sBad = NameFor("bad.dat");
  TemporaryFolder m_oFolder;
  ScopedHost m_oHost;
  frmMain m_oWindow;
};

TEST_F(ChoosingSchedules, ShowsOtherFeesAndChangesNoAuction) {
  const std::vector<std::string> asAuctions = SampleTexts();
  for (std::size_t i = 0; i < asAuctions.size(); i += 3) {
    std::string sAuction = asAuctions[i];
    SCOPED_TRACE(sAuction);
    Registry().Set(settings::kDefaultAuction, sAuction);
    m_oWindow.ClickButton(kButtonConfig);
    ExpectOnlyFeesToChange(m_oWindow.Calculator(), DefaultAuction());
    m_oWindow.ClickButton(kButtonNew);
    ExpectOnlyFeesToChange(m_oWindow.Calculator(), WorkingAuction());
    m_oWindow.ClickButton(kButtonWizard);
    WorkingAuction().Serialize(sAuction, false);
    m_oWindow.Wizard().RefreshSums(true);
    ExpectOnlyFeesToChange(m_oWindow.Wizard(), WorkingAuction());
  }
}

TEST_F(ChoosingSchedules, EntersWhatWasTypedAndLeavesNothingOfTheOldScheduleInEitherView) {
  m_oWindow.ClickButton(kButtonWizard);
  ClickOn(m_oWindow.Wizard().Set().ctlSellingFeaturesSection, "chkPicturePack");
  m_oWindow.ClickButton(kButtonCalculator);
  const SectionSet& oSet = m_oWindow.Calculator().Set();
  auto& oPrice =
      dynamic_cast<ctlNumericText&>(ControlOf(oSet.ctlOutlaySection, "txtEstimatedEndPrice"));
  oPrice.TextBox()->setFocus(Qt::TabFocusReason);
  QTest::keyClicks(oPrice.TextBox(), "77.5");
  ButtonOf(m_oWindow.Calculator()).Choose(m_sOther);
  EXPECT_EQ(WorkingAuction().m_oOutlay.m_fEstimatedEndPrice, 77.5);
  EXPECT_EQ(oPrice.Text(), "EUR 77.50");
  EXPECT_EQ(Mirror().Differences(oSet, WorkingAuction()), "");
  EXPECT_EQ(ControlOf(oSet.ctlPayPalSection, "optBand2").Caption(), "Middling");
  EXPECT_EQ(ControlOf(oSet.ctlPostageSection, "chkUsePostage").Caption(), "Use Royal Mail Postage");
  EXPECT_EQ(ControlOf(oSet.ctlPostageSection, "optBand2").Caption(), "up to ");
  EXPECT_TRUE(IsGrey(ControlOf(oSet.ctlSellingFeaturesSection, "chkItemSubtitle")));
  for (const SectionSet* const pSet : {&oSet, &std::as_const(m_oWindow.Wizard().Set())}) {
    const Control& oCount = ControlOf(pSet->ctlSellingFeaturesSection, "txtExtraPictures");
    EXPECT_EQ(dynamic_cast<const ctlNumericText&>(oCount).Max(), 9);
  }
}

TEST_F(ChoosingSchedules, AMenuOffersThemByKeyAndADamagedOneChangesNothing) {
  ScheduleButton& oButton = ButtonOf(m_oWindow.Calculator());
  const auto fnOpen = [&oButton] {
    oButton.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&oButton, Qt::Key_Return);
    return oButton.findChildren<QMenu*>().last();
  };
  const auto fnTold = [&] { return oButton.accessibleName() + "|" + oButton.toolTip(); };
  EXPECT_THAT(fnTold().toStdString(), StartsWith("Fees: Early 2007|"));
  EXPECT_THAT(fnTold().toStdString(),
              HasSubstr("As of early 2007\nNewer fees are available: Fish &amp; chips<"));

  QMenu* pMenu = fnOpen();
  QStringList asOffered;
  for (const QAction* const pAction : pMenu->actions()) {
    asOffered += pAction->text() + (pAction->isChecked() ? "*" : "");
  }
  EXPECT_EQ(asOffered.join("|").toStdString(),
            "Fish && chips|Early 2007*|" + m_sBad + " (can't be used)||Show in folder");
  pMenu->actions().last()->trigger();
  EXPECT_EQ(m_oHost.asLinks, std::vector{m_oFolder.sPath});

  pMenu->actions().first()->trigger();
  EXPECT_EQ(Registry().Get(settings::kSchedule), m_sOther);
  EXPECT_THAT(fnTold().toStdString(), StartsWith("Fees: Fish & chips|"));
  EXPECT_EQ(fnTold().indexOf("Newer"), -1);
  const std::string sFigures = CostAndProfit(m_oWindow.Calculator().Set().ctlSellingCostsSection);
  EXPECT_TRUE(m_oHost.aoShown.empty());

  fnOpen()->actions().at(2)->trigger();
  ASSERT_EQ(m_oHost.aoShown.size(), 1U);
  EXPECT_THAT(m_oHost.aoShown[0].sPrompt, HasSubstr(m_sBad));
  EXPECT_THAT(m_oHost.aoShown[0].sPrompt, HasSubstr("It has the key \"FINAL\" twice."));
  EXPECT_EQ(CostAndProfit(m_oWindow.Calculator().Set().ctlSellingCostsSection), sFigures);
  EXPECT_EQ(UpdateFileName(true), m_sOther);
}

TEST_F(ChoosingSchedules, TabReachesTheButtonBehindAllInputs) {
  for (const int nView : {kButtonWizard, kButtonCalculator}) {
    m_oWindow.ClickButton(nView);
    QWidget* const pButton =
        nView == kButtonWizard ? &ButtonOf(m_oWindow.Wizard()) : &ButtonOf(m_oWindow.Calculator());
    bool bReached = false;
    for (int i = 0; i < 100 && !bReached; ++i) {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
      bReached = QApplication::focusWidget() == pButton;
    }
    EXPECT_TRUE(bReached) << nView;
  }
}

}  // namespace
}  // namespace quillet
