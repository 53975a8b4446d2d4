#include "platform/windows/wide.h"

#include <shlobj.h>
#include <windows.h>

namespace quillet {

std::wstring Wide(const std::string& sText) {
  const int nSize = static_cast<int>(sText.size());
  const int nLength = ::MultiByteToWideChar(CP_UTF8, 0, sText.data(), nSize, nullptr, 0);
  std::wstring sWide(static_cast<std::size_t>(nLength), L'\0');
  ::MultiByteToWideChar(CP_UTF8, 0, sText.data(), nSize, sWide.data(), nLength);
  return sWide;
}

std::string Narrow(const std::wstring& sWide) {
  const int nSize = static_cast<int>(sWide.size());
  const int nLength =
      ::WideCharToMultiByte(CP_UTF8, 0, sWide.data(), nSize, nullptr, 0, nullptr, nullptr);
  std::string sText(static_cast<std::size_t>(nLength), '\0');
  ::WideCharToMultiByte(CP_UTF8, 0, sWide.data(), nSize, sText.data(), nLength, nullptr, nullptr);
  return sText;
}

std::string KnownFolder(const GUID& oId) {
  PWSTR pFolder = nullptr;
  const bool bFound = SUCCEEDED(::SHGetKnownFolderPath(oId, 0, nullptr, &pFolder));
  std::string sFolder = bFound ? Narrow(pFolder) : std::string();
  ::CoTaskMemFree(pFolder);
  return sFolder;
}

}  // namespace quillet
