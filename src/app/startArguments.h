// What the command line of the desktop program asks for.
#pragma once

#include <string>

namespace quillet {

/// The auction file to open after the start, as an absolute path; empty for none. Answers --help,
/// --version and mistakes by itself, and ends the process then; no screen is needed for that.
[[nodiscard]] std::string AuctionFileToOpen(int& nArguments, char** asArguments);

}  // namespace quillet
