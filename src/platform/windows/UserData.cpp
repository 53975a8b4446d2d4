#include "platform/UserData.h"

#include <filesystem>
#include <string>

#include <shlobj.h>
#include <windows.h>

namespace quillet {
namespace {

std::filesystem::path PathOf(const std::string& sUtf8) {
  return {std::u8string(sUtf8.begin(), sUtf8.end())};
}

std::string TextOf(const std::filesystem::path& oPath) {
  const std::u8string sText = oPath.u8string();
  return {sText.begin(), sText.end()};
}

/// Only the attempt tells: rights come from too many places to be read.
bool CanWriteIn(const std::string& sFolder) {
  const std::filesystem::path oProbe =
      PathOf(sFolder) / (L"quillet-" + std::to_wstring(::GetCurrentProcessId()) + L".tmp");
  const HANDLE hProbe =
      ::CreateFileW(oProbe.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
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
  PWSTR pFolder = nullptr;
  const bool bFound =
      SUCCEEDED(::SHGetKnownFolderPath(FOLDERID_LocalAppData, 0, nullptr, &pFolder));
  const std::string sFolder =
      bFound ? TextOf(std::filesystem::path(pFolder) / L"Quillet") : sProgramFolder;
  ::CoTaskMemFree(pFolder);
  return sFolder;
}

}  // namespace quillet
