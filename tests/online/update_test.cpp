// The whole pass of downloads against real servers. Each download ends in one of the ways here.
#include <csignal>
#include <filesystem>

#include <sys/resource.h>
#include <unistd.h>

#include "base/Application.h"
#include "base/failure.h"
#include "online/clsHttp.h"
#include "online/downloads.h"
#include "platform/posix/CurlInternet.h"
#include "support/OnlineTest.h"
#include "support/UpdateServers.h"

namespace quillet {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;

constexpr double kNoon = 46340.5;
constexpr InternetLimits kShortLimits{300ms, 300ms, 5s};
const std::string kMark = "46340.5";

const std::string kSkipDate = "\nFound skip date of 12:00:00 PM Saturday, November 14, 2026";
const std::string kUpTo5 = "DL - Update file 1|2|3\nDL - Update files 5";
const std::string kLoggedIn = kUpTo5 + "\nStart FTP 1|2|5|9 - okay\nDL - Update file 6";
const std::string kNoLogin = kUpTo5 + "\nStart FTP 1|2|3\nGetting error info 1|";
const std::string kFailed = "\nDL - Update file 10 - fail";
const std::string kFetching =
    "\nMatching files 1|3|4|5|6|7 - okay\nDL - Update file 7\nProc FTP 1|2|4\n"
    "Deleting file 1|2 (No such file or directory)|3 - Success\nProc FTP 5";
const std::string kPlainError = "6|5 - okay (no fail point)";
const std::string kServersError = "2|3|4|5|5 - okay (no fail point)";
const std::string kFetched = kLoggedIn + kFetching +
                             "\nDeleting file 1|3 - Success\nProc FTP 8 - okay\n"
                             "DL - Update file 8|9 - okay" +
                             kSkipDate;
const std::string kBrokenOff = kLoggedIn + kFetching + "|6 - fail\nGetting error info 1|" +
                               kPlainError +
                               "\nProc FTP 7\nDeleting file 1|2 (No such file or directory)|"
                               "3 - Success" +
                               kFailed;
const std::string kUnreachable = kNoLogin + kPlainError + "\nStart FTP 4" + kFailed;

class OnlineApplication : public Application {
 public:
  explicit OnlineApplication(InternetLimits oLimits)
      : m_oInternet(oLimits), m_oDownloads(m_oInternet, [] { return kNoon; }) {}
  std::unique_ptr<SplashWindow> ShowSplash() override { return nullptr; }
  bool OpenConnection() override { return m_oDownloads.OpenConnection(); }
  void FetchActions() override { m_oDownloads.FetchActions(); }
  void FetchUpdateFile() override { m_oDownloads.FetchUpdateFile(); }
  void FetchAboutText() override { m_oDownloads.FetchAboutText(); }
  void CloseConnection() override { m_oDownloads.CloseConnection(); }
  std::unique_ptr<MainWindow> CreateMainWindow() override { return nullptr; }

 private:
  CurlInternet m_oInternet;
  Downloads m_oDownloads;
};

class Update : public OnlineTest {
 protected:
  static void SetUpTestSuite() { g_oServers = std::make_unique<UpdateServers>(); }
  static void TearDownTestSuite() { g_oServers.reset(); }

  Update() {
    for (const char* const sName : {"http_proxy", "ftp_proxy", "all_proxy", "ALL_PROXY"}) {
      ::unsetenv(sName);
    }
    Use(*g_oServers);
    g_oServers->PutPage("getAction.asp", "0,nothing");
    g_oServers->PutFile(m_sName, "new fees");
    WriteTestFile(m_sLocal, "old");
  }

  void Use(const UpdateServers& oServers) {
    PutSetting(settings::kWebServer, oServers.WebServer());
    PutSetting(settings::kFtpServer, oServers.FtpServer());
  }

  void Pass(InternetLimits oLimits = {}) {
    OnlineApplication oApplication(oLimits);
    SetApplication(oApplication);
    PerformDownloads();
    m_sStory = Story();
  }

  [[nodiscard]] std::string StoryBetween(const std::string& sFrom, const std::string& sTo) const {
    const std::size_t nFrom = m_sStory.find(sFrom) + sFrom.size();
    return m_sStory.substr(nFrom, m_sStory.find(sTo, nFrom) - nFrom);
  }

  /// What holds after each pass: the log's words on the schedule, the schedule, the mark, and that
  /// nothing else lies about.
  void ExpectUpdate(const std::string& sStory, const std::string& sFees, const std::string& sMark) {
    EXPECT_EQ(StoryBetween("Performing primary special actions\n", "\nDL - Scrolling message 1"),
              sStory);
    EXPECT_TRUE(ReadTestFile(m_sLocal) == sFees) << ReadTestFile(m_sLocal).size();
    EXPECT_EQ(SkipMark(), sMark);
    for (const auto& oEntry : std::filesystem::directory_iterator(m_oFolder.sPath)) {
      const std::string sFile = oEntry.path().filename();
      EXPECT_TRUE(sFile == m_sName || sFile == "QlDebug.log") << sFile;
    }
  }

  /// Kills the servers some time after the log has come to a line.
  void KillAfter(const std::string& sLine, UpdateServers& oServers) {
    m_oHost.fnOnPump = [this, sLine, &oServers, nPumps = 0]() mutable {
      constexpr int kPumps = 20;  // at least ten milliseconds each
      if (nPumps != 0 || LogComments(m_oFolder).back() == sLine) {
        ++nPumps;
      }
      if (nPumps == kPumps) {
        oServers.Kill();
      }
    };
  }

  static std::unique_ptr<UpdateServers> g_oServers;
  std::string m_sStory;
};

std::unique_ptr<UpdateServers> Update::g_oServers;

TEST_F(Update, TheFirstFetchTellsItsWholeStory) {
  std::filesystem::remove(m_sLocal);
  Pass();
  ExpectUpdate(kFetched, "new fees", "");
  const std::string sCloseHttp = "\nClosing Http Session 1|2|3|4 - okay (no fail point)";
  EXPECT_EQ(m_sStory,
            "Open internet connection 1|2|3|4|5|9 - okay\nDL - Special actions 1\n"
            "Start HTTP 1|2|5|6 - okay\nDL - Special actions 2\n"
            "Getting header info 1|2|3|4|5|6|7|8|5|6|7|8|9 - okay (no fail point)\n"
            "DL - Special actions 3|4|5|6 - okay" +
                sCloseHttp + "\nPerforming primary special actions\n" + kFetched +
                "\nDL - Scrolling message 1|2|8 - okay\n"
                "Closing Http Session 1|4 - okay (no fail point)|1|4 - okay (no fail point)\n"
                "Closing Internet Session 1|2|3|4 - okay (no fail point)");
}

TEST_F(Update, FilesOfOneSizeAreLeftAlone) {
  WriteTestFile(m_sLocal, "old fees");
  Pass();
  ExpectUpdate(
      kLoggedIn + "\nMatching files 1|3|4|5|6|7 - okay\nDL - Update file 9 - okay" + kSkipDate,
      "old fees", "");
}

TEST_F(Update, AFileOfAnotherSizeIsFetchedByteForByte) {
  std::string sFees = "a\r\nb\n\r\0\xFF"s;
  sFees.resize(300000, 'x');
  g_oServers->PutFile(m_sName, sFees);
  Pass();
  ExpectUpdate(kFetched, sFees, "");
}

TEST_F(Update, AMissingRemoteFileFails) {
  std::filesystem::remove(m_sLocal);
  g_oServers->PutFile(m_sName, "");
  Pass();
  const std::string sEmpty = kLoggedIn + "\nMatching files 1|3|4|5|8 - fail|9" + kFailed;
  ExpectUpdate(sEmpty, "", kMark);
  PutSetting(settings::kFtpSkipFlag, "");
  g_oServers->RemoveFile(m_sName);
  Pass();
  ExpectUpdate(sEmpty, "", kMark);
}

TEST_F(Update, AWrongPasswordFailsWithTheServersWords) {
  const UpdateServers oServers("another");
  Use(oServers);
  Pass();
  ExpectUpdate(kNoLogin + kServersError + "\nStart FTP 4" + kFailed, "old", kMark);
}

TEST_F(Update, ARefusedConnectionFailsAndTheNextStartOfTheDayLeavesTheServerAlone) {
  PutSetting(settings::kWebServer, "127.0.0.1:" + std::to_string(FreePort()));
  PutSetting(settings::kFtpServer, "127.0.0.1:" + std::to_string(FreePort()));
  Pass();
  ExpectUpdate(kUnreachable, "old", kMark);
  EXPECT_EQ(StoryBetween("DL - Special actions 2\n", "\nClosing"),
            "Getting header info 1|2|3|4|5|6|7|8|9 - okay (no fail point)\n"
            "DL - Special actions 3|6 - okay");
  Use(*g_oServers);
  Pass();
  ExpectUpdate("DL - Update file 1|2|3" + kSkipDate + "\nDL - Update file 4 - early exit", "old",
               kMark);
}

TEST_F(Update, WithoutNamesOfServersThePassFailsAtOnce) {
  PutSetting(settings::kWebServer, "");
  PutSetting(settings::kFtpServer, "");
  const auto oStart = std::chrono::steady_clock::now();
  Pass();
  EXPECT_LT(std::chrono::steady_clock::now() - oStart, 1s);
  ExpectUpdate(kUnreachable, "old", kMark);
  EXPECT_EQ(StoryBetween("DL - Special actions ", "\n"), "1");
  EXPECT_NE(m_sStory.find("\nDL - Special actions 3|6 - okay"), std::string::npos);
}

TEST_F(Update, SilentServersAreGivenUpWhileTheWindowStaysAlive) {
  const SilentServer oSilent;
  PutSetting(settings::kWebServer, oSilent.Name());
  PutSetting(settings::kFtpServer, oSilent.Name());
  const auto oStart = std::chrono::steady_clock::now();
  Pass(kShortLimits);
  EXPECT_LT(std::chrono::steady_clock::now() - oStart, 3s);
  EXPECT_GT(m_oHost.nPumped, 20);
  ExpectUpdate(kUnreachable, "old", kMark);
  EXPECT_NE(m_sStory.find("\nDL - Special actions 3|6 - okay"), std::string::npos);
}

TEST_F(Update, AFileCutOffOnItsWayIsDropped) {
  UpdateServers oServers("rmk3816", "", "anon_max_rate=100000\n");
  oServers.PutPage("getAction.asp", "0,nothing");
  oServers.PutFile(m_sName, std::string(2000000, 'x'));
  Use(oServers);
  KillAfter("Deleting file 3 - Success", oServers);
  Pass();
  ExpectUpdate(kBrokenOff, "old", kMark);
}

TEST_F(Update, AnAnswerCutOffOnItsWayCountsAsNone) {
  UpdateServers oServers("rmk3816", "limit_rate 2k;\n");
  oServers.PutPage("getAction.asp", "2," + std::string(20000, 'x'));
  Use(oServers);
  KillAfter("Getting header info 2", oServers);
  Pass();
  EXPECT_EQ(g_lActionFlags, 0);
  EXPECT_EQ(g_sActionMessage, "");
  ExpectUpdate(kUnreachable, "old", kMark);
}

TEST_F(Update, TheAnswerSteersThePass) {
  struct Row {
    std::string sAnswer;
    std::int32_t lFlags;
    std::string sMessage;
    bool bFetched;
    std::string sAbout;
  };
  const Row aoRows[] = {{"2,Please update", 2, "Please update", true, "Welcome"},
                        {"4", 4, "", false, "Welcome"},
                        {"8", 8, "", true, "Fees of today"},
                        {"10,text\n", 10, "text", true, "Fees of today"},
                        {"12,x", 12, "x", false, "Fees of today"},
                        {"\x89PNG\r\n\x1A\n\0\0,2"s, 0, "", true, "Welcome"},
                        {"2," + std::string((8U << 20U) - 1, 'x'), 0, "", true, "Welcome"},
                        {"", 0, "", true, "Welcome"}};
  g_oServers->PutPage("getAbout.asp", "Fees of today");
  for (const Row& oRow : aoRows) {
    SCOPED_TRACE(oRow.sAnswer.substr(0, 20));
    g_lActionFlags = 0;
    g_sActionMessage.clear();
    g_sAboutText = "Welcome";
    WriteTestFile(m_sLocal, "old");
    g_oServers->PutPage("getAction.asp", oRow.sAnswer);
    Pass();
    EXPECT_EQ(g_lActionFlags, oRow.lFlags);
    EXPECT_EQ(g_sActionMessage, oRow.sMessage);
    EXPECT_EQ(g_sAboutText, oRow.sAbout);
    ExpectUpdate(oRow.bFetched ? kFetched : "DL - Update file 1",
                 oRow.bFetched ? "new fees" : "old", "");
  }
}

TEST_F(Update, AFileThatFindsNoRoomIsDropped) {
  g_oServers->PutFile(m_sName, std::string(200000, 'x'));
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit oBefore{};
  ::getrlimit(RLIMIT_FSIZE, &oBefore);
  const rlimit oSmall{100000, oBefore.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &oSmall);
  Pass();
  ::setrlimit(RLIMIT_FSIZE, &oBefore);
  std::signal(SIGXFSZ, SIG_DFL);
  ExpectUpdate(kBrokenOff, "old", kMark);
}

TEST_F(Update, AFileThatCanNotBeReplacedStays) {
  // Something in the way of what is to take the file's place.
  const std::string sInTheWay = m_sLocal + "." + std::to_string(::getpid()) + ".tmp";
  std::filesystem::create_directory(sInTheWay);
  Pass();
  std::filesystem::remove(sInTheWay);
  ExpectUpdate(kLoggedIn + kFetching + "\nDeleting file 1|3 - Success" + kFailed, "old", kMark);
}

TEST_F(Update, AnFtpSessionGoesIntoFoldersAndTellsWhyItCanNot) {
  g_oServers->PutFile("fees of 2026/%41 ü.dat", "deep");
  CurlInternet oInternet;
  clsHttp oHttp(oInternet);
  ASSERT_TRUE(oHttp.OpenConnection());
  oHttp.StartFtpSession(g_oServers->FtpServer(), "quillet", "rmk3816", "/fees of 2026");
  EXPECT_TRUE(oHttp.GetFile(m_sLocal, "%41 ü.dat", true));
  EXPECT_EQ(ReadTestFile(m_sLocal), "deep");
  EXPECT_TRUE(oHttp.FilesMatch(m_sLocal, "%41 ü.dat"));
  EXPECT_THROW(oHttp.StartFtpSession(g_oServers->FtpServer(), "quillet", "rmk3816", "2025"),
               Failure);
  EXPECT_EQ(oHttp.LastError(), "Server response: 550 Failed to change directory.");
  EXPECT_THROW(oHttp.StartFtpSession(g_oServers->FtpServer(), "quillet", "wrong", ""), Failure);
  EXPECT_EQ(oHttp.LastError(), "Server response: 530 Login incorrect.");
  EXPECT_EQ(oHttp.GetHeaderInfo("no session"), "");
  EXPECT_THROW(oHttp.GetFile(m_sLocal, m_sName, true), Failure);
}

}  // namespace
}  // namespace quillet
