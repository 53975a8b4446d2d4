// One walk over all windows: no caption is cut off at any zoom, and every input has a name.
#include <QAccessible>
#include <QTest>

#include <gtest/gtest.h>

#include "look/movies/MovieButton.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "support/Captions.h"
#include "support/PanelScript.h"
#include "support/Prices.h"

namespace quillet {
namespace {

/// The visible inputs that have no name for a screen reader.
std::string UnnamedIn(const QWidget& oWindow) {
  std::string sUnnamed;
  for (QWidget* const pWidget : oWindow.findChildren<QWidget*>()) {
    if (pWidget->isVisible() && (pWidget->focusPolicy() & Qt::TabFocus) != 0) {
      const QString sName = QAccessible::queryAccessibleInterface(pWidget)->text(QAccessible::Name);
      sUnnamed += sName.isEmpty() || sName == "Show"
                      ? pWidget->parent()->objectName().toStdString() + " " +
                            pWidget->objectName().toStdString() + "\n"
                      : "";
    }
  }
  return sUnnamed;
}

TEST(Windows, NoCaptionIsClippedAtAnyZoomAndEveryInputHasAName) {
  UseScheduleOfToday();  // shows all sections
  std::string sAuction =
      "[TYPE]000|False|False|3|0|0|0|False[TYPE][OUTLAY]1000000|0|0|100|1|False[OUTLAY]"
      "[FEATURES]1048575|0[FEATURES][PAYPAL]True|0|1|False[PAYPAL]"
      "[POSTAGE]True|1|2|50|3|False|False|False|0|False[POSTAGE]";
  frmMain oWindow;
  oWindow.Show();
  for (const double fZoom : kZooms) {
    oWindow.SetZoomPercent(static_cast<int>(fZoom * 100));
    WorkingAuction().Serialize(sAuction, false);
    for (const int nView : {kButtonConfig, kButtonCalculator, kButtonWizard}) {
      oWindow.ClickButton(nView);
      ShowSectionTotal(dynamic_cast<Label&>(
                           ControlOf(oWindow.Calculator().Set().ctlAuctionTypeSection, "lblTotal")),
                       9999.99F);
      for (int nPage = 0; nPage < (nView == kButtonWizard ? 6 : 1); ++nPage) {
        if (nPage > 0) {
          QTest::mouseClick(oWindow.Wizard().findChild<QWidget*>("imgNext"), Qt::LeftButton);
        }
        EXPECT_EQ(ClippedIn(oWindow) + UnnamedIn(oWindow), "") << nView << ", page " << nPage;
      }
    }
    frmAbout oAbout(&oWindow);
    oAbout.show();
    EXPECT_EQ(UnnamedIn(oAbout), "");
    for (const MovieButton* const pButton : oAbout.findChildren<MovieButton*>()) {
      EXPECT_LE(pButton->WidthOfWords(), pButton->width()) << pButton->text().toStdString();
    }
    oAbout.ShowPage(1);
    oAbout.findChild<QWidget*>("imgApply")->show();
    EXPECT_EQ(ClippedIn(oAbout) + UnnamedIn(oAbout), "");
  }
}

}  // namespace
}  // namespace quillet
