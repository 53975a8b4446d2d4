#include "platform/Files.h"

#include <csignal>
#include <filesystem>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "support/Log.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

namespace fs = std::filesystem;

class Files : public ::testing::Test {
 protected:
  std::size_t FilesInFolder() const {
    const auto oList = fs::directory_iterator(m_oFolder.sPath);
    return static_cast<std::size_t>(std::distance(begin(oList), end(oList)));
  }

  TemporaryFolder m_oFolder;
  std::string m_sFile = m_oFolder / "a.qlt";
};

TEST_F(Files, ReadsUpToTheLimitAndLeavesTheTextAloneOtherwise) {
  WriteTestFile(m_sFile, std::string("a\0b\r\n", 5));
  std::string sContent = "before";
  EXPECT_EQ(ReadWholeFile(m_sFile, 4, sContent), std::errc::file_too_large);
  EXPECT_EQ(ReadWholeFile(m_oFolder.sPath, 99, sContent), std::errc::is_a_directory);
  EXPECT_EQ(ReadWholeFile(m_oFolder / "none", 99, sContent), std::errc::no_such_file_or_directory);
  EXPECT_EQ(ReadWholeFile("/dev/zero", 99, sContent), std::errc::file_too_large);
  EXPECT_EQ(sContent, "before");
  EXPECT_FALSE(ReadWholeFile(m_sFile, 5, sContent));
  EXPECT_EQ(sContent, std::string("a\0b\r\n", 5));
}

TEST_F(Files, ReplacingKeepsTheLinkAndTheMode) {
  const mode_t nMaskBefore = ::umask(022);
  const std::string sLink = m_oFolder / "link.qlt";
  WriteTestFile(m_sFile, "old and longer");
  fs::create_symlink("a.qlt", sLink);
  for (const mode_t nMode : {0600U, 0666U, 0640U}) {  // one of them wider than the mask
    ASSERT_EQ(::chmod(m_sFile.c_str(), nMode), 0);
    EXPECT_FALSE(ReplaceFile(sLink, "new"));
    struct stat oStatus {};
    ASSERT_EQ(::stat(m_sFile.c_str(), &oStatus), 0);
    EXPECT_EQ(oStatus.st_mode & 07777U, nMode);
  }
  EXPECT_TRUE(fs::is_symlink(sLink));
  EXPECT_EQ(ReadTestFile(m_sFile), "new");
  EXPECT_FALSE(ReplaceFile(m_oFolder / "fresh", "x"));
  EXPECT_EQ(fs::status(m_oFolder / "fresh").permissions(), fs::perms(0644));
  EXPECT_EQ(FilesInFolder(), 3U);  // and no temporary file
  ::umask(nMaskBefore);
}

TEST_F(Files, AFailedReplacementLeavesTheOldFileWhole) {
  WriteTestFile(m_sFile, "old");
  rlimit oBefore{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &oBefore), 0);
  const auto fnHandlerBefore = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit oSmall{4096, oBefore.rlim_max};
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &oSmall), 0);
  const std::error_code oError = ReplaceFile(m_sFile, std::string(10000, 'x'));
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &oBefore), 0);
  (void)std::signal(SIGXFSZ, fnHandlerBefore);
  EXPECT_EQ(oError, std::errc::file_too_large);
  EXPECT_EQ(ReadTestFile(m_sFile), "old");
  EXPECT_EQ(FilesInFolder(), 1U);
}

TEST_F(Files, PlacesThatCannotBeReplacedSayWhy) {
  WriteTestFile(m_sFile, "old");
  EXPECT_EQ(ReplaceFile(m_sFile + "/below", "x"), std::errc::not_a_directory);
  EXPECT_EQ(ReplaceFile(m_oFolder / "none/a.qlt", "x"), std::errc::no_such_file_or_directory);
  EXPECT_EQ(ReplaceFile(m_oFolder.sPath, "x"), std::errc::is_a_directory);
  EXPECT_EQ(ReplaceFile("/dev/full", "x"), std::errc::no_space_on_device);
  EXPECT_EQ(AppendToFile("/dev/full", "x", ""), std::errc::no_space_on_device);
  EXPECT_TRUE(FileExists("/dev/full"));
  EXPECT_FALSE(FileExists(m_sFile + "/below"));
  EXPECT_EQ(ReadTestFile(m_sFile), "old");
  EXPECT_EQ(FilesInFolder(), 1U);
}

}  // namespace
}  // namespace quillet
