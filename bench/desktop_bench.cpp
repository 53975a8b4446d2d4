// What a keystroke costs on the desktop, from the key to the repainted figures, and where the time
// goes, next to a key in a bare text box in the same run. Offscreen: pixels are drawn, not shown.
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <algorithm>
#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include "base/clsRegistryAccess.h"
#include "engine/clsCalculate.h"
#include "look/Theme.h"
#include "prices/clsPrices.h"
#include "sections/ctlNumericText.h"
#include "shell/frmMain.h"
#include "support/MemoryHive.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

/// Counts how often a widget is painted.
class PaintCount : public QObject {
 public:
  explicit PaintCount(QWidget& oWidget) { oWidget.installEventFilter(this); }
  bool eventFilter(QObject* /*pWatched*/, QEvent* pEvent) override {
    nPaints += pEvent->type() == QEvent::Paint ? 1 : 0;
    return false;
  }
  std::int64_t nPaints = 0;
};

void PressKey(QWidget& oWidget, int nKey, const QString& sText = {}) {
  QKeyEvent oPress(QEvent::KeyPress, nKey, Qt::NoModifier, sText);
  QApplication::sendEvent(&oWidget, &oPress);
  QKeyEvent oRelease(QEvent::KeyRelease, nKey, Qt::NoModifier, sText);
  QApplication::sendEvent(&oWidget, &oRelease);
}

void PaintWhatChanged() {
  QApplication::sendPostedEvents();
  QApplication::processEvents();
}

/// Runs a step as often as the benchmark wants. Reports its median and 99th percentile in µs, next
/// to the mean.
template <typename Step>
void Measure(benchmark::State& oState, Step&& fnStep) {
  std::vector<double> afTimes;
  for (auto _ : oState) {
    const auto tStart = std::chrono::steady_clock::now();
    fnStep();
    const std::chrono::duration<double, std::micro> tTaken =
        std::chrono::steady_clock::now() - tStart;
    afTimes.push_back(tTaken.count());
  }
  std::sort(afTimes.begin(), afTimes.end());
  oState.counters["median_us"] = afTimes[afTimes.size() / 2];
  oState.counters["p99_us"] = afTimes[afTimes.size() * 99 / 100];
}

/// The main window with a busy auction, every row of all five sections on view.
class Desktop {
 public:
  Desktop() {
    Registry().Set(settings::kStartMode, "1");
    Registry().Set(settings::kZoom, "100");
    WorkingAuction().SetDirty(false);  // or the start asks about the last run
    m_oWindow.Show();
    std::string sText =
        "[TYPE]000|False|False|3|0|0|0|False[TYPE][OUTLAY]320.5|99.99|0|880|3|True[OUTLAY]"
        "[FEATURES]308159|8[FEATURES][PAYPAL]True|2|3|True[PAYPAL]"
        "[POSTAGE]True|1.25|3|12.75|0|True|True|True|1.5|True[POSTAGE]";
    WorkingAuction().Serialize(sText, false);
    m_oWindow.resize(1400, 1000);
    m_oWindow.Calculator().RefreshSums(true);
    m_oWindow.activateWindow();
    Box().setFocus();
    PaintWhatChanged();
  }

  [[nodiscard]] ctlCalculator& View() { return m_oWindow.Calculator(); }
  [[nodiscard]] frmMain& Window() { return m_oWindow; }
  [[nodiscard]] QLineEdit& Box() {
    return *dynamic_cast<ctlNumericText&>(*View().Set().ctlOutlaySection.Find("txtOutlay"))
                .TextBox();
  }
  /// Steps up and down in turn, at the same digit of the number.
  void Key() {
    m_bUp = !m_bUp;
    Box().setCursorPosition(2);
    PressKey(Box(), m_bUp ? Qt::Key_Up : Qt::Key_Down);
  }

 private:
  frmMain m_oWindow;
  bool m_bUp = false;
};

void KeyInBareTextBox(benchmark::State& oState) {
  QWidget oWindow;
  oWindow.resize(1400, 1000);
  QLineEdit oBox(&oWindow);
  oWindow.show();
  oBox.setFocus();
  PaintWhatChanged();
  PaintCount oPaints(oBox);
  bool bTyped = false;
  Measure(oState, [&] {
    bTyped = !bTyped;
    PressKey(oBox, bTyped ? Qt::Key_5 : Qt::Key_Backspace, bTyped ? "5" : "");
    PaintWhatChanged();
  });
  if (oPaints.nPaints < static_cast<std::int64_t>(oState.iterations())) {
    oState.SkipWithError("a key wasn't painted");
  }
}

void KeyToRepaintedFigures(benchmark::State& oState) {
  Desktop oDesktop;
  PaintCount oPaints(oDesktop.View().Set().ctlSellingCostsSection.The("lblProfitGrandTotal"));
  Measure(oState, [&] {
    oDesktop.Key();
    PaintWhatChanged();
  });
  if (oPaints.nPaints < static_cast<std::int64_t>(oState.iterations())) {
    oState.SkipWithError("a figure wasn't repainted");
  }
  rusage oUsage{};
  getrusage(RUSAGE_SELF, &oUsage);
  oState.counters["peak_MB"] = static_cast<double>(oUsage.ru_maxrss) / 1024;
}

void KeyWithoutPainting(benchmark::State& oState) {
  Desktop oDesktop;
  oDesktop.Window().setUpdatesEnabled(false);
  Measure(oState, [&] { oDesktop.Key(); });
}

void RefreshAllSections(benchmark::State& oState) {
  Desktop oDesktop;
  Measure(oState, [&] { oDesktop.View().RefreshSums(true); });
}

void CalculateAlone(benchmark::State& oState) {
  Desktop oDesktop;
  Measure(oState, [&] { WorkingAuction().DoCalc(); });
}

void PaintWholeWindow(benchmark::State& oState) {
  Desktop oDesktop;
  Measure(oState, [&] { benchmark::DoNotOptimize(oDesktop.Window().grab()); });
}

BENCHMARK(KeyInBareTextBox)->Unit(benchmark::kMicrosecond);
BENCHMARK(KeyToRepaintedFigures)->Unit(benchmark::kMicrosecond);
BENCHMARK(KeyWithoutPainting)->Unit(benchmark::kMicrosecond);
BENCHMARK(RefreshAllSections)->Unit(benchmark::kMicrosecond);
BENCHMARK(CalculateAlone)->Unit(benchmark::kMicrosecond);
BENCHMARK(PaintWholeWindow)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quillet

int main(int nArguments, char** asArguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QLocale::setDefault(QLocale::c());
  const QApplication oApplication(nArguments, asArguments);
  quillet::TestHost oHost;
  quillet::SetHost(oHost);
  quillet::MemoryHive oHive;
  quillet::SetRegistryHive(oHive);
  quillet::InstallTheme();
  auto oPrices = std::make_unique<quillet::clsPrices>();
  oPrices->LoadFile(std::string(QUILLET_SOURCE_DIR) + "/data/UpdateUS_v0101.dat");
  quillet::UsePrices(std::move(oPrices));
  benchmark::Initialize(&nArguments, asArguments);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
