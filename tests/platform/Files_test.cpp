#include "support/FilesTest.h"

namespace quillet {
namespace {

TEST_F(Files, AreReadUpToTheLimitAndLeaveTheTextAloneOtherwise) {
  const std::string sWritten("a\0b\r\n", 5);
  WriteTestFile(m_sFile, sWritten);
  std::string sContent = "before";
  EXPECT_EQ(ReadWholeFile(m_sFile, 4, sContent), std::errc::file_too_large);
  EXPECT_TRUE(ReadWholeFile(m_oFolder.sPath, 99, sContent));
  EXPECT_EQ(ReadWholeFile(m_oFolder / "none", 99, sContent), std::errc::no_such_file_or_directory);
  EXPECT_EQ(sContent, "before");
  EXPECT_FALSE(ReadWholeFile(m_sFile, 5, sContent));
  EXPECT_EQ(sContent, sWritten);
}

}  // namespace
}  // namespace quillet
