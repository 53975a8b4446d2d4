#include "platform/UserData.h"

#include <cstdlib>
#include <filesystem>
#include <limits>

#include <unistd.h>

#include "platform/Files.h"

namespace quillet {
namespace {

std::string Environment(const char* sName) {
  const char* const pValue = std::getenv(sName);  // NOLINT(concurrency-mt-unsafe): one thread
  return pValue != nullptr ? pValue : "";
}

}  // namespace

std::string FolderForChanges(const std::string& sProgramFolder) {
  if (::access(sProgramFolder.c_str(), W_OK) == 0) {
    return sProgramFolder;
  }
  // A relative path in XDG_DATA_HOME counts as none.
  if (const std::string sData = Environment("XDG_DATA_HOME"); sData.starts_with('/')) {
    return sData + "/quillet";
  }
  const std::string sHome = Environment("HOME");
  return sHome.empty() ? sProgramFolder : sHome + "/.local/share/quillet";
}

std::error_code SeedFile(const std::string& sShipped, const std::string& sOwn) {
  std::error_code oError;
  const auto oShippedTime = std::filesystem::last_write_time(sShipped, oError);
  if (oError) {
    return oError;
  }
  const auto oOwnTime = std::filesystem::last_write_time(sOwn, oError);
  if (!oError && oOwnTime >= oShippedTime) {
    return {};
  }
  std::filesystem::create_directories(std::filesystem::path(sOwn).parent_path(), oError);
  std::string sContent;
  if (!oError) {
    oError = ReadWholeFile(sShipped, std::numeric_limits<std::size_t>::max(), sContent);
  }
  return oError ? oError : ReplaceFile(sOwn, sContent);
}

}  // namespace quillet
