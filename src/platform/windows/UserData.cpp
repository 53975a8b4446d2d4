#include "platform/UserData.h"

#include <string>

#include <shlobj.h>
#include <windows.h>

#include "platform/windows/wide.h"

namespace quillet {
namespace {

/// Tries it, since permissions come from too many places to be read.
bool CanWriteIn(const std::string& sFolder) {
  const std::string sProbe =
      sFolder + "\\quillet-" + std::to_string(::GetCurrentProcessId()) + ".tmp";
  const HANDLE hProbe =
      ::CreateFileW(Wide(sProbe).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                    FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (hProbe == INVALID_HANDLE_VALUE) {
    return false;
  }
  ::CloseHandle(hProbe);
  return true;
}

}  // namespace

std::string FolderForChanges(const std::string& sProgramFolder) {
  if (CanWriteIn(sProgramFolder)) {
    return sProgramFolder;
  }
  const std::string sFolder = KnownFolder(FOLDERID_LocalAppData);
  return sFolder.empty() ? sProgramFolder : sFolder + "\\Quillet";
}

}  // namespace quillet
