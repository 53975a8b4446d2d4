// The diagnostic log: a text file that shows how far a run got, written on request only.
#pragma once

#include <string>

namespace quillet {

extern bool g_bDebug;  ///< the log is on

/// Turns the log on if the text contains "DEBUG=TRUE", else off. Case matters.
void ParseCommandLine(const std::string& sCommandLine);

/// Appends a line with the time to QlDebug.log in the program's folder, or in the user's data
/// folder if that can't be written. The file is opened and closed each time, so that it survives a
/// crash. Does nothing when the log is off, and never fails.
void WriteLog(const std::string& sComment);

}  // namespace quillet
