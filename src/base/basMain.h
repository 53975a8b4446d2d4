// The start of the program, in order, and the variables that the whole program shares.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "base/Application.h"

namespace quillet {

extern std::int32_t g_lSnapToGrid;    ///< grid step for dragging sections, twips
extern std::string g_sAboutText;      ///< the scrolling message of the about page
extern std::int32_t g_lActionFlags;   ///< the server's action word, a mask of ActionFlag
extern std::string g_sActionMessage;  ///< the message that came with it
extern std::unique_ptr<SplashWindow> g_frmSplash;
extern std::unique_ptr<MainWindow> g_frmMain;
extern bool g_bMustClose;  ///< CloseApplication was called: the program ends as failed

/// Bits of the action word.
enum ActionFlag : std::int32_t {
  kActionMessage = 2,     ///< show g_sActionMessage before the main window
  kActionSkipUpdate = 4,  ///< don't fetch the update file this time
  kActionAboutText = 8,   ///< fetch the scrolling message
};

/// What Main starts things through. Not owned; must be set before Main runs.
void SetApplication(Application& oApplication);

/// The start sequence. Returns when the main window is up; the event loop then runs the program.
void Main();

/// Shows the splash and waits for its movie to load, and with `bWait` also to end; with `bShow`
/// false, waits for the movie to end and closes the splash.
void ManageSplash(bool bShow, const bool& bWait);

/// Reads the grid step, the chosen fee schedule and the about text from the settings.
void SetSystemDefaults();

/// One pass of downloads. Failures are silent: they never stop the start.
void PerformDownloads();

/// Phase 1 shows the server's message if the action word asks for it; phase 0 does nothing.
void ExecuteSpecialActions(std::int32_t nPhase);

/// Closes the splash and the main window; the process then ends by itself. A window that is still
/// being made never shows.
void CloseApplication();

/// Opens a web address or file in the user's default program.
void OpenDocument(const std::string& sTarget);

/// Each backslash followed by "n" becomes "<br>".
[[nodiscard]] std::string ExpandAboutText(const std::string& sText);

}  // namespace quillet
