// Where files of the program lie that change, when its own folder belongs to somebody else.
#pragma once

#include <string>
#include <system_error>

namespace quillet {

/// The folder given if it can be written, else the user's data folder of the program, which may not
/// exist yet; the folder given again for a user who has none. Native paths.
[[nodiscard]] std::string FolderForChanges(const std::string& sProgramFolder);

/// Makes a folder with those that it lies in, as far as they are missing.
[[nodiscard]] std::error_code MakeFolder(const std::string& sFolder);

/// Copies `sShipped` to `sOwn` if that is missing or older, by their times of last change; makes
/// its folder. After an error `sOwn` stands as it was.
[[nodiscard]] std::error_code SeedFile(const std::string& sShipped, const std::string& sOwn);

/// Renames a file to `sAside`, in the place of an older one of that name.
[[nodiscard]] std::error_code PutAside(const std::string& sFile, const std::string& sAside);

}  // namespace quillet
