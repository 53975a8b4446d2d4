#include "platform/UserData.h"

#include <cstdlib>

#include "support/OnlineTest.h"

namespace quillet {
namespace {

using UserData = OnlineTest;

TEST_F(UserData, AFolderThatCanBeWrittenIsKept) {
  EXPECT_EQ(FolderForChanges(m_oFolder.sPath), m_oFolder.sPath);
  const std::string sOwn = FolderForChanges(m_oFolder / "missing");
  EXPECT_EQ(sOwn, std::string(std::getenv("LOCALAPPDATA")) + "\\Quillet");
}

}  // namespace
}  // namespace quillet
