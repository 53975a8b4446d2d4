// The downloads with the platform's client: what its ends are for the update.
#include <chrono>
#include <csignal>
#include <filesystem>

#include <sys/resource.h>

#include "base/failure.h"
#include "online/clsHttp.h"
#include "online/downloads.h"
#include "platform/posix/CurlInternet.h"
#include "support/OnlineTest.h"
#include "support/UpdateServers.h"

namespace quillet {
namespace {

using namespace std::chrono_literals;

class Update : public OnlineTest {
 protected:
  Update() {
    for (const char* const sName : {"http_proxy", "ftp_proxy", "all_proxy", "ALL_PROXY"}) {
      ::unsetenv(sName);
    }
    WriteTestFile(m_sLocal, "old");
  }

  /// What the log tells of the update, from servers of those names.
  std::string Fetch(const std::string& sWebServer, const std::string& sFtpServer) {
    PutSetting(settings::kWebServer, sWebServer);
    PutSetting(settings::kFtpServer, sFtpServer);
    PutSetting(settings::kFtpSkipFlag, "");
    CurlInternet oInternet({.nLargest = 1'000'000});
    Downloads oDownloads(oInternet, [] { return 46340.5; });  // 2026-11-14 12:00
    EXPECT_TRUE(oDownloads.OpenConnection());
    oDownloads.FetchActions();
    EXPECT_EQ(g_lActionFlags, 0);
    (void)Story();
    oDownloads.FetchUpdateFile();
    return Story();
  }

  void ExpectTheOldFeesAreKeptForTheDay() {
    EXPECT_EQ(ReadTestFile(m_sLocal), "old");
    EXPECT_EQ(SkipMark(), "46340.5");
    for (const auto& oEntry : std::filesystem::directory_iterator(m_oFolder.sPath)) {
      const std::string sFile = oEntry.path().filename();
      EXPECT_TRUE(sFile == m_sName || sFile == "QlDebug.log") << sFile << " lies about";
    }
  }
};

TEST_F(Update, ServersWithoutANameOrOutOfReachAreGivenUpAtOnce) {
  for (const std::string& sServer : {std::string(), "127.0.0.1:" + std::to_string(FreePort())}) {
    SCOPED_TRACE("server " + sServer);
    const auto oStart = std::chrono::steady_clock::now();
    EXPECT_EQ(Fetch(sServer, sServer),
              "DL - Update file 1|2|3\nDL - Update files 5\nStart FTP 1|2|3\n"
              "Getting error info 1|6|5 - okay (no fail point)\nStart FTP 4\n"
              "DL - Update file 10 - fail");
    EXPECT_LT(std::chrono::steady_clock::now() - oStart, 1s);
    ExpectTheOldFeesAreKeptForTheDay();
  }
}

TEST_F(Update, AFileThatFindsNoRoomIsDropped) {
  const UpdateServers oServers;
  oServers.PutFile(m_sName, std::string(200000, 'x'));
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit oBefore{};
  ::getrlimit(RLIMIT_FSIZE, &oBefore);
  const rlimit oSmall{100000, oBefore.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &oSmall);
  const std::string sStory = Fetch(oServers.WebServer(), oServers.FtpServer());
  ::setrlimit(RLIMIT_FSIZE, &oBefore);
  std::signal(SIGXFSZ, SIG_DFL);
  EXPECT_TRUE(
      sStory.ends_with("Proc FTP 7\nDeleting file 1|2 (No such file or directory)|"
                       "3 - Success\nDL - Update file 10 - fail"))
      << sStory;
  EXPECT_GT(m_oHost.nPumped, 0) << "the window stays alive";
  ExpectTheOldFeesAreKeptForTheDay();
}

TEST_F(Update, AnFtpSessionGoesIntoFoldersAndTellsWhyItCanNot) {
  const UpdateServers oServers;
  oServers.PutFile("fees of 2026/%41 ü.dat", "deep");
  CurlInternet oInternet({.nLargest = 1'000'000});
  clsHttp oHttp(oInternet);
  ASSERT_TRUE(oHttp.OpenConnection());
  oHttp.StartFtpSession(oServers.FtpServer(), "quillet", "rmk3816", "/fees of 2026");
  EXPECT_TRUE(oHttp.GetFile(m_sLocal, "%41 ü.dat", true));
  EXPECT_EQ(ReadTestFile(m_sLocal), "deep");
  EXPECT_TRUE(oHttp.FilesMatch(m_sLocal, "%41 ü.dat"));
  EXPECT_THROW(oHttp.StartFtpSession(oServers.FtpServer(), "quillet", "rmk3816", "2025"), Failure);
  EXPECT_EQ(oHttp.LastError(), "Server response: 550 Failed to change directory.");
  EXPECT_EQ(oHttp.GetHeaderInfo("no session"), "");
  EXPECT_THROW(oHttp.GetFile(m_sLocal, m_sName, true), Failure);
}

}  // namespace
}  // namespace quillet
