#include "documents/lifecycle.h"

#include <cstddef>
#include <cstdint>
#include <utility>

#include "base/basCommon.h"
#include "base/clsRegistryAccess.h"
#include "base/failure.h"
#include "base/text.h"
#include "documents/lastFolder.h"
#include "engine/clsCalculate.h"
#include "platform/Files.h"

namespace quillet {
namespace {

constexpr std::size_t kLargestFile = std::size_t{1} << 20U;  // an auction takes about 200 bytes

void RaiseIfFailed(const std::error_code& oError) {
  if (oError) {
    throw Failure(FailureNumber::FileAccess, oError.message());
  }
}

}  // namespace

DocumentLifecycle::DocumentLifecycle(DocumentView& oView, std::string sCaption)
    : m_oView(oView), m_sCaption(std::move(sCaption)) {}

bool DocumentLifecycle::PromptSaveWorkingDoc() {
  if (!WorkingAuction().IsDirty()) {
    return true;
  }
  switch (ShowMessage("The current auction has been modified but not saved. Save now?",
                      kMessageQuestion, m_sCaption)) {
    case Answer::Cancel:
      return false;
    case Answer::Yes:
      return SaveOrLoadAuction(true);
    default:
      return true;
  }
}

bool DocumentLifecycle::SaveOrLoadAuction(bool bSave) {
  FileDialog oDialog{.bSave = bSave,
                     .sTypeName = EditionName() + " files",
                     .sPattern = std::string("*") + kAuctionExtension,
                     .sInitDir = LastFolder(),
                     .sFileName = m_sFileName};
  if (bSave && m_sFileName.empty()) {
    oDialog.sFileName = NextNewAuctionName(oDialog.sInitDir);
  }
  const auto sPath = TheHost().ChooseFile(oDialog);
  if (!sPath) {
    return false;
  }
  UseFile(*sPath, bSave);
  // A file that failed counts as done, so that the caller carries on.
  return true;
}

void DocumentLifecycle::UseFile(const std::string& sPath, bool bSave) {
  m_sFileName = FileNameOf(sPath);
  SetLastFolder(FolderOf(sPath));
  try {
    if (IsDevice(sPath)) {
      throw Failure(FailureNumber::FileAccess, "This is a pipe or a device, not a file.");
    }
    if (bSave) {
      SaveAuction(sPath);
    } else if (!LoadAuction(sPath)) {
      return;
    }
    WorkingAuction().SetDirty(false);
    m_oView.SetWindowTitle(m_sFileName, false);
  } catch (const Failure& oFailure) {
    ShowMessage(oFailure.what(), kMessageWarning, "");
  }
}

/// The text is built before the file is touched.
void DocumentLifecycle::SaveAuction(const std::string& sPath) {
  std::string sText;
  WorkingAuction().Serialize(sText, true);
  RaiseIfFailed(ReplaceFile(sPath, sText + "\n"));
}

/// Reads the whole file and tries it on another auction first, which reports a missing section. So
/// the auction on view and the one in memory stay the same if the file is faulty.
bool DocumentLifecycle::LoadAuction(const std::string& sPath) {
  std::string sText;
  RaiseIfFailed(ReadWholeFile(sPath, kLargestFile, sText));
  sText = DecodeText(std::move(sText));
  if (!clsCalculate("Trial").Serialize(sText, false)) {
    return false;
  }
  WorkingAuction().Serialize(sText, false);
  m_oView.RefreshCalculator();
  return true;
}

void DocumentLifecycle::SaveOrLoadDefaultAuction(bool bSave) {
  if (bSave) {
    std::string sText;
    DefaultAuction().Serialize(sText, true);
    Registry().Set(settings::kDefaultAuction, sText);
  } else if (std::optional<std::string> sText = Registry().Find(settings::kDefaultAuction)) {
    DefaultAuction().Serialize(*sText, false);
  }
  DefaultAuction().SetDirty(false);
  m_oView.SetWindowTitle(kDefaultAuctionTitle, false);
}

void DocumentLifecycle::NewAuction() {
  if (!PromptSaveWorkingDoc()) {
    return;
  }
  WorkingAuction().Copy(DefaultAuction());
  m_sFileName.clear();
  m_oView.ShowCalculator();
}

void DocumentLifecycle::StartWizard() {
  if (!PromptSaveWorkingDoc()) {
    return;
  }
  WorkingAuction().Clear();
  WorkingAuction().m_oOutlay.m_lQuantity = 1;
  m_oView.ShowWizard();
}

bool DocumentLifecycle::PromptBeforeExit() {
  if (!PromptSaveWorkingDoc()) {
    return false;
  }
  if (DefaultAuction().IsDirty()) {
    switch (ShowMessage("The default auction has been modified but not saved. Save now?",
                        kMessageQuestion, m_sCaption)) {
      case Answer::Cancel:
        return false;
      case Answer::Yes:
        SaveOrLoadDefaultAuction(true);
        break;
      default:
        break;
    }
  }
  return true;
}

std::string DocumentLifecycle::NextNewAuctionName(const std::string& sFolder) {
  for (std::int32_t n = 0;; ++n) {
    std::string sName = "NewAuction";
    if (n > 0) {
      sName += std::to_string(n);
    }
    sName += kAuctionExtension;
    if (!FileExists(NativePath(sFolder + "\\" + sName))) {
      return sName;
    }
  }
}

}  // namespace quillet
