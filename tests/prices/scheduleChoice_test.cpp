#include "prices/scheduleChoice.h"

#include <filesystem>

#include <gmock/gmock.h>

#include "base/failure.h"
#include "base/region.h"
#include "online/downloads.h"
#include "prices/clsPrices.h"
#include "support/FakeInternet.h"
#include "support/OnlineTest.h"

namespace quillet {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

TEST(ScheduleDate, ComesFromTheHeadingAndElseFromTheNameOfTheFile) {
  const struct {
    const char* sText;
    const char* sFile;
    int nYear;
    int nMonth;
    const char* sWords;
  } kRows[] = {
      {"# Fees\r\n# As of early 2007. Check it.\n", "Update_2026-10.dat", 2007, 0, "early 2007"},
      {"# As of 4 august 2026\nFinal,1\n# As of May 2027", "", 2026, 8, "4 august 2026"},
      {"# As of 2026-07-15. As of 2020", "", 2026, 7, "2026-07-15"},
      {"# As of today.", "UpdateUS_2026-10-private.dat", 2026, 10, "October 2026"},
      {"Note,As of May 2027", "UpdateUS_2026.dat", 2026, 0, "2026"},
      {"# As of October", "UpdateUS_2026-13.dat", 2026, 0, "2026"},
      {"", "UpdateUS_v0101.dat", 0, 0, ""},
  };
  for (const auto& [sText, sFile, nYear, nMonth, sWords] : kRows) {
    const ScheduleDate oDate = DateOf(sText, sFile);
    EXPECT_EQ(std::tuple(oDate.nYear, oDate.nMonth, oDate.sWords),
              std::tuple(nYear, nMonth, sWords))
        << sText << sFile;
  }
}

/// The default schedule, and one of October.
class ScheduleChoice : public OnlineTest {
 protected:
  ScheduleChoice() {
    WriteTestFile(m_sLocal,
                  "# As of early 2007.\nScheduleName,Early\nLocalTax,1\nOpeningRanges,0\n");
    WriteTestFile(m_oFolder / m_sOctober, "ScheduleName,October\nLocalTax,2\n");
  }
  ~ScheduleChoice() override { UsePrices(nullptr); }

  std::string NameFor(const char* sRest) const {
    return m_sName.substr(0, m_sName.find('_') + 1) + sRest;
  }

  static std::string Tax() {
    std::string_view sTax;
    Prices().GetData("LocalTax", sTax);
    return std::string(sTax);
  }

  /// Simulates the next start of the program.
  void Restart() {
    m_oHost.aoShown.clear();
    SetSystemDefaults();
    UsePrices(nullptr);
  }

  const std::string m_sOctober = NameFor("2026-10.dat");
};

TEST_F(ScheduleChoice, OnOfferIsWhatLiesInBothFoldersTheNewestFirst) {
  m_oHost.sDataFolder = m_oFolder / "own";
  std::filesystem::create_directory(m_oHost.sDataFolder);
  const auto fnOwn = [&](const std::string& sName) { return m_oFolder / ("own\\" + sName); };
  const std::string sOfOther = RegionCode() == 1 ? "UpdateUK_mine.dat" : "UpdateUS_mine.dat";
  for (const std::string& sName : {sOfOther, m_sOctober + ".bad", std::string("notes.dat")}) {
    WriteTestFile(fnOwn(sName), "LocalTax,1\n");
  }
  WriteTestFile(fnOwn(NameFor("a.dat")), "# As of early 2007\nScheduleName,EARLY\nLocalTax,1\n");
  WriteTestFile(fnOwn(NameFor("b.dat")), "Newspaper,1\n");
  WriteTestFile(fnOwn(m_sOctober), "ScheduleName,Mine\nLocalTax,3\nlocaltax,4\n");
  const auto oShipped = std::filesystem::last_write_time(m_oFolder / m_sOctober);
  std::filesystem::last_write_time(fnOwn(m_sOctober), oShipped + std::chrono::seconds(1));

  std::vector<std::string> asSeen;
  for (const OfferedSchedule& oOffered : SchedulesOnOffer()) {
    asSeen.push_back(oOffered.sName + "|" + oOffered.oDate.sWords + "|" + oOffered.sFault + "|" +
                     oOffered.sPath);
  }
  EXPECT_THAT(asSeen, ElementsAre("Mine|October 2026|It has the key \"localtax\" twice.|" +
                                      fnOwn(m_sOctober),
                                  "Early|early 2007||" + m_sLocal,
                                  NameFor("a.dat") + "|early 2007||" + fnOwn(NameFor("a.dat")),
                                  NameFor("b.dat") + "||It holds no fees for " + EditionName() +
                                      ".|" + fnOwn(NameFor("b.dat"))));
  EXPECT_FALSE(FileExists(fnOwn(m_sName))) << "looking copies nothing";

  std::filesystem::last_write_time(fnOwn(m_sOctober), oShipped - std::chrono::seconds(1));
  EXPECT_EQ(SchedulesOnOffer().front().sPath, m_oFolder / m_sOctober) << "as using it would";
}

TEST_F(ScheduleChoice, HoldsForTheNextStartAndADamagedOneLeavesWhatWasThere) {
  EXPECT_EQ(Tax(), "1");
  ChooseSchedule(m_sOctober);
  EXPECT_EQ(Tax(), "2");
  EXPECT_THAT(Story(), EndsWith("Fee schedule " + m_sOctober));
  ASSERT_TRUE(Prices().MissingPrice());
  Restart();
  EXPECT_EQ(Tax(), "2");

  WriteTestFile(m_oFolder / NameFor("none.dat"), "Newspaper,1\n");
  WriteTestFile(m_oFolder / NameFor("twice.dat"), "LocalTax,3\nLocalTax,4\n");
  for (const char* const sRest : {"none.dat", "twice.dat", "gone.dat"}) {
    EXPECT_THROW(ChooseSchedule(NameFor(sRest)), Failure) << sRest;
    EXPECT_EQ(UpdateFileName(true), m_sOctober);
    EXPECT_EQ(Tax(), "2");
  }
  ChooseSchedule(m_sName);
  Restart();
  EXPECT_EQ(Tax(), "1");
  EXPECT_TRUE(m_oHost.aoShown.empty());
}

TEST_F(ScheduleChoice, AChosenFileThatIsNoUseAtTheStartGivesWayToTheDefault) {
  m_oHost.sDataFolder = m_oFolder / "own";
  std::filesystem::create_directory(m_oHost.sDataFolder);
  WriteTestFile(m_oFolder / ("own\\" + NameFor("mine.dat")), "LocalTax,3\nLocalTax,4\n");
  for (const char* const sRest : {"mine.dat", "gone.dat"}) {
    PutSetting(settings::kSchedule, NameFor(sRest));
    Restart();
    EXPECT_EQ(Tax(), "1");
    ASSERT_EQ(m_oHost.aoShown.size(), 1U) << sRest;
    EXPECT_THAT(m_oHost.aoShown[0].sPrompt, StartsWith("The fee schedule that you chose, "));
    EXPECT_THAT(m_oHost.aoShown[0].sPrompt, HasSubstr(sRest));
    Restart();
    EXPECT_EQ(Tax(), "1");
    EXPECT_TRUE(m_oHost.aoShown.empty()) << "said once";
  }
  EXPECT_TRUE(FileExists(m_oFolder / ("own\\" + NameFor("mine.dat")))) << "nothing replaces it";
  for (const std::string& sNone :
       {NameFor("") + "/../../x.dat", std::string("x.dat"), m_sOctober + "x"}) {
    PutSetting(settings::kSchedule, sNone);
    Restart();
    EXPECT_EQ(UpdateFileName(false), m_oFolder / ("own\\" + m_sName)) << sNone;
    EXPECT_EQ(Tax(), "1");
  }
}

TEST_F(ScheduleChoice, TheUpdateFetchesTheChosenFileAndTouchesNoOther) {
  FakeInternet oInternet;
  Downloads oDownloads(oInternet);
  const std::string sDefault = ReadTestFile(m_sLocal);
  const std::string sNewer = "ScheduleName,October\nLocalTax,22\n";
  PutSetting(settings::kFtpServer, "ftp");
  ChooseSchedule(m_sOctober);
  ASSERT_TRUE(oDownloads.OpenConnection());
  oInternet.asFiles[m_sName] = "LocalTax,11\nOpeningRanges,0\n";  // but not the chosen file
  const std::string sBefore = ReadTestFile(m_oFolder / m_sOctober);
  oDownloads.FetchUpdateFile();
  EXPECT_THAT(Story(), EndsWith("DL - Update file 10 - fail"));
  EXPECT_EQ(ReadTestFile(m_oFolder / m_sOctober), sBefore);
  PutSetting(settings::kFtpSkipFlag, "");
  oInternet.asFiles[m_sOctober] = sNewer;
  oDownloads.FetchUpdateFile();
  EXPECT_EQ(ReadTestFile(m_oFolder / m_sOctober), sNewer);
  EXPECT_EQ(ReadTestFile(m_sLocal), sDefault);
}

}  // namespace
}  // namespace quillet
