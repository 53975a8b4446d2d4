#include "platform/UserData.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>

#include "prices/clsPrices.h"
#include "support/OnlineTest.h"

namespace quillet {
namespace {

using UserData = OnlineTest;

#ifdef _WIN32
TEST_F(UserData, AFolderThatCanBeWrittenIsKept) {
  EXPECT_EQ(FolderForChanges(m_oFolder.sPath), m_oFolder.sPath);
  const std::string sOwn = FolderForChanges(m_oFolder / "missing");
  EXPECT_EQ(sOwn, std::string(std::getenv("LOCALAPPDATA")) + "\\Quillet");
}
#else
TEST_F(UserData, AFolderThatCanBeWrittenIsKept) {
  ::setenv("XDG_DATA_HOME", "/data", 1);
  EXPECT_EQ(FolderForChanges(m_oFolder.sPath), m_oFolder.sPath);
  const std::string sClosed = m_oFolder / "missing";
  EXPECT_EQ(FolderForChanges(sClosed), "/data/quillet");
  ::setenv("XDG_DATA_HOME", "relative", 1);
  ::setenv("HOME", "/home/ann", 1);
  EXPECT_EQ(FolderForChanges(sClosed), "/home/ann/.local/share/quillet");
  ::unsetenv("XDG_DATA_HOME");
  ::unsetenv("HOME");
  EXPECT_EQ(FolderForChanges(sClosed), sClosed);
}
#endif

TEST_F(UserData, AnOlderShippedScheduleNeverReplacesTheUsersCopy) {
  EXPECT_EQ(UpdateFileName(false), m_sLocal);
  m_oHost.sDataFolder = m_oFolder / "share\\quillet";
  const std::string sOwn = m_oFolder / ("share\\quillet\\" + m_sName);
  EXPECT_EQ(UpdateFileName(false), m_sLocal);  // nothing to copy: an error will name this one

  WriteTestFile(m_sLocal, "shipped");
  EXPECT_EQ(UpdateFileName(false), sOwn);
  EXPECT_EQ(ReadTestFile(sOwn), "shipped");

  const auto oShipped = std::filesystem::last_write_time(m_sLocal);
  WriteTestFile(sOwn, "fetched");
  for (const auto& [nSecondsLater, sExpected] : {std::pair{0, "fetched"}, {-1, "shipped"}}) {
    std::filesystem::last_write_time(sOwn, oShipped + std::chrono::seconds(nSecondsLater));
    (void)UpdateFileName(false);
    EXPECT_EQ(ReadTestFile(sOwn), sExpected) << nSecondsLater;
  }
}

TEST_F(UserData, ACopyThatIsNoUseStepsAsideForTheShippedSchedule) {
  m_oHost.sDataFolder = m_oFolder / "share";
  const std::string sOwn = m_oFolder / ("share\\" + m_sName);
  WriteTestFile(m_sLocal, "OpeningRanges,0\n");
  (void)UpdateFileName(false);
  const auto oLater = std::filesystem::last_write_time(m_sLocal) + std::chrono::seconds(1);
  for (const char* const sCopy :
       {"Final,1\nOpeningRanges,0\nfinal,2\n", "<html>", "LocalTax,0\n"}) {
    WriteTestFile(sOwn, sCopy);
    std::filesystem::last_write_time(sOwn, oLater);
    m_oHost.aoShown.clear();
    UsePrices(nullptr);
    EXPECT_EQ(Prices().Table().Size(), 1U);
    EXPECT_EQ(ReadTestFile(sOwn), "OpeningRanges,0\n");
    EXPECT_EQ(ReadTestFile(sOwn + ".bad"), sCopy);
    ASSERT_EQ(m_oHost.aoShown.size(), 1U);
    EXPECT_NE(m_oHost.aoShown[0].sPrompt.find(sOwn + ".bad"), std::string::npos);
  }
  UsePrices(nullptr);
}

TEST_F(UserData, WhereNoCopyCanBeMadeTheShippedScheduleIsUsed) {
  WriteTestFile(m_sLocal, "shipped");
  m_oHost.sDataFolder = m_sLocal + "/below a file";
  EXPECT_EQ(UpdateFileName(false), m_sLocal);
}

TEST_F(UserData, TheLogLiesBesideTheUsersCopyFromItsFirstLineOn) {
  m_oHost.sDataFolder = m_oFolder / "share\\quillet";
  WriteLog("Started app");
  EXPECT_NE(ReadTestFile(m_oFolder / "share\\quillet\\QlDebug.log").find("  Started app\n"),
            std::string::npos);
  EXPECT_EQ(ReadTestFile(m_oFolder / "QlDebug.log"), "\n");
}

}  // namespace
}  // namespace quillet
