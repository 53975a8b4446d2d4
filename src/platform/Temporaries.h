// The temporary files that a save writes first and then puts in place of the old ones.
#pragma once

#include <string>

namespace quillet {

/// A path for one, beside the given file: a random name, short however long that file's is.
[[nodiscard]] std::string TemporaryBeside(const std::string& sPath);

/// Removes those beside the given file that are more than a day old: a killed program left them.
void SweepTemporariesBeside(const std::string& sPath);

}  // namespace quillet
