// What the command line of the desktop program asks for.
#pragma once

#include <string>

namespace quillet {

/// The auction file to open after the start, as an absolute path; empty for none. Handles --help,
/// --version and mistakes itself and then ends the process, without needing a screen.
[[nodiscard]] std::string AuctionFileToOpen(int& nArguments, char** asArguments);

}  // namespace quillet
