// The start, driven by a recording application. Calls to it go into the diagnostic log, marked
// with a "*", so that one list shows the order of calls and log lines.
#include "base/basMain.h"

#include <functional>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/basCommon.h"
#include "base/basError.h"
#include "base/clsRegistryAccess.h"
#include "base/failure.h"
#include "prices/clsPrices.h"
#include "support/Log.h"
#include "support/MemoryHive.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

using ::testing::ElementsAre;

/// Its movie loads and ends a few pumps after it is shown.
class RecordedSplash : public SplashWindow {
 public:
  explicit RecordedSplash(const TestHost& oHost) : m_oHost(oHost) {}
  ~RecordedSplash() override { WriteLog("* splash unloaded"); }
  bool LoadComplete() const override { return m_oHost.nPumped >= m_nFirst + 3; }
  bool MovieComplete() const override { return m_oHost.nPumped >= m_nFirst + 10; }
  void Hide() override { WriteLog("* splash hidden"); }

 private:
  const TestHost& m_oHost;
  int m_nFirst = m_oHost.nPumped;
};

class RecordedMain : public MainWindow {
 public:
  explicit RecordedMain(std::function<void()> fnOnShow) : m_fnOnShow(std::move(fnOnShow)) {}
  void Show() override {
    WriteLog(g_frmMain.get() == this ? "* main shown" : "* main shown before it is known");
    const auto fnOnShow = m_fnOnShow;  // the call may destroy this object
    fnOnShow();
  }
  void Unload() override { WriteLog("* main unloaded"); }

 private:
  std::function<void()> m_fnOnShow;
};

/// Host and application in one, whose calls can be made to fail.
class Start : public ::testing::Test, public ScopedHost, public Application {
 protected:
  Start() {
    sProgramFolder = m_oFolder.sPath;
    sCommandLine = "/x debug=True";
    SetApplication(*this);
    SetRegistryHive(m_oHive);
    WriteTestFile(m_oFolder / "QlDebug.log", "\n");  // so the log gets no header
  }
  ~Start() override {
    g_bDebug = false;
    g_frmMain.reset();
    g_frmSplash.reset();
    UsePrices(nullptr);
  }

  std::vector<std::string> Run() {
    Main();
    std::vector<std::string> asComments = LogComments(m_oFolder);
    asComments.erase(asComments.begin());
    return asComments;
  }

  Answer ShowMessage(const std::string& sPrompt, int nButtons, const std::string& sTitle) override {
    WriteLog("* message");
    m_nTicksAtMessage = nTicks;
    return ScopedHost::ShowMessage(sPrompt, nButtons, sTitle);
  }
  std::unique_ptr<SplashWindow> ShowSplash() override {
    Step("splash");
    return std::make_unique<RecordedSplash>(*this);
  }
  bool OpenConnection() override { return Step("open connection"); }
  void FetchActions() override {
    g_lActionFlags = m_lActions;
    g_sActionMessage = "The servers rest on Sunday.";
    Step("actions");
  }
  void FetchUpdateFile() override { Step("update file"); }
  void FetchAboutText() override { Step("about text"); }
  void CloseConnection() override { Step("close connection"); }
  std::unique_ptr<MainWindow> CreateMainWindow() override {
    Step(nPumped >= 10 ? "create main" : "create main before the movie's end");
    m_fnOnCreate();
    return std::make_unique<RecordedMain>(m_fnOnShow);
  }
  bool Step(const std::string& sStep) const {
    WriteLog("* " + sStep);
    return m_asFailing.contains(sStep) ? throw Failure(FailureNumber::Internet, "cut off") : true;
  }

  TemporaryFolder m_oFolder;
  MemoryHive m_oHive;
  std::int32_t m_lActions = 0;
  std::int64_t m_nTicksAtMessage = 0;
  std::set<std::string> m_asFailing;
  std::function<void()> m_fnOnCreate = [] {};
  std::function<void()> m_fnOnShow = [] {};
};

TEST_F(Start, RunsItsStepsInOrderAndKeepsTheSplashUntilTheMainWindowStands) {
  m_lActions = kActionMessage;
  EXPECT_THAT(
      Run(),
      ElementsAre("Started app", "* splash", "Setting system defaults", "DL's", "* open connection",
                  "* actions", "Performing primary special actions", "* update file",
                  "* about text", "* close connection", "Splash pause",
                  "Execute secondary special actions", "* message", "Display main", "* create main",
                  "* main shown", "* splash hidden", "* splash unloaded", "End startup"));
  EXPECT_NE(g_frmMain, nullptr);
  EXPECT_EQ(g_frmSplash, nullptr);
  EXPECT_THAT(aoShown, ElementsAre(ShownMessage{"The servers rest on Sunday.", 64, "Information"}));
}

TEST_F(Start, AFailedDownloadGoesStraightToTheClosingOfTheConnection) {
  m_asFailing = {"actions", "close connection"};
  const std::vector<std::string> asRun = Run();
  const auto iActions = std::find(asRun.begin(), asRun.end(), "* actions");
  ASSERT_NE(iActions, asRun.end());
  EXPECT_EQ(iActions[1], "* close connection");
  EXPECT_EQ(iActions[2], "Splash pause");
}

TEST_F(Start, AMissingPriceFileIsTriedFiveTimesThenClosesTheProgramAndMainRunsToItsEnd) {
  UsePrices(nullptr);
  std::int64_t nTicksAtFirstLook = 0;
  m_fnOnShow = [&] {
    nTicksAtFirstLook = nTicks;
    (void)Prices();
  };
  const std::vector<std::string> asRun = Run();
  EXPECT_THAT(std::vector(asRun.end() - 6, asRun.end()),
              ElementsAre("* main shown", "* message", "* splash hidden", "* splash unloaded",
                          "* main unloaded", "End startup"));
  EXPECT_THAT(aoShown,
              ElementsAre(ShownMessage{"Error opening file " + (m_oFolder / UpdateFileName(true)) +
                                           "\n\n" + EditionName() + " must close.",
                                       16, EditionName()}));
  EXPECT_EQ(m_nTicksAtMessage - nTicksAtFirstLook, 5 * 100);
  EXPECT_EQ(g_frmMain, nullptr);
  (void)Prices();
  EXPECT_EQ(aoShown.size(), 1U) << "not tried again";
}

TEST_F(Start, AMainWindowThatAsksForMissingPricesWhileItIsMadeNeverShows) {
  UsePrices(nullptr);
  m_fnOnCreate = [] { (void)Prices(); };
  const std::vector<std::string> asRun = Run();
  EXPECT_THAT(std::vector(asRun.end() - 5, asRun.end()),
              ElementsAre("* create main", "* message", "* splash hidden", "* splash unloaded",
                          "End startup"));
  EXPECT_EQ(g_frmMain, nullptr);
  EXPECT_TRUE(g_bMustClose);
}

TEST_F(Start, ClosingTheProgramDuringTheSplashsWaitIsSafe) {
  ManageSplash(true, false);
  EXPECT_NE(g_frmSplash, nullptr);
  fnOnPump = [this, n = 0]() mutable {
    if (++n == 3) {
      fnOnPump = nullptr;
      nPumped += 100;  // the movie's end
      CloseApplication();
    }
  };
  ManageSplash(false, true);
  EXPECT_EQ(g_frmSplash, nullptr);
}

TEST_F(Start, TheGridStepIsAWholeNumberOr120) {
  for (const auto& [sStored, nStep] :
       {std::pair{"60", 60}, {"abc", 120}, {"3.5", 4}, {"1E10", 120}}) {
    Registry().Set(settings::kSnapToGrid, sStored);
    SetSystemDefaults();
    EXPECT_EQ(g_lSnapToGrid, nStep) << sStored;
    EXPECT_EQ(Registry().Get(settings::kSnapToGrid), sStored);
  }
  m_oHive.Clear();
  SetSystemDefaults();
  EXPECT_EQ(m_oHive.asValues.size(), 1U) << "the grid step is created, the about text isn't";
  m_oHive.asValues[{HiveRoot::Machine, RegistryRoot() + "\\Config", "About"}] = "Hello";
  SetSystemDefaults();
  EXPECT_EQ(g_sAboutText, "Hello");
}

}  // namespace
}  // namespace quillet
