#include "platform/UserData.h"

#include <cstdlib>

#include <unistd.h>

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

}  // namespace quillet
