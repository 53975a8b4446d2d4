// Converts paths between the program's text and the standard library.
#pragma once

#include <filesystem>
#include <string>

namespace quillet {

/// On POSIX the bytes of a path stay unchanged, UTF-8 or not.
[[nodiscard]] inline std::filesystem::path PathOf(const std::string& sPath) {
  return {std::u8string(sPath.begin(), sPath.end())};
}

[[nodiscard]] inline std::string TextOfPath(const std::filesystem::path& oPath) {
  const std::u8string sPath = oPath.u8string();
  return {sPath.begin(), sPath.end()};
}

}  // namespace quillet
