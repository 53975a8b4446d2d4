#include "documents/lifecycle.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "base/clsRegistryAccess.h"
#include "documents/lastFolder.h"
#include "platform/Files.h"
#include "support/Auctions.h"
#include "support/Log.h"
#include "support/MemoryHive.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

const ShownMessage kWorkingPrompt = {
    "The current auction has been modified but not saved. Save now?", 35, "Edition"};
const ShownMessage kDefaultPrompt = {
    "The default auction has been modified but not saved. Save now?", 35, "Edition"};

class RecordingView : public DocumentView {
 public:
  void SetWindowTitle(const std::string& sName, bool bDirty) override {
    sCalls += "title(" + sName + (bDirty ? "*) " : ") ");
  }
  void ShowCalculator() override { sCalls += "calculator "; }
  void RefreshCalculator() override { sCalls += "refresh "; }
  void ShowWizard() override { sCalls += "wizard "; }

  std::string sCalls;
};

class Lifecycle : public ::testing::Test {
 protected:
  Lifecycle() {
    SetRegistryHive(m_oHive);
    SetLastFolder(m_oFolder.sPath);
    ClearAuctions();
  }

  void ChangeWorking() {
    WorkingAuction().m_oOutlay.m_fOutlay = 12.5;
    WorkingAuction().m_oOutlay.m_bDirty = true;
  }

  ScopedHost m_oHost;
  MemoryHive m_oHive;
  TemporaryFolder m_oFolder;
  RecordingView m_oView;
  DocumentLifecycle m_oDocuments{m_oView, "Edition"};
};

TEST_F(Lifecycle, ASaveBeforeAnAuctionIsLostGoesOnUnlessItsDialogIsCancelled) {
  const std::string sFile = m_oFolder / "a.qlt";
  const std::tuple<std::optional<std::string>, bool, bool> aoRows[] = {
      {std::nullopt, false, false},
      {m_oFolder / "no/such/folder.qlt", true, false},  // a failed save goes on
      {sFile, true, true},
  };
  for (const auto& [sChoice, bGoesOn, bSaved] : aoRows) {
    SCOPED_TRACE(sChoice.value_or("cancelled"));
    m_oHost.aeAnswers = {Answer::Yes};
    m_oHost.asChoices = {sChoice};
    ChangeWorking();
    EXPECT_EQ(m_oDocuments.PromptSaveWorkingDoc(), bGoesOn);
    EXPECT_EQ(FileExists(sFile), bSaved);
    EXPECT_EQ(WorkingAuction().IsDirty(), !bSaved);
  }
}

TEST_F(Lifecycle, TheFirstFolderIsMyAuctionsAmongTheDocuments) {
  m_oHost.sDocumentsFolder = "/home/ann/Documents ";
  SetLastFolder("");
  m_oHive.Clear();
  EXPECT_EQ(LastFolder(), "/home/ann/Documents" + NativePath("\\My Auctions"));
}

TEST_F(Lifecycle, SavesAndLoadsWhatWasEntered) {
  ChangeWorking();
  const std::string sEntered = TextOf(WorkingAuction());
  m_oHost.asChoices = {m_oFolder / "camera.qlt", m_oFolder / "camera.qlt"};
  EXPECT_TRUE(m_oDocuments.SaveOrLoadAuction(true));
  EXPECT_EQ(ReadTestFile(m_oFolder / "camera.qlt"), sEntered + "\n");
  EXPECT_FALSE(WorkingAuction().IsDirty());

  WorkingAuction().Clear();
  m_oView.sCalls.clear();
  EXPECT_TRUE(m_oDocuments.SaveOrLoadAuction(false));
  EXPECT_EQ(TextOf(WorkingAuction()), sEntered);
  EXPECT_EQ(m_oView.sCalls, "refresh title(camera.qlt) ");
  EXPECT_EQ(LastFolder(), m_oFolder / "");
  (void)m_oDocuments.SaveOrLoadAuction(true);
  EXPECT_EQ(m_oHost.aoDialogs.back().sFileName, "camera.qlt") << "which is proposed from now on";
}

TEST_F(Lifecycle, AFailureIsShownInThePlatformsWordsAndKeepsTheOldFile) {
  ChangeWorking();
  const std::string sBlocked = m_oFolder / "file/x.qlt";
  const std::string sDevice = FileExists("/dev/zero") ? "/dev/zero" : "NUL";
  WriteTestFile(m_oFolder / "file", "old");
  const std::tuple<bool, std::string, std::string> aoRows[] = {
      {true, sBlocked, ReplaceFile(sBlocked, "").message()},
      {false, m_oFolder / "missing.qlt", MissingWords()},
      {false, m_oFolder.sPath, FolderWords(false)},
      {false, sDevice, "This is a pipe or a device, not a file."},
  };
  for (const auto& [bSave, sPath, sMessage] : aoRows) {
    SCOPED_TRACE(sPath);
    m_oHost.aoShown.clear();
    m_oHost.asChoices = {sPath};
    EXPECT_TRUE(m_oDocuments.SaveOrLoadAuction(bSave)) << "what asked for the save carries on";
    EXPECT_EQ(m_oHost.aoShown, (std::vector<ShownMessage>{{sMessage, 48, ""}}));
    EXPECT_TRUE(WorkingAuction().IsDirty());
    EXPECT_EQ(m_oDocuments.FileName(), std::filesystem::path(sPath).filename());
  }
  EXPECT_EQ(ReadTestFile(m_oFolder / "file"), "old");
}

TEST_F(Lifecycle, ProposesTheFirstFreeName) {
  for (const char* const sName : {"NewAuction.qlt", "NewAuction1.qlt"}) {
    m_oHost.asChoices = {std::nullopt};
    m_oDocuments.SaveOrLoadAuction(true);
    EXPECT_EQ(m_oHost.aoDialogs.back().sFileName, sName);
    EXPECT_EQ(m_oHost.aoDialogs.back().sInitDir, m_oFolder.sPath);
    WriteTestFile(m_oFolder / sName, "");
  }
}

TEST_F(Lifecycle, ExitAsksAboutBothDocumentsInTurn) {
  const struct {
    bool bWorkingDirty;
    bool bDefaultDirty;
    std::deque<Answer> aeAnswers;
    std::vector<ShownMessage> aoPrompts;
    bool bExits;
  } kRows[] = {
      {false, false, {}, {}, true},
      {true, true, {Answer::Cancel}, {kWorkingPrompt}, false},
      {true, true, {Answer::No, Answer::Cancel}, {kWorkingPrompt, kDefaultPrompt}, false},
      {true, true, {Answer::No, Answer::No}, {kWorkingPrompt, kDefaultPrompt}, true},
      {false, true, {Answer::Yes}, {kDefaultPrompt}, true},
  };
  for (const auto& oRow : kRows) {
    m_oHost.aoShown.clear();
    m_oHost.aeAnswers = oRow.aeAnswers;
    WorkingAuction().SetDirty(oRow.bWorkingDirty);
    DefaultAuction().SetDirty(oRow.bDefaultDirty);
    EXPECT_EQ(m_oDocuments.PromptBeforeExit(), oRow.bExits);
    EXPECT_EQ(m_oHost.aoShown, oRow.aoPrompts);
  }
  EXPECT_FALSE(DefaultAuction().IsDirty()) << "the last row's Yes has stored it";
}

}  // namespace
}  // namespace quillet
