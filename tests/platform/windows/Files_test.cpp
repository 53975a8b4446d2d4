#include "platform/Files.h"

#include <filesystem>

#include <gtest/gtest.h>
#include <windows.h>
#undef ReplaceFile

#include "platform/windows/wide.h"
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

/// A file that somebody else has open and lets others do no more with than `nShare`.
class OpenElsewhere {
 public:
  OpenElsewhere(const std::string& sPath, DWORD nShare)
      : m_hFile(::CreateFileW(Wide(sPath).c_str(), GENERIC_READ, nShare, nullptr, OPEN_EXISTING, 0,
                              nullptr)) {}
  OpenElsewhere(const OpenElsewhere&) = delete;
  OpenElsewhere& operator=(const OpenElsewhere&) = delete;
  ~OpenElsewhere() { ::CloseHandle(m_hFile); }

 private:
  HANDLE m_hFile;
};

TEST_F(Files, ReadsUpToTheLimitAndLeavesTheTextAloneOtherwise) {
  WriteTestFile(m_sFile, std::string("a\0b\r\n", 5));
  std::string sContent = "before";
  EXPECT_EQ(ReadWholeFile(m_sFile, 4, sContent), std::errc::file_too_large);
  EXPECT_TRUE(ReadWholeFile(m_oFolder.sPath, 99, sContent));
  EXPECT_EQ(ReadWholeFile(m_oFolder / "none", 99, sContent), std::errc::no_such_file_or_directory);
  EXPECT_EQ(sContent, "before");
  EXPECT_FALSE(ReadWholeFile(m_sFile, 5, sContent));
  EXPECT_EQ(sContent, std::string("a\0b\r\n", 5));
}

TEST_F(Files, NamesOfEveryScriptAndBothSeparatorsLeadToTheSameFile) {
  EXPECT_EQ(NativePath("C:/a\\b"), "C:\\a\\b");
  for (const char* const sName : {"£ Zoë.qlt", "価格.qlt", "\xF0\x9F\x98\x80.qlt"}) {
    const std::string sPath = m_oFolder / sName;
    EXPECT_FALSE(ReplaceFile(sPath, "new")) << sName;
    EXPECT_TRUE(fs::exists(fs::path(Wide(sPath)))) << sName;
    EXPECT_TRUE(FileExists(m_oFolder.sPath + "/" + sName)) << sName;
  }
  EXPECT_EQ(RemoveFile(m_sFile), std::errc::no_such_file_or_directory);
}

TEST_F(Files, AFailedReplacementLeavesTheOldFileWholeAndSaysWhy) {
  WriteTestFile(m_sFile, "old");
  {
    const OpenElsewhere oOpen(m_sFile, FILE_SHARE_READ);
    EXPECT_TRUE(ReplaceFile(m_sFile, "new"));
  }
  ::SetFileAttributesW(Wide(m_sFile).c_str(), FILE_ATTRIBUTE_READONLY);
  const std::error_code oReadOnly = ReplaceFile(m_sFile, "new");
  ::SetFileAttributesW(Wide(m_sFile).c_str(), FILE_ATTRIBUTE_NORMAL);
  EXPECT_EQ(oReadOnly, std::errc::permission_denied);
  EXPECT_FALSE(oReadOnly.message().empty());
  EXPECT_EQ(ReplaceFile(m_oFolder / "none\\a.qlt", "x"), std::errc::no_such_file_or_directory);
  EXPECT_EQ(ReplaceFile(m_oFolder.sPath, "x"), std::errc::permission_denied);
  EXPECT_EQ(ReadTestFile(m_sFile), "old");
  EXPECT_EQ(FilesInFolder(), 1U) << "and no temporary file";
}

TEST_F(Files, AppendsWhileAnotherProgramReads) {
  EXPECT_FALSE(AppendToFile(m_sFile, "1\n", "head\n"));
  const OpenElsewhere oOpen(m_sFile, FILE_SHARE_READ | FILE_SHARE_WRITE);
  EXPECT_FALSE(AppendToFile(m_sFile, "2\n", "head\n"));
  EXPECT_EQ(ReadTestFile(m_sFile), "head\n1\n2\n");
}

}  // namespace
}  // namespace quillet
