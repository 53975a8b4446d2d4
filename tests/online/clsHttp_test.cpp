#include "online/clsHttp.h"

#include <filesystem>
#include <utility>

#include "base/failure.h"
#include "support/FakeInternet.h"
#include "support/OnlineTest.h"

namespace quillet {
namespace {

using namespace std::string_literals;

const std::string kPlainError = "\nGetting error info 1|6|5 - okay (no fail point)\n";
const std::string kServersError = "\nGetting error info 1|2|3|4|5|5 - okay (no fail point)\n";

class Http : public OnlineTest {
 protected:
  void Open() {
    ASSERT_TRUE(m_oHttp.OpenConnection());
    (void)Asked();
  }
  /// What was asked of the Internet since the last call.
  std::string Asked() { return std::exchange(m_oInternet.sAsked, ""); }

  /// The failure that a statement throws, as "number source: text".
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
  EXPECT_TRUE(m_oHttp.OpenConnection());
  m_oHive.asValues[{HiveRoot::Machine, RegistryRoot() + "\\Software\\Velmor\\Gavel Ledger\\FTP",
                    "ProxyName"}] = "gate:8080";
  m_oInternet.bOpens = false;
  clsHttp oHttp(m_oInternet);
  EXPECT_EQ(FailureOf([&] { (void)oHttp.OpenConnection(); }), "7 : Error opening internet seesion");
  EXPECT_EQ(Asked(), "open " + EditionName() + " 0 |open " + EditionName() + " 3 gate:8080|");
  EXPECT_EQ(oHttp.LastError(), "No route.");
}

TEST_F(Http, AServersNameCanHoldItsPort) {
  Open();
  for (const auto& [sServer, sExpected] : {std::pair{"host", "host:21"},
                                           {"[::1]:65535", "[::1]:65535"},
                                           {"host:65536", "host:65536:21"},
                                           {"host:0", "host:0:21"}}) {
    m_oHttp.StartFtpSession(sServer, "quillet", "secret", "");
    EXPECT_EQ(Asked(), "connect 1 "s + sExpected + " quillet secret|");
  }
  m_oHttp.StartHttpSession("host", "", "");
  EXPECT_EQ(Asked(), "connect 3 host:80  |");
  m_oHttp.CloseConnection();
  EXPECT_EQ(m_oInternet.StillOpen(), 0);
}

TEST_F(Http, ASessionOrAFolderThatCanNotBeHadRaises) {
  Open();
  m_oInternet.bHasDirectory = false;
  EXPECT_EQ(FailureOf([&] { m_oHttp.StartFtpSession("h", "u", "p", "fees"); }),
            "7 : Error setting directory");
  EXPECT_TRUE(Story().ends_with("|7 - fail" + kPlainError + "Start FTP 8"));
  m_oInternet.bConnects = false;
  m_oInternet.bExtended = true;
  EXPECT_EQ(FailureOf([&] { m_oHttp.StartFtpSession("h", "u", "p", ""); }),
            "7 : Error connecting to server");
  EXPECT_EQ(m_oHttp.LastError(), "Server response: 530 Login incorrect.");
  EXPECT_EQ(FailureOf([&] { m_oHttp.StartHttpSession("h", "", ""); }),
            "9 : Error connecting to server");
  EXPECT_TRUE(Story().ends_with("|2|3 - fail" + kServersError + "Start HTTP 4"));
}

TEST_F(Http, AFetchedFileTakesTheOldOnesPlaceOnlyAsAWhole) {
  WriteTestFile(m_sLocal, "old");
  EXPECT_FALSE(m_oHttp.GetFile(m_sLocal, "r", true)) << "without a connection";
  Open();
  m_oInternet.asFiles["r"] = "fresh";
  m_oInternet.bGets = false;
  EXPECT_EQ(FailureOf([&] { m_oHttp.GetFile(m_sLocal, "r", false); }),
            "7 : Error getting file 'r'");
  EXPECT_EQ(ReadTestFile(m_sLocal), "old");
  EXPECT_FALSE(FileExists(m_sLocal + "_$Temp$_"));
  m_oInternet.bGets = true;
  std::filesystem::remove(m_sLocal);
  std::filesystem::create_directory(m_sLocal);  // can't be replaced by a file
  EXPECT_EQ(FailureOf([&] { m_oHttp.GetFile(m_sLocal, "r", true); }),
            "75 : " + m_sLocal + ": " + FolderWords(true));
  EXPECT_EQ(m_oHttp.LastError(), FolderWords(true));
  EXPECT_FALSE(FileExists(m_sLocal + "_$Temp$_"));
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
