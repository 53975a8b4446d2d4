#include "online/clsHttp.h"

#include <filesystem>

#include "base/failure.h"
#include "support/FakeInternet.h"
#include "support/OnlineTest.h"

namespace quillet {
namespace {

using namespace std::string_literals;

constexpr const char* kPlainError = "\nGetting error info 1|6|5 - okay (no fail point)\n";
constexpr const char* kServersError = "\nGetting error info 1|2|3|4|5|5 - okay (no fail point)\n";

class Http : public OnlineTest {
 protected:
  void Open() {
    ASSERT_TRUE(m_oHttp.OpenConnection());
    (void)Story();
  }

  /// The failure that a statement ends in, as "number source: text".
  template <typename Statement>
  std::string FailureOf(Statement&& oStatement) {
    try {
      oStatement();
    } catch (const Failure& oFailure) {
      return std::to_string(static_cast<std::uint32_t>(oFailure.Number()) & 0xFFFFU) + " " +
             oFailure.Source() + ": " + oFailure.what();
    }
    return "none";
  }

  FakeInternet m_oInternet;
  clsHttp m_oHttp{m_oInternet};
};

TEST_F(Http, OpensOnceAndGoesTheWayThatTheProxySettingTells) {
  m_oInternet.bConnected = false;
  EXPECT_FALSE(m_oHttp.OpenConnection());
  EXPECT_EQ(Story(), "Open internet connection 1");
  m_oInternet.bConnected = true;
  const std::string sOpen = "Open internet connection 1|2|3|4\n* open " + EditionName();
  EXPECT_TRUE(m_oHttp.OpenConnection());
  EXPECT_EQ(Story(), sOpen + " 0 \nOpen internet connection 5|9 - okay");
  EXPECT_TRUE(m_oHttp.OpenConnection());
  EXPECT_EQ(Story(), "Open internet connection 1|2|9 - okay");

  m_oHive.asValues[{HiveRoot::Machine, RegistryRoot() + "\\Software\\Velmor\\Gavel Ledger\\FTP",
                    "ProxyName"}] = "gate:8080";
  m_oInternet.bOpens = false;
  clsHttp oHttp(m_oInternet);
  EXPECT_EQ(FailureOf([&] { (void)oHttp.OpenConnection(); }), "7 : Error opening internet seesion");
  EXPECT_TRUE(Story().starts_with(sOpen + " 3 gate:8080\nOpen internet connection 5|6 - fail"));
  EXPECT_EQ(oHttp.LastError(), "No route.");
}

TEST_F(Http, AServersNameCanHoldItsPort) {
  Open();
  for (const auto& [sServer, sExpected] : {std::pair{"host", "1 host:21"},
                                           {"host:2121", "1 host:2121"},
                                           {"[::1]:65535", "1 [::1]:65535"},
                                           {"host:65536", "1 host:65536:21"},
                                           {"host:0", "1 host:0:21"},
                                           {"", "1 :21"}}) {
    m_oHttp.StartFtpSession(sServer, "quillet", "secret", "");
    EXPECT_EQ(Story(),
              "Start FTP 1\n* connect "s + sExpected + " quillet secret\nStart FTP 2|5|9 - okay");
  }
  m_oHttp.StartHttpSession("host", "", "");
  EXPECT_EQ(Story(), "Start HTTP 1\n* connect 3 host:80  \nStart HTTP 2|5|6 - okay");
  m_oHttp.CloseConnection();
  EXPECT_EQ(m_oInternet.StillOpen(), 0);
}

TEST_F(Http, ASessionOrAFolderThatCanNotBeHadRaises) {
  Open();
  m_oInternet.bHasDirectory = false;
  EXPECT_EQ(FailureOf([&] { m_oHttp.StartFtpSession("h", "u", "p", "fees"); }),
            "7 : Error setting directory");
  EXPECT_EQ(Story(),
            "Start FTP 1\n* connect 1 h:21 u p\nStart FTP 2|5|6\n* directory fees\n"
            "Start FTP 7 - fail"s +
                kPlainError + "Start FTP 8");
  m_oInternet.bConnects = false;
  m_oInternet.bExtended = true;
  EXPECT_EQ(FailureOf([&] { m_oHttp.StartFtpSession("h", "u", "p", ""); }),
            "7 : Error connecting to server");
  EXPECT_EQ(m_oHttp.LastError(), "Server response: 530 Login incorrect.");
  EXPECT_EQ(FailureOf([&] { m_oHttp.StartHttpSession("h", "", ""); }),
            "9 : Error connecting to server");
  EXPECT_TRUE(Story().ends_with("Start HTTP 2|3 - fail"s + kServersError + "Start HTTP 4"));
}

TEST_F(Http, AFetchedFileTakesTheOldOnesPlaceOnlyAsAWhole) {
  const std::string sTemporary = m_sLocal + "_$Temp$_";
  WriteTestFile(m_sLocal, "old");
  EXPECT_FALSE(m_oHttp.GetFile(m_sLocal, "r", true));
  EXPECT_EQ(Story(), "Proc FTP 1|2|3");

  Open();
  m_oInternet.asFiles["r"] = "fresh";
  WriteTestFile(sTemporary, "left by a crash");
  m_oInternet.bGets = false;
  EXPECT_EQ(FailureOf([&] { m_oHttp.GetFile(m_sLocal, "r", false); }),
            "7 : Error getting file 'r'");
  EXPECT_EQ(Story(),
            "Proc FTP 1|2|4\nDeleting file 1|3 - Success\n* get r 1\n"
            "Proc FTP 5|6 - fail"s +
                kPlainError + "Proc FTP 7\nDeleting file 1|3 - Success");
  EXPECT_EQ(ReadTestFile(m_sLocal), "old");

  m_oInternet.bGets = true;
  std::filesystem::remove(m_sLocal);
  std::filesystem::create_directory(m_sLocal);  // what can't be replaced
  EXPECT_EQ(FailureOf([&] { m_oHttp.GetFile(m_sLocal, "r", true); }),
            "75 : " + m_sLocal + ": " + FolderWords(true));
  EXPECT_EQ(m_oHttp.LastError(), FolderWords(true));
  EXPECT_EQ(Story(), "Proc FTP 1|2|4\nDeleting file 1|2 (" + MissingWords() +
                         ")|3 - Success\n* get r 2\nProc FTP 5\nDeleting file 1|3 - Success");
  EXPECT_FALSE(std::filesystem::exists(sTemporary));
}

TEST_F(Http, FilesMatchBySizeAlone) {
  EXPECT_FALSE(m_oHttp.FilesMatch(m_sLocal, "r"));
  EXPECT_EQ(Story(), "Matching files 1|2 - fail");
  Open();
  m_oHttp.StartFtpSession("h", "u", "p", "");
  (void)Story();
  m_oInternet.asFiles["r"] = "four";
  for (const auto& [sLocal, bMatch] : {std::pair{"same", true}, {"fiver", false}, {"one", false}}) {
    WriteTestFile(m_sLocal, sLocal);
    EXPECT_EQ(m_oHttp.FilesMatch(m_sLocal, "r"), bMatch) << sLocal;
  }
  (void)Story();
  WriteTestFile(m_sLocal, "");
  EXPECT_EQ(FailureOf([&] { (void)m_oHttp.FilesMatch(m_sLocal, "missing"); }),
            "8 FilesMatch: The remote file is size 0");
  EXPECT_EQ(Story(), "Matching files 1|3|4|5|8 - fail|9");
}

TEST_F(Http, AnAnswerIsReadInPiecesNoLargerThanTheLastOne) {
  Open();
  m_oHttp.StartHttpSession("h", "", "");
  (void)Story();
  struct Row {
    std::string sBody;
    std::size_t nPiece, nNextPiece;
    std::string sText;
  };
  const Row aoRows[] = {{"", 100, 100, ""},
                        {"2,Hello", 3, 100, "2,Hello"},
                        {"ab\0\0c\0"s, 4, 2, "abc"},
                        {"\xA3 1", 100, 100, "£ 1"}};
  for (const Row& oRow : aoRows) {
    m_oInternet.asAnswers["page"] = oRow.sBody;
    m_oInternet.nPiece = oRow.nPiece;
    m_oInternet.nNextPiece = oRow.nNextPiece;
    EXPECT_EQ(m_oHttp.GetHeaderInfo("page?Code=1"), oRow.sText);
  }
  EXPECT_TRUE(Story().ends_with("|5|6|7|8|5|6|7|8|9 - okay (no fail point)"));
}

}  // namespace
}  // namespace quillet
