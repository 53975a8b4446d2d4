#include "platform/UserData.h"

#include <cstdlib>

#include "support/OnlineTest.h"

namespace quillet {
namespace {

using UserData = OnlineTest;

TEST_F(UserData, AFolderThatCanBeWrittenIsKept) {
  ::setenv("XDG_DATA_HOME", "/data", 1);
  EXPECT_EQ(FolderForChanges(m_oFolder.sPath), m_oFolder.sPath);
  const std::string sClosed = m_oFolder / "missing";
  EXPECT_EQ(FolderForChanges(sClosed), "/data/quillet");
  ::setenv("XDG_DATA_HOME", "relative", 1);
  ::setenv("HOME", "/home/ann", 1);
  EXPECT_EQ(FolderForChanges(sClosed), "/home/ann/.local/share/quillet");
  ::unsetenv("XDG_DATA_HOME");
  ::unsetenv("HOME");
  EXPECT_EQ(FolderForChanges(sClosed), sClosed);
}

}  // namespace
}  // namespace quillet
