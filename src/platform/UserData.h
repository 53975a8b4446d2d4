// Where the program's changing files go when it can't write to its own folder.
#pragma once

#include <string>
#include <system_error>
#include <vector>

namespace quillet {

/// The given folder if it can be written, else the program's folder in the user's data, which may
/// not exist yet; the given folder again for a user who has none. Native paths.
[[nodiscard]] std::string FolderForChanges(const std::string& sProgramFolder);

/// Makes a folder, and any of its parents that are missing.
[[nodiscard]] std::error_code MakeFolder(const std::string& sFolder);

/// The bare names of the files and folders in a folder, in no order; none if it can't be read.
[[nodiscard]] std::vector<std::string> NamesIn(const std::string& sFolder);

/// Whether `sOwn` is missing or was changed earlier than `sShipped`; false if `sShipped` is
/// missing.
[[nodiscard]] bool WantsSeed(const std::string& sShipped, const std::string& sOwn);

/// Copies `sShipped` to `sOwn`, and makes its folder, if `sOwn` is missing or was changed earlier.
/// After an error `sOwn` is as it was.
[[nodiscard]] std::error_code SeedFile(const std::string& sShipped, const std::string& sOwn);

/// Renames a file to `sAside`, replacing any file of that name.
[[nodiscard]] std::error_code PutAside(const std::string& sFile, const std::string& sAside);

}  // namespace quillet
