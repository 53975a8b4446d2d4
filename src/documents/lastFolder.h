// The folder that auctions were last loaded from or saved in.
#pragma once

#include <string>

namespace quillet {

/// Native path: the stored one, and before there is any "My Auctions" in the user's documents. The
/// folder may not exist.
[[nodiscard]] std::string LastFolder();

/// Remembers and stores a path. No folder is made.
void SetLastFolder(const std::string& sPath);

}  // namespace quillet
