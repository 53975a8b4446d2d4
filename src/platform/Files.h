// Whole files, read and replaced. Failures come back with the platform's own description.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>

namespace quillet {

/// Turns the "\" of the program's constants into this platform's path separator.
[[nodiscard]] std::string NativePath(std::string sPath);

/// The part of a path up to its last separator; empty if there is none.
[[nodiscard]] std::string FolderOf(const std::string& sPath);

/// The part of a path behind that.
[[nodiscard]] std::string FileNameOf(const std::string& sPath);

/// True if a file or folder of that name exists.
[[nodiscard]] bool FileExists(const std::string& sPath);

/// True for a pipe, a socket or a device: reading one may block, or never end.
[[nodiscard]] bool IsDevice(const std::string& sPath);

/// Size of a file in bytes; 0 if there is none.
[[nodiscard]] std::uint64_t FileSize(const std::string& sPath);

/// Removes a file; an error if there is none.
[[nodiscard]] std::error_code RemoveFile(const std::string& sPath);

/// Reads a whole file into `sContent`. A folder, or a file of more than `nLimit` bytes
/// (file_too_large), is an error; on errors `sContent` is left alone.
[[nodiscard]] std::error_code ReadWholeFile(const std::string& sPath, std::size_t nLimit,
                                            std::string& sContent);

/// Replaces the file's content with `sContent`, whole or not at all: it is first written to a file
/// beside it and read back; after a failure the old file is unchanged and no temporary file is
/// left. Keeps the old file's owner, group and permissions as far as possible. Replaces the target
/// of a link; a dangling link, a folder and a device are errors.
[[nodiscard]] std::error_code ReplaceFile(const std::string& sPath, std::string_view sContent);

/// Appends to a file that others may be reading; an empty or new file gets the header first.
[[nodiscard]] std::error_code AppendToFile(const std::string& sPath, std::string_view sContent,
                                           std::string_view sHeaderIfEmpty);

}  // namespace quillet
