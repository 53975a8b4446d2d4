// The files that a save writes first, and then puts in the place of the old ones.
#pragma once

#include <string>

namespace quillet {

/// The path of one beside the file given: its name is random, and short however long that file's
/// is.
[[nodiscard]] std::string TemporaryBeside(const std::string& sPath);

/// Removes those beside the file given that a program which was killed has left a day ago.
void SweepTemporariesBeside(const std::string& sPath);

}  // namespace quillet
