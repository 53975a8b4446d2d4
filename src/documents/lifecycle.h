// What happens to the two documents: the working auction, which lives in memory and in the files
// that the user saves, and the default auction, the template for new ones, which is a setting.
#pragma once

#include <string>

namespace quillet {

/// What DocumentLifecycle needs from the window that shows the documents.
class DocumentView {
 public:
  virtual ~DocumentView() = default;
  /// Sets the caption for a document's name, with a star if it is dirty.
  virtual void SetWindowTitle(const std::string& sName, bool bDirty) = 0;
  /// Like a click on the calculator's button: the working auction, out of config mode.
  virtual void ShowCalculator() = 0;
  /// Shows the working auction's values in the calculator, even if another view is showing.
  virtual void RefreshCalculator() = 0;
  /// Shows the wizard in place of the calculator, and lays the window out.
  virtual void ShowWizard() = 0;
};

class DocumentLifecycle {
 public:
  /// `oView` isn't owned; `sCaption` is the title of prompts.
  DocumentLifecycle(DocumentView& oView, std::string sCaption);

  /// Asks whether to save a working auction that has changed. True if the caller may go on; after a
  /// No it is the caller that drops the changes.
  bool PromptSaveWorkingDoc();

  /// Lets the user choose a file, and saves the working auction to it or loads it. False only if
  /// the dialog was cancelled: a file that can't be written or read is reported in a message box
  /// and counts as done. A save replaces the whole file or leaves the old one; a load replaces the
  /// whole auction or leaves it, and its dirty flag, as they were.
  bool SaveOrLoadAuction(bool bSave);

  /// The same with a file that is already chosen, given by its full native path.
  void UseFile(const std::string& sPath, bool bSave);

  /// Stores the default auction, or reads it if it was ever stored; it is clean afterwards.
  void SaveOrLoadDefaultAuction(bool bSave);

  /// Starts a new auction from the default one, after asking. Leaves the dirty flags alone, so the
  /// new auction still counts as changed after a No.
  void NewAuction();

  /// Starts the wizard on an empty auction, after asking. Leaves the dirty flags and the file's
  /// name alone, so a save proposes the name of the file loaded before.
  void StartWizard();

  /// Asks before the program ends: about the working auction, then the default one. False if the
  /// user cancelled.
  bool PromptBeforeExit();

  /// File title of the working auction, with its extension and without its folder; empty if new.
  [[nodiscard]] const std::string& FileName() const { return m_sFileName; }

  /// The first of "NewAuction.qlt", "NewAuction1.qlt" and so on that isn't in the folder.
  [[nodiscard]] static std::string NextNewAuctionName(const std::string& sFolder);

 private:
  void SaveAuction(const std::string& sPath);
  bool LoadAuction(const std::string& sPath);

  DocumentView& m_oView;
  std::string m_sCaption;
  std::string m_sFileName;
};

/// The extension of saved auctions, with its dot.
inline constexpr const char* kAuctionExtension = ".qlt";

/// What the caption calls the default auction.
inline constexpr const char* kDefaultAuctionTitle = "Default Configuration";

}  // namespace quillet
