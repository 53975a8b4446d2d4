#include "base/basError.h"

#include <filesystem>
#include <regex>

#include <gtest/gtest.h>

#include "base/version.h"
#include "support/Log.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

class Log : public ::testing::Test {
 protected:
  Log() {
    m_oHost.sProgramFolder = m_oFolder.sPath;
    g_bDebug = true;
  }
  ~Log() override { g_bDebug = false; }

  TemporaryFolder m_oFolder;
  ScopedHost m_oHost;
  std::string m_sFile = m_oFolder / "QlDebug.log";
};

TEST_F(Log, IsSwitchedOnByTheWordsAnywhereInUpperCase) {
  for (const auto& [sLine, bOn] : {std::pair{"A DEBUG=TRUE", true},
                                   {"/XDEBUG=TRUEX", true},
                                   {"debug=true", false},
                                   {"", false}}) {
    g_bDebug = !bOn;
    ParseCommandLine(sLine);
    EXPECT_EQ(g_bDebug, bOn) << sLine;
  }
  WriteLog("lost");
  EXPECT_FALSE(std::filesystem::exists(m_sFile));
}

TEST_F(Log, AnEmptyFileGetsTheHeaderOnceAndAnotherIsCarriedOn) {
  WriteTestFile(m_sFile, "");
  WriteLog("Started app");
  WriteLog("DL's");
  const std::string sTime = R"(\d{4}-[01]\d-[0-3]\d [0-2]\d:[0-5]\d:[0-6]\d  )";
  const std::string sVersion = std::regex_replace(kVersion, std::regex(R"(\.)"), R"(\.)");
  EXPECT_TRUE(std::regex_match(
      ReadTestFile(m_sFile),
      std::regex("Quillet diagnostic log\n-{22}\n\nWhen requested, please e-mail this file to "
                 "\\S+@\\S+\nVersion: " +
                 sVersion + "\n\nDate       Time      Comment\n" + sTime + "Started app\n" + sTime +
                 "DL's\n")))
      << ReadTestFile(m_sFile);
  WriteTestFile(m_sFile, "older\n");
  WriteLog("newer");
  EXPECT_EQ(LogComments(m_oFolder), (std::vector<std::string>{"older", "newer"}));
}

TEST_F(Log, AFileThatCannotBeWrittenLosesTheEntryAndNothingElse) {
  std::filesystem::create_directory(m_sFile);
  EXPECT_NO_THROW(WriteLog("lost"));
  EXPECT_TRUE(m_oHost.aoShown.empty());
}

}  // namespace
}  // namespace quillet
