#include "platform/qt/QtSettingsHive.h"

#include <QDeadlineTimer>
#include <QTest>
#include <filesystem>
#include <iterator>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/posix/IniStore.h"
#include "support/FullDisk.h"
#include "support/Log.h"

namespace quillet {
namespace {

constexpr auto kUser = HiveRoot::User;
constexpr auto kMachine = HiveRoot::Machine;
const std::string kPath = "Software\\Velmor\\Quillet US\\Config";

class QtSettingsHiveTest : public ::testing::Test {
 protected:
  [[nodiscard]] std::unique_ptr<QtSettingsHive> Open() const {
    const auto fnStore = [this](const char* sName) {
      return std::make_unique<IniStore>(QString::fromStdString(m_oFolder / sName));
    };
    return std::make_unique<QtSettingsHive>(fnStore("user"), fnStore("machine"));
  }
  [[nodiscard]] std::string UserFile() const { return m_oFolder / "user/velmor/quillet.ini"; }
  [[nodiscard]] std::string Content() const { return ReadTestFile(UserFile()); }
  [[nodiscard]] std::ptrdiff_t FilesInUserFolder() const {
    return std::distance(std::filesystem::directory_iterator(m_oFolder / "user/velmor"), {});
  }

  TemporaryFolder m_oFolder;
};

TEST_F(QtSettingsHiveTest, EveryTextComesBackExactlyInTheNextProgram) {
  const std::pair<std::string, std::string> asTexts[] = {
      {"Empty", ""},
      {"Blanks/a,b", "  both ends, two\nlines\r\n\x01 f "},
      {"£ € [", "£ € 価格 \xF0\x9F\x98\x80 \"back\\slash\\"},
      {"At", "@Invalid()"},
      {"Nul", std::string("nul\0nul", 7)},
      {"Long", std::string(20000, 'x')}};
  for (const auto& [sName, sText] : asTexts) {
    EXPECT_TRUE(Open()->Write(kUser, kPath, sName, sText));
  }
  for (const auto& [sName, sText] : asTexts) {
    EXPECT_EQ(Open()->Read(kUser, kPath, sName), sText);
    EXPECT_EQ(Open()->Read(kMachine, kPath, sName), std::nullopt);
  }
}

TEST_F(QtSettingsHiveTest, AListTypedIntoTheFileWithoutQuotesIsOneTextAndKeptAsThat) {
  std::filesystem::create_directories(m_oFolder / "user/velmor");
  WriteTestFile(UserFile(), "[Software]\nVelmor\\Visible=optA,optB\n");
  EXPECT_TRUE(Open()->Write(kUser, "Software\\Velmor", "Top", "1"));
  EXPECT_EQ(Content(), "[Software]\nVelmor\\Top=1\nVelmor\\Visible=\"optA,optB\"\n");
}

TEST_F(QtSettingsHiveTest, RunningProgramsSeeEachOthersValuesAndADragIsStoredOnce) {
  const auto oHive = Open();
  for (int n = 1; n <= 100; ++n) {
    EXPECT_TRUE(oHive->Write(kUser, kPath, "Mine", std::to_string(n)));
    EXPECT_EQ(oHive->Read(kUser, kPath, "Mine"), std::to_string(n));
  }
  EXPECT_EQ(Content(), "") << "while nothing else can happen";
  EXPECT_TRUE(Open()->Write(kUser, kPath, "Theirs", "2"));
  EXPECT_EQ(oHive->Read(kUser, kPath, "Theirs"), "2") << "although a change is being gathered";
  EXPECT_TRUE(QTest::qWaitFor([&] { return Content().find("Mine=100") != std::string::npos; },
                              20 * QtSettingsHive::kGatherMilliseconds));
  for (const char* sQuickly : {"3", "4", "5"}) {
    EXPECT_TRUE(Open()->Write(kUser, kPath, "Mine", sQuickly));
    EXPECT_EQ(oHive->Read(kUser, kPath, "Mine"), sQuickly);
  }
  EXPECT_EQ(oHive->Read(kUser, kPath, "Theirs"), "2");
}

TEST_F(QtSettingsHiveTest, AChangeThatCantBeStoredIsLostAndTheStoreStaysWhole) {
  ASSERT_TRUE(Open()->Write(kUser, kPath, "Kept", "old"));
  const std::string sBefore = Content();
  const auto oLocked = Open();
  EXPECT_TRUE(oLocked->Write(kUser, kPath, "Kept", "new"));
  for (const auto& [nAtTheWrite, nAtTheFlush] :
       {std::pair<rlim_t, rlim_t>{0, 0}, {sBefore.size() + 1, sBefore.size() - 1}}) {
    const auto oEarly = Open();
    const auto oLate = Open();
    EXPECT_TRUE(oLate->Write(kUser, kPath, "Kept", "new"));
    {
      const FullDisk oFull(nAtTheWrite);
      EXPECT_FALSE(oEarly->Write(kUser, kPath, "Kept", "new"));
    }
    const FullDisk oFull(nAtTheFlush);
    oLate->Flush();
    for (const QtSettingsHive* const pHive : {oEarly.get(), oLate.get()}) {
      EXPECT_EQ(pHive->Read(kUser, kPath, "Kept"), "old");
    }
  }
  const int nHolder = ::open((m_oFolder / "user/velmor").c_str(), O_RDONLY);
  ASSERT_EQ(::flock(nHolder, LOCK_EX), 0);
  const QDeadlineTimer oLimit(2 * IniStore::kLockMilliseconds);
  oLocked->Flush();
  ::close(nHolder);
  EXPECT_FALSE(oLimit.hasExpired()) << "another program never lets go";
  EXPECT_EQ(Content(), sBefore);
  EXPECT_EQ(FilesInUserFolder(), 1) << "nothing but the settings";
}

TEST_F(QtSettingsHiveTest, WhatKilledProgramsLeaveHoldsUpNoOther) {
  std::filesystem::create_directories(UserFile() + ".lock");
  const QDeadlineTimer oLimit(IniStore::kLockMilliseconds / 2);
  EXPECT_TRUE(Open()->Write(kUser, kPath, "Top", "1"));
  EXPECT_EQ(Open()->Read(kUser, kPath, "Top"), "1");
  EXPECT_FALSE(oLimit.hasExpired());
}

TEST_F(QtSettingsHiveTest, AStoreThatCantBeReadIsNotTakenForAnEmptyOne) {
  ASSERT_TRUE(Open()->Write(kUser, kPath, "Kept", "old"));
  std::filesystem::permissions(m_oFolder / "user/velmor", std::filesystem::perms::all);
  std::filesystem::permissions(m_oFolder.sPath, std::filesystem::perms::all);
  ::chmod(UserFile().c_str(), 0222);
  const pid_t nChild = ::fork();
  if (nChild == 0) {
    (void)!::setuid(65534);
    ::_exit(Open()->Write(kUser, kPath, "Other", "new") ? 1 : 0);
  }
  int nStatus = -1;
  ::waitpid(nChild, &nStatus, 0);
  EXPECT_EQ(nStatus, 0);
  ::chmod(UserFile().c_str(), 0600);
  EXPECT_EQ(Open()->Read(kUser, kPath, "Kept"), "old");
}

}  // namespace
}  // namespace quillet
