#include "platform/UserData.h"

#include <filesystem>
#include <limits>

#include "platform/Files.h"
#include "platform/paths.h"

namespace quillet {
std::error_code MakeFolder(const std::string& sFolder) {
  std::error_code oError;
  std::filesystem::create_directories(PathOf(sFolder), oError);
  return oError;
}

std::vector<std::string> NamesIn(const std::string& sFolder) {
  std::vector<std::string> asNames;
  std::error_code oError;
  std::filesystem::directory_iterator iEntry(PathOf(sFolder), oError);
  for (; !oError && iEntry != std::filesystem::directory_iterator(); iEntry.increment(oError)) {
    asNames.push_back(TextOfPath(iEntry->path().filename()));
  }
  return asNames;
}

bool WantsSeed(const std::string& sShipped, const std::string& sOwn) {
  std::error_code oError;
  const auto oShippedTime = std::filesystem::last_write_time(PathOf(sShipped), oError);
  if (oError) {
    return false;
  }
  const auto oOwnTime = std::filesystem::last_write_time(PathOf(sOwn), oError);
  return oError || oOwnTime < oShippedTime;
}

std::error_code SeedFile(const std::string& sShipped, const std::string& sOwn) {
  if (!WantsSeed(sShipped, sOwn)) {
    return {};
  }
  std::error_code oError;
  std::filesystem::create_directories(PathOf(sOwn).parent_path(), oError);
  std::string sContent;
  if (!oError) {
    oError = ReadWholeFile(sShipped, std::numeric_limits<std::size_t>::max(), sContent);
  }
  return oError ? oError : ReplaceFile(sOwn, sContent);
}

std::error_code PutAside(const std::string& sFile, const std::string& sAside) {
  std::error_code oError;
  std::filesystem::rename(PathOf(sFile), PathOf(sAside), oError);
  return oError;
}

}  // namespace quillet
