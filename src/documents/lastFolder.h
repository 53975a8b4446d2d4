// The folder that auctions were last loaded from or saved in.
#pragma once

#include <string>

namespace quillet {

/// Native path: the stored one, or "My Auctions" in the user's documents if none is stored yet. The
/// folder may not exist.
[[nodiscard]] std::string LastFolder();

/// Remembers and stores a path. Doesn't create the folder.
void SetLastFolder(const std::string& sPath);

}  // namespace quillet
