// Whole files, read and replaced. Failures come back with the platform's own description.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>

namespace quillet {

/// Writes the separators of a path the way this platform does: "\" in the program's constants.
[[nodiscard]] std::string NativePath(std::string sPath);

/// True if a file or folder of that name exists.
[[nodiscard]] bool FileExists(const std::string& sPath);

/// True of a pipe, a socket or a device: it may keep its reader waiting, or never end.
[[nodiscard]] bool IsDevice(const std::string& sPath);

/// Size of a file in bytes; 0 if there is none.
[[nodiscard]] std::uint64_t FileSize(const std::string& sPath);

/// Removes a file; an error if there is none.
[[nodiscard]] std::error_code RemoveFile(const std::string& sPath);

/// Reads a whole file into `sContent`. A folder is an error, and so is a file of more than
/// `nLimit` bytes (file_too_large); `sContent` is then left alone.
[[nodiscard]] std::error_code ReadWholeFile(const std::string& sPath, std::size_t nLimit,
                                            std::string& sContent);

/// Puts `sContent` in the place of the file, whole or not at all: it is written beside it and read
/// back first, and after a failure the old file stands as it was and no temporary file stays. What
/// can be kept of the old file's owner, group and rights is. A link's target is replaced; a link
/// that leads nowhere, a folder and a device are errors.
[[nodiscard]] std::error_code ReplaceFile(const std::string& sPath, std::string_view sContent);

/// Appends to a file that others may read meanwhile; an empty or new file gets the header first.
[[nodiscard]] std::error_code AppendToFile(const std::string& sPath, std::string_view sContent,
                                           std::string_view sHeaderIfEmpty);

}  // namespace quillet
