#include "platform/TerminalHost.h"

#include <shlobj.h>
#include <windows.h>

#include "platform/windows/wide.h"

namespace quillet {

std::string TerminalHost::ProgramFolder() const {
  std::wstring sPath(32768, L'\0');  // the longest path that the system has
  sPath.resize(::GetModuleFileNameW(nullptr, sPath.data(), static_cast<DWORD>(sPath.size())));
  const std::string sProgram = Narrow(sPath);
  const std::size_t nEnd = sProgram.rfind('\\');
  return nEnd == std::string::npos ? "." : sProgram.substr(0, nEnd);
}

std::string TerminalHost::DocumentsFolder() const {
  return KnownFolder(FOLDERID_Documents);
}

std::string UserDecimalSeparator() {
  std::wstring sSeparator(4, L'\0');  // at most three characters, and the final NUL
  const int nLength = ::GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL,
                                        sSeparator.data(), static_cast<int>(sSeparator.size()));
  sSeparator.resize(static_cast<std::size_t>(nLength > 0 ? nLength - 1 : 0));
  return sSeparator.empty() ? "." : Narrow(sSeparator);
}

}  // namespace quillet
