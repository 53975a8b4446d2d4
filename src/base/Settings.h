// Every value that the program keeps in its settings: root, section and name, in one place.
#pragma once

#include <array>
#include <string>

#include "base/servers.h"
#include "platform/SettingsHive.h"

namespace quillet {

struct Setting {
  HiveRoot eRoot;
  const char* sSection;  ///< under RegistryRoot
  const char* sName;
  const char* sDefault;
};

namespace settings {

/// View at start: "0" for the wizard, any other text for the calculator. Created if missing.
inline constexpr Setting kStartMode{HiveRoot::User, "Config", "StartMode", "0"};
/// Grid step of the calculator in twips; a value that isn't numeric counts as 120. Created if
/// missing.
inline constexpr Setting kSnapToGrid{HiveRoot::User, "Config", "SnapToGrid", "120"};
/// The default auction, in the text of an auction file.
inline constexpr Setting kDefaultAuction{HiveRoot::User, "Config", "DefaultAuction", ""};
/// File name of the chosen fee schedule; empty for the default. A name that the region's schedules
/// can't have counts as empty.
inline constexpr Setting kSchedule{HiveRoot::User, "Config", "Schedule", ""};
/// Last folder used for auctions; the default is made from the user's documents folder.
inline constexpr Setting kLastFolder{HiveRoot::User, "Config", "LastFolder", ""};
/// Colours as decimal numbers, red in the low byte. Read only.
inline constexpr Setting kSubtotalColour{HiveRoot::User, "Config", "SubtotalColour", "33023"};
inline constexpr Setting kTotalColour{HiveRoot::User, "Config", "TotalColour", "12648384"};
/// Parameters of the about movie, in the movie's own words.
inline constexpr Setting kMusicId{HiveRoot::User, "Config", "MusicID", "music=0"};
inline constexpr Setting kMusicMute{HiveRoot::User, "Config", "MusicMute", "mute=false"};
/// Day number of the update attempt in progress; deleted when it succeeds.
inline constexpr Setting kFtpSkipFlag{HiveRoot::User, "Config", "FTPSkipFlag", ""};
/// The update's servers, each "host" or "host:port". Read only.
inline constexpr Setting kWebServer{HiveRoot::Machine, "Config", "WebServer", kBuiltInWebServer};
inline constexpr Setting kFtpServer{HiveRoot::Machine, "Config", "FtpServer", kBuiltInFtpServer};
/// Identifies this installation: random text, made once.
inline constexpr Setting kCode{HiveRoot::User, "Config", "Code", ""};
/// The proxy, "host" or "host:port"; empty for the user's own proxy settings. Read only. The
/// section looks absolute, but is under RegistryRoot like every other.
inline constexpr Setting kProxyName{HiveRoot::Machine, R"(Software\Velmor\Gavel Ledger\FTP)",
                                    "ProxyName", ""};
/// Size of the interface in percent.
inline constexpr Setting kZoom{HiveRoot::User, "Config", "Zoom", ""};
/// Instructions of the wizard's pages, by the number of the frame that a page is in. Read only.
inline constexpr std::array<Setting, 6> kPageInfo = {{
    {HiveRoot::User, "Wizard", "Page0",
     "Please enter your costs and the price you wish to sell for."},
    {HiveRoot::User, "Wizard", "Page1", "Please enter your type of auction"},
    {HiveRoot::User, "Wizard", "Page2", "Please enter extra features you want to use"},
    {HiveRoot::User, "Wizard", "Page3", "Do you want to accept payment through PayPal?"},
    {HiveRoot::User, "Wizard", "Page4", "Do you want to send it through Royal Mail?"},
    {HiveRoot::User, "Wizard", "Page5", "Please choose the category and what eBay charges for"},
}};
/// The scrolling message of the about page.
inline constexpr Setting kAbout{
    HiveRoot::Machine, "Config", "About",
    "Welcome to Quillet.\\nKnow what a sale will leave you before you list it."};

/// A section's own settings are under this and its key: the words of the rows to show, joined by
/// ",", and its place in the calculator in whole twips.
inline constexpr const char* kControls = "Controls\\";
inline constexpr const char* kVisible = "Visible";
/// A window's place is under this and its FormKeyName, in twips.
inline constexpr const char* kForms = "Forms\\";
inline constexpr const char* kTop = "Top";
inline constexpr const char* kLeft = "Left";
inline constexpr const char* kHeight = "Height";
inline constexpr const char* kWidth = "Width";
inline constexpr const char* kWindowState = "WindowState";  ///< 0 normal, 1 minimised, 2 maximised

}  // namespace settings
}  // namespace quillet
