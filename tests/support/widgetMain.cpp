// The main of the widget tests: offscreen, with a fixed locale and settings in memory. A warning
// from the toolkit fails the running test.
#include <QApplication>
#include <QLocale>

#include <gtest/gtest.h>

#include "base/basCommon.h"
#include "base/clsRegistryAccess.h"
#include "look/Theme.h"
#include "look/font.h"
#include "look/scale.h"
#include "support/Auctions.h"
#include "support/MemoryHive.h"
#include "support/Prices.h"
#include "support/TestHost.h"

namespace {

void FailOnWarning(QtMsgType eType, const QMessageLogContext& /*oContext*/, const QString& sText) {
  // The offscreen platform can't do everything, and on Windows it only has the program's fonts.
  const bool bOfScreen = sText.startsWith("This plugin does not support") ||
                         sText.startsWith("QFontDatabase: Cannot find font directory");
  if (eType >= QtWarningMsg && eType != QtInfoMsg && !bOfScreen) {
    ADD_FAILURE() << "The toolkit warns: " << sText.toStdString();
  }
}

/// Each test starts with the shipped schedule, fresh auctions, and no setting but the zoom.
class FreshStart : public ::testing::EmptyTestEventListener {
  void OnTestStart(const ::testing::TestInfo& /*oTest*/) override {
    quillet::SetZoom(1.0);
    QApplication::setFont(quillet::ThemeFont(quillet::kTextPoints));
    m_oHive.Clear();
    quillet::SetRegistryHive(m_oHive);
    quillet::ChooseUpdateFile("");
    quillet::UseShippedSchedule();
    quillet::Registry().Set(quillet::settings::kZoom, "100");
    quillet::ClearAuctions();
  }

  quillet::MemoryHive m_oHive;
};

}  // namespace

int main(int nArguments, char** asArguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QLocale::setDefault(QLocale::c());
  QApplication oApplication(nArguments, asArguments);
  ::testing::InitGoogleTest(&nArguments, asArguments);
  ::testing::UnitTest::GetInstance()->listeners().Append(new FreshStart);
  quillet::TestHost oHost;
  quillet::SetHost(oHost);
  qInstallMessageHandler(FailOnWarning);
  quillet::InstallTheme();
  return RUN_ALL_TESTS();
}
