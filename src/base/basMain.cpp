#include "base/basMain.h"

#include <cassert>

#include "base/basCommon.h"
#include "base/basError.h"
#include "base/clsRegistryAccess.h"
#include "base/conversions.h"
#include "base/failure.h"
#include "base/text.h"
#include "platform/Host.h"

namespace quillet {
namespace {

constexpr std::int32_t kDefaultSnapToGrid = 120;

Application* g_oApplication = nullptr;

template <typename Condition>
void PumpUntil(Condition&& bReady) {
  while (g_frmSplash && !bReady()) {
    TheHost().PumpEvents();
  }
}

bool MovieHasLoaded() {
  return g_frmSplash->LoadComplete();
}
bool MovieHasEnded() {
  return g_frmSplash->MovieComplete();
}

}  // namespace

std::int32_t g_lSnapToGrid = kDefaultSnapToGrid;
std::string g_sAboutText;
std::int32_t g_lActionFlags = 0;
std::string g_sActionMessage;
std::unique_ptr<SplashWindow> g_frmSplash;
std::unique_ptr<MainWindow> g_frmMain;
bool g_bMustClose = false;

void SetApplication(Application& oApplication) {
  g_oApplication = &oApplication;
}

void Main() {
  assert(g_oApplication != nullptr);
  g_bMustClose = false;
  ParseCommandLine(UpperCase(TheHost().CommandLine()));
  WriteLog("Started app");
  ManageSplash(true, true);
  WriteLog("Setting system defaults");
  SetSystemDefaults();
  WriteLog("DL's");
  PerformDownloads();
  WriteLog("Splash pause");
  WriteLog("Execute secondary special actions");
  ExecuteSpecialActions(1);
  WriteLog("Display main");
  g_frmMain = g_oApplication->CreateMainWindow();
  if (g_bMustClose) {
    g_frmMain.reset();
  } else {
    g_frmMain->Show();
  }
  ManageSplash(false, false);
  WriteLog("End startup");
}

void ManageSplash(bool bShow, const bool& bWait) {
  TheHost().PumpEvents();
  if (bShow) {
    if (!g_frmSplash) {
      g_frmSplash = g_oApplication->ShowSplash();
    }
    PumpUntil(MovieHasLoaded);
    if (bWait) {
      PumpUntil(MovieHasEnded);
    }
  } else if (g_frmSplash) {
    PumpUntil(MovieHasEnded);
    if (g_frmSplash) {  // a pumped event may have closed the program
      g_frmSplash->Hide();
      g_frmSplash.reset();
    }
  }
}

void SetSystemDefaults() {
  g_lSnapToGrid = kDefaultSnapToGrid;
  if (const auto fStep = ToDouble(Registry().GetOrCreate(settings::kSnapToGrid))) {
    IgnoreFailure([&] { g_lSnapToGrid = RoundToLong(*fStep); });
  }
  ChooseUpdateFile(Registry().Get(settings::kSchedule));
  g_sAboutText = Registry().Get(settings::kAbout);
}

void PerformDownloads() {
  try {
    if (!g_oApplication->OpenConnection()) {
      return;
    }
    g_oApplication->FetchActions();
    WriteLog("Performing primary special actions");
    ExecuteSpecialActions(0);
    g_oApplication->FetchUpdateFile();
    g_oApplication->FetchAboutText();
  } catch (const Failure&) {  // NOLINT(bugprone-empty-catch): a start goes on without its update
  }
  IgnoreFailure([] { g_oApplication->CloseConnection(); });
}

void ExecuteSpecialActions(std::int32_t nPhase) {
  if (nPhase == 1 && (g_lActionFlags & kActionMessage) != 0) {
    ShowMessage(g_sActionMessage, kMessageInformation, "Information");
  }
}

void CloseApplication() {
  g_bMustClose = true;
  ManageSplash(false, false);
  if (g_frmMain) {
    g_frmMain->Unload();
    g_frmMain.reset();
  }
}

void OpenDocument(const std::string& sTarget) {
  TheHost().OpenLink(sTarget);
}

std::string ExpandAboutText(const std::string& sText) {
  constexpr std::string_view kLineMark = "\\n";
  constexpr std::string_view kBreak = "<br>";
  std::string sExpanded = sText;
  for (std::size_t nAt = sExpanded.find(kLineMark); nAt != std::string::npos;
       nAt = sExpanded.find(kLineMark, nAt + kBreak.size())) {
    sExpanded.replace(nAt, kLineMark.size(), kBreak);
  }
  return sExpanded;
}

}  // namespace quillet
