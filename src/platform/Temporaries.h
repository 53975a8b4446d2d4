// The files that a save writes first, and then puts in the place of the old ones.
#pragma once

#include <filesystem>
#include <string>

namespace quillet {

/// The path of one beside the file given: its name is random, and short however long that file's
/// is.
[[nodiscard]] std::string TemporaryBeside(const std::string& sPath);

/// Removes those beside the file given that a program which was killed has left a day ago.
void SweepTemporariesBeside(const std::string& sPath);

/// A path as the standard library has it; on POSIX its bytes pass unchanged, UTF-8 or not.
[[nodiscard]] inline std::filesystem::path PathOf(const std::string& sPath) {
  return {std::u8string(sPath.begin(), sPath.end())};
}

}  // namespace quillet
