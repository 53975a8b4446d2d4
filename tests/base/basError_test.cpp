#include "base/basError.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/version.h"
#include "support/Log.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

using ::testing::ElementsAre;

class Log : public ::testing::Test {
 protected:
  Log() {
    m_oHost.sProgramFolder = m_oFolder.sPath;
    g_bDebug = true;
  }
  ~Log() override { g_bDebug = false; }

  TemporaryFolder m_oFolder;
  ScopedHost m_oHost;
};

TEST_F(Log, IsSwitchedOnByTheWordsAnywhereInUpperCase) {
  for (const char* sOn : {"DEBUG=TRUE", "/XDEBUG=TRUEX", "A DEBUG=TRUE B"}) {
    ParseCommandLine(sOn);
    EXPECT_TRUE(g_bDebug) << sOn;
  }
  for (const char* sOff : {"", "debug=true", "DEBUG=FALSE", "DEBUG = TRUE"}) {
    g_bDebug = true;
    ParseCommandLine(sOff);
    EXPECT_FALSE(g_bDebug) << sOff;
  }
}

TEST_F(Log, WritesNothingWhileItIsOff) {
  g_bDebug = false;
  WriteLog("lost");
  EXPECT_TRUE(std::filesystem::is_empty(m_oFolder.sPath));
}

TEST_F(Log, AnEmptyFileGetsTheHeaderOnce) {
  WriteTestFile(m_oFolder / "QlDebug.log", "");
  WriteLog("Started app");
  WriteLog("DL's");
  EXPECT_THAT(
      LogComments(m_oFolder),
      ElementsAre("Quillet diagnostic log", "----------------------", "",
                  ::testing::MatchesRegex("When requested, please e-mail this file to [^ ]+@[^ ]+"),
                  std::string("Version: ") + kVersion, "", "Date       Time      Comment",
                  "Started app", "DL's"));
  EXPECT_TRUE(::testing::internal::RE::PartialMatch(
      ReadTestFile(m_oFolder / "QlDebug.log"),
      "\n[0-9]{4}-[01][0-9]-[0-3][0-9] [0-2][0-9]:[0-5][0-9]:[0-6][0-9]  Started app\n"));
}

TEST_F(Log, ALogThatExistsIsCarriedOn) {
  WriteTestFile(m_oFolder / "QlDebug.log", "older\n");
  WriteLog("newer");
  EXPECT_THAT(LogComments(m_oFolder), ElementsAre("older", "newer"));
}

TEST_F(Log, AFileThatCannotBeWrittenLosesTheEntryAndNothingElse) {
  std::filesystem::create_directory(m_oFolder / "QlDebug.log");
  EXPECT_NO_THROW(WriteLog("lost"));
  m_oHost.sProgramFolder = m_oFolder / "missing";
  EXPECT_NO_THROW(WriteLog("lost"));
  EXPECT_TRUE(m_oHost.aoShown.empty());
}

}  // namespace
}  // namespace quillet
