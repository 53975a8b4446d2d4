#include "platform/Files.h"

#include <filesystem>

#include <gtest/gtest.h>
#include <windows.h>
#undef ReplaceFile

#include "platform/windows/wide.h"
#include "support/FilesTest.h"

namespace quillet {
namespace {

namespace fs = std::filesystem;

/// Keeps a file open as another program would, sharing it only as `nShare` allows.
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
  EXPECT_EQ(FilesInFolder(), 1) << "and no temporary file";
}

TEST_F(Files, AppendsWhileAnotherProgramReads) {
  EXPECT_FALSE(AppendToFile(m_sFile, "1\n", "head\n"));
  const OpenElsewhere oOpen(m_sFile, FILE_SHARE_READ | FILE_SHARE_WRITE);
  EXPECT_FALSE(AppendToFile(m_sFile, "2\n", "head\n"));
  EXPECT_EQ(ReadTestFile(m_sFile), "head\n1\n2\n");
}

}  // namespace
}  // namespace quillet
