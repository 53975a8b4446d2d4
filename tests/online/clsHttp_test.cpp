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
  m_oInternet.bConnected = true;
  EXPECT_TRUE(m_oHttp.OpenConnection());
  EXPECT_NE(Story().find("\n* open " + EditionName() + " 0 \n"), std::string::npos);
  EXPECT_TRUE(m_oHttp.OpenConnection());
  EXPECT_EQ(Story(), "Open internet connection 1|2|9 - okay");

  m_oHive.asValues[{HiveRoot::Machine, RegistryRoot() + "\\Software\\Velmor\\Gavel Ledger\\FTP",
                    "ProxyName"}] = "gate:8080";
  m_oInternet.bOpens = false;
  clsHttp oHttp(m_oInternet);
  EXPECT_EQ(FailureOf([&] { (void)oHttp.OpenConnection(); }), "7 : Error opening internet seesion");
  EXPECT_TRUE(Story().ends_with("* open " + EditionName() +
                                " 3 gate:8080\nOpen internet connection 5|6 - fail" + kPlainError +
                                "Open internet connection 7|8"));
  EXPECT_EQ(oHttp.LastError(), "No route.");
}

TEST_F(Http, AServersNameCanHoldItsPort) {
  Open();
  for (const auto& [sServer, sExpected] : {std::pair{"host", "1 host:21"},
                                           {"[::1]:65535", "1 [::1]:65535"},
                                           {"host:65536", "1 host:65536:21"},
                                           {"host:0", "1 host:0:21"}}) {
    m_oHttp.StartFtpSession(sServer, "quillet", "secret", "");
    EXPECT_NE(Story().find("* connect "s + sExpected + " quillet secret\n"), std::string::npos);
  }
  m_oHttp.StartHttpSession("host", "", "");
  EXPECT_NE(Story().find("* connect 3 host:80  \n"), std::string::npos);
  m_oHttp.CloseConnection();
  EXPECT_EQ(m_oInternet.StillOpen(), 0);
}

TEST_F(Http, ASessionOrAFolderThatCanNotBeHadRaises) {
  Open();
  m_oInternet.bHasDirectory = false;
  EXPECT_EQ(FailureOf([&] { m_oHttp.StartFtpSession("h", "u", "p", "fees"); }),
            "7 : Error setting directory");
  EXPECT_TRUE(
      Story().ends_with("* directory fees\nStart FTP 7 - fail"s + kPlainError + "Start FTP 8"));
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
  EXPECT_FALSE(m_oHttp.GetFile(m_sLocal, "r", true)) << "without a connection";

  Open();
  m_oInternet.asFiles["r"] = "fresh";
  m_oInternet.bGets = false;
  EXPECT_EQ(FailureOf([&] { m_oHttp.GetFile(m_sLocal, "r", false); }),
            "7 : Error getting file 'r'");
  EXPECT_TRUE(Story().ends_with("* get r 1\nProc FTP 5|6 - fail"s + kPlainError +
                                "Proc FTP 7\nDeleting file 1|3 - Success"));
  EXPECT_EQ(ReadTestFile(m_sLocal), "old");
  EXPECT_FALSE(std::filesystem::exists(sTemporary));

  m_oInternet.bGets = true;
  std::filesystem::remove(m_sLocal);
  std::filesystem::create_directory(m_sLocal);  // what can't be replaced
  EXPECT_EQ(FailureOf([&] { m_oHttp.GetFile(m_sLocal, "r", true); }),
            "75 : " + m_sLocal + ": " + FolderWords(true));
  EXPECT_EQ(m_oHttp.LastError(), FolderWords(true));
  EXPECT_FALSE(std::filesystem::exists(sTemporary));
}

TEST_F(Http, FilesMatchBySizeAlone) {
  EXPECT_FALSE(m_oHttp.FilesMatch(m_sLocal, "r")) << "without a session";
  Open();
  m_oHttp.StartFtpSession("h", "u", "p", "");
  m_oInternet.asFiles["r"] = "four";
  for (const auto& [sLocal, bMatch] : {std::pair{"same", true}, {"fiver", false}, {"one", false}}) {
    WriteTestFile(m_sLocal, sLocal);
    EXPECT_EQ(m_oHttp.FilesMatch(m_sLocal, "r"), bMatch) << sLocal;
  }
  WriteTestFile(m_sLocal, "");
  EXPECT_EQ(FailureOf([&] { (void)m_oHttp.FilesMatch(m_sLocal, "missing"); }),
            "8 FilesMatch: The remote file is size 0");
}

TEST_F(Http, AnAnswerIsReadInPiecesNoLargerThanTheLastOne) {
  Open();
  m_oHttp.StartHttpSession("h", "", "");
  const std::tuple<std::string, std::size_t, std::size_t, std::string> aoRows[] = {
      {"", 100, 100, ""},
      {"2,Hello", 3, 100, "2,Hello"},
      {"ab\0\0c\0"s, 4, 2, "abc"},
      {"\xA3 1", 100, 100, "£ 1"}};
  for (const auto& [sBody, nPiece, nNextPiece, sText] : aoRows) {
    m_oInternet.asAnswers["page"] = sBody;
    m_oInternet.nPiece = nPiece;
    m_oInternet.nNextPiece = nNextPiece;
    EXPECT_EQ(m_oHttp.GetHeaderInfo("page?Code=1"), sText);
  }
}

}  // namespace
}  // namespace quillet
