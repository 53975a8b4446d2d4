#include "online/downloads.h"

#include "base/failure.h"
#include "online/dayNumber.h"
#include "support/FakeInternet.h"
#include "support/OnlineTest.h"

namespace quillet {
namespace {

constexpr double kNoon = 46340.5;  // 2026-11-14 12:00
double g_fNow = kNoon;

class Download : public OnlineTest {
 protected:
  Download() {
    g_fNow = kNoon;
    PutSetting(settings::kWebServer, "web");
    PutSetting(settings::kFtpServer, "ftp:2121");
    PutSetting(settings::kCode, "C0DE");
    WriteTestFile(m_sLocal, "old fees");
    m_oInternet.asFiles[m_sName] = "old fees";
  }

  FakeInternet m_oInternet;
  Downloads m_oDownloads{m_oInternet, [] { return g_fNow; }};
};

TEST_F(Download, AnAnswerIsANumberAndAMessage) {
  const std::tuple<std::string, std::int32_t, std::string> aoRows[] = {
      {" 10 ,text,more\r\n", 10, "text"},
      {"2.5,half\r\n", 2, "half"},
      {",2,late", 2, "late"},
      {"2," + std::string(32763, 'x') + "😀", 2, std::string(32763, 'x')},
      {"", 64, "before"},
      {"1E10,much", 0, "before"},
      {"4", 4, "before"}};
  ASSERT_TRUE(m_oDownloads.OpenConnection());
  for (const auto& [sAnswer, lFlags, sMessage] : aoRows) {
    g_lActionFlags = 64;
    g_sActionMessage = "before";
    m_oInternet.asAnswers["getAction.asp"] = sAnswer;
    m_oDownloads.FetchActions();
    EXPECT_EQ(g_lActionFlags, lFlags) << sAnswer;
    EXPECT_EQ(g_sActionMessage, sMessage) << sAnswer;
  }
  EXPECT_TRUE(Story().ends_with("\nDL - Special actions 3|4|7 - fail"));
}

TEST_F(Download, ABrokenAttemptBarsTheRestOfItsDay) {
  m_oInternet.asFiles.clear();
  ASSERT_TRUE(m_oDownloads.OpenConnection());
  m_oDownloads.FetchUpdateFile();
  EXPECT_EQ(SkipMark(), "46340.5");
  EXPECT_TRUE(Story().ends_with("Matching files 1|3|4|5|8 - fail|9\nDL - Update file 10 - fail"));

  g_fNow = kNoon + 0.49;
  m_oDownloads.FetchUpdateFile();
  EXPECT_EQ(Story(),
            "DL - Update file 1|2|3\nFound skip date of 12:00:00 PM Saturday, "
            "November 14, 2026\nDL - Update file 4 - early exit");
  g_fNow = kNoon + 0.5;  // midnight
  g_lActionFlags = kActionSkipUpdate;
  m_oDownloads.FetchUpdateFile();
  EXPECT_EQ(SkipMark(), "46340.5");

  g_lActionFlags = 0;
  m_oInternet.asFiles[m_sName] = "of one size";
  WriteTestFile(m_sLocal, "as this one");
  m_oDownloads.FetchUpdateFile();
  EXPECT_EQ(SkipMark(), "");
  EXPECT_EQ(ReadTestFile(m_sLocal), "as this one");
}

TEST_F(Download, APassThatIsOverBeginsNoFurtherStep) {
  for (const bool bHurried : {true, false}) {
    Downloads oPass(m_oInternet);
    ASSERT_TRUE(oPass.OpenConnection());
    m_oHost.nTicks += bHurried ? 2'999 : 29'999;
    if (bHurried) {
      oPass.Hurry();
    }
    EXPECT_NO_THROW(oPass.FetchAboutText()) << "a key in the first three seconds isn't heard";
    m_oHost.nTicks += 1;
    if (bHurried) {
      oPass.Hurry();
    }
    EXPECT_THROW(oPass.FetchUpdateFile(), Failure);
    EXPECT_EQ(SkipMark(), "");
  }
}

TEST_F(Download, TheSkipMarkHoldsForItsCalendarDayAndAllBefore) {
  const std::tuple<std::string, double, bool, std::string> aoRows[] = {
      {"46340.9999", 46340.0, true, "46340.9999"},
      {"46340.9999", 46341.0, false, "46341"},
      {"46345", kNoon, true, "46345"},  // the clock has been set back
      {"yesterday", kNoon, false, "46340.5"},
      {"1E300", kNoon, false, "46340.5"}};
  for (const auto& [sMark, fNow, bSkipped, sAfterwards] : aoRows) {
    PutSetting(settings::kFtpSkipFlag, sMark);
    g_fNow = fNow;
    EXPECT_EQ(m_oDownloads.IsUpdateSkipped(), bSkipped) << sMark;
    EXPECT_EQ(SkipMark(), sAfterwards) << sMark;
  }
}

TEST_F(Download, TheAboutTextStaysForThisRunWhereItCanNotBeStored) {
  ASSERT_TRUE(m_oDownloads.OpenConnection());
  m_oInternet.asAnswers["getAbout.asp"] = "News";
  m_oDownloads.FetchAboutText();
  EXPECT_EQ(g_sAboutText, "Welcome");
  g_lActionFlags = kActionAboutText;
  m_oDownloads.FetchAboutText();
  EXPECT_EQ(m_oInternet.sLastRequest, "getAbout.asp?Code=C0DE");
  EXPECT_EQ(Registry().Get(settings::kAbout), "News");
  m_oInternet.bConnects = false;
  m_oDownloads.FetchAboutText();
  EXPECT_TRUE(Story().ends_with("\nStart HTTP 4\nDL - Scrolling message 9 - fail"));
  m_oInternet.bConnects = true;
  m_oHive.bWritable = false;
  m_oInternet.asAnswers["getAbout.asp"] = "Late news";
  m_oDownloads.FetchAboutText();
  EXPECT_EQ(g_sAboutText, "Late news");
}

TEST_F(Download, TheCodeIsMadeOnceForAnInstallation) {
  m_oHive.Clear();
  m_oDownloads.FetchActions();
  const std::string sFirst = m_oInternet.sLastRequest;
  EXPECT_EQ(sFirst.size(), std::string("getAction.asp?Code=").size() + 32);
  m_oDownloads.FetchActions();
  EXPECT_EQ(m_oInternet.sLastRequest, sFirst);
  m_oHive.Clear();
  m_oDownloads.FetchActions();
  EXPECT_NE(m_oInternet.sLastRequest, sFirst);
}

TEST(DayNumber, HoldsTheTimeInTheUsersDigits) {
  ScopedHost oHost;
  oHost.sDecimalSeparator = ",";
  constexpr double kMoment = 46340 + (9 * 3600 + 5 * 60 + 7) / 86400.0;
  const std::string sText = DayNumberText(kMoment);
  EXPECT_EQ(sText, "46340,3785532407");
  EXPECT_EQ(LongTimeAndDate(ReadDayNumber(sText).value()),
            "09:05:07 AM Saturday, November 14, 2026");
}

}  // namespace
}  // namespace quillet
