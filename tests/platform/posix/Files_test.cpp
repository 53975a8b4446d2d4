#include "platform/Files.h"

#include <chrono>
#include <filesystem>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/FilesTest.h"
#include "support/FullDisk.h"

namespace quillet {
namespace {

namespace fs = std::filesystem;

TEST_F(Files, ReplacingKeepsTheLinkTheOwnerAndTheMode) {
  const mode_t nMaskBefore = ::umask(022);
  const std::string sLink = m_oFolder / "link.qlt";
  WriteTestFile(m_sFile, "old and longer");
  (void)!::chown(m_sFile.c_str(), 12, 34);  // works only for root
  fs::create_symlink("a.qlt", sLink);
  for (const mode_t nMode : {0600U, 0666U}) {  // the second is wider than the mask
    ASSERT_EQ(::chmod(m_sFile.c_str(), nMode), 0);
    struct stat oBefore {};
    struct stat oAfter {};
    ASSERT_EQ(::stat(m_sFile.c_str(), &oBefore), 0);
    EXPECT_FALSE(ReplaceFile(sLink, "new"));
    ASSERT_EQ(::stat(m_sFile.c_str(), &oAfter), 0);
    EXPECT_EQ(std::tuple(oAfter.st_mode, oAfter.st_uid, oAfter.st_gid),
              std::tuple(oBefore.st_mode, oBefore.st_uid, oBefore.st_gid));
  }
  EXPECT_TRUE(fs::is_symlink(sLink));
  EXPECT_EQ(ReadTestFile(m_sFile), "new");
  EXPECT_FALSE(ReplaceFile(m_oFolder / "fresh", "x"));
  EXPECT_EQ(fs::status(m_oFolder / "fresh").permissions(), fs::perms(0644));
  EXPECT_EQ(FilesInFolder(), 3);  // and no temporary file
  ::umask(nMaskBefore);
}

TEST_F(Files, TheLongestNamesCanBeSavedAndWhatAKilledSaveLeftGoesAfterADay) {
  const std::string sLong = m_oFolder / std::string(255, 'x');
  const std::pair<const char*, int> aoLeft[] = {{".quillet-0123456789abcdef.tmp", 25},
                                                {".quillet-0123456789abcdef.tmp.lock", 25},
                                                {".quillet-fedcba9876543210.tmp", 23},
                                                {".quillet-0123456789abcdeg.tmp", 25},
                                                {"other.tmp", 25}};
  for (const auto& [sName, nHours] : aoLeft) {
    WriteTestFile(m_oFolder / sName, "left");
    fs::last_write_time(m_oFolder / sName,
                        fs::file_time_type::clock::now() - std::chrono::hours(nHours));
  }
  EXPECT_FALSE(ReplaceFile(sLong, "new"));
  EXPECT_FALSE(ReplaceFile(sLong, "newer"));
  EXPECT_EQ(ReadTestFile(sLong), "newer");
  EXPECT_FALSE(FileExists(m_oFolder / aoLeft[0].first));
  EXPECT_EQ(FilesInFolder(), 4);
}

TEST_F(Files, AFailedOrKilledReplacementLeavesTheOldFileWhole) {
  const auto fnReplace = [this](void (*pAtTheEnd)(int)) {
    const FullDisk oFull(4096, pAtTheEnd);
    return ReplaceFile(m_sFile, std::string(10000, 'x'));
  };
  WriteTestFile(m_sFile, "old");
  EXPECT_EQ(fnReplace(SIG_IGN), std::errc::file_too_large);
  EXPECT_EQ(FilesInFolder(), 1);
  EXPECT_EXIT((void)fnReplace([](int) { std::raise(SIGKILL); }), ::testing::KilledBySignal(SIGKILL),
              "");
  EXPECT_EQ(FilesInFolder(), 2) << "what was written so far";
  EXPECT_EQ(ReadTestFile(m_sFile), "old");
}

TEST_F(Files, PlacesThatCannotBeReplacedSayWhy) {
  const std::string sPipe = m_oFolder / "pipe";
  ASSERT_EQ(::mkfifo(sPipe.c_str(), 0600), 0);
  fs::create_symlink("nowhere", m_oFolder / "dangling");
  const std::pair<std::string, std::errc> aoRows[] = {
      {m_oFolder / "dangling", std::errc::no_such_file_or_directory},
      {m_oFolder.sPath, std::errc::is_a_directory},
      {sPipe, std::errc::operation_not_supported}};
  WriteTestFile(m_sFile, "old");
  for (const auto& [sPath, eError] : aoRows) {
    EXPECT_EQ(ReplaceFile(sPath, "x"), eError) << sPath;
    EXPECT_EQ(IsDevice(sPath), eError == std::errc::operation_not_supported) << sPath;
  }
  EXPECT_EQ(AppendToFile("/dev/full", "x", ""), std::errc::no_space_on_device);
  std::string sContent;
  EXPECT_EQ(ReadWholeFile("/dev/zero", 99, sContent), std::errc::file_too_large);
  EXPECT_EQ(ReadTestFile(m_sFile), "old");
  EXPECT_EQ(FilesInFolder(), 3);
}

}  // namespace
}  // namespace quillet
