#include "platform/TerminalHost.h"

#include <clocale>
#include <cstdlib>
#include <filesystem>

#include <langinfo.h>

namespace quillet {

std::string TerminalHost::ProgramFolder() const {
  std::error_code oError;
  const auto oProgram = std::filesystem::read_symlink("/proc/self/exe", oError);
  return oError ? "." : oProgram.parent_path().string();
}

std::string TerminalHost::DocumentsFolder() const {
  const char* const pHome = std::getenv("HOME");  // NOLINT(concurrency-mt-unsafe): one thread
  return pHome != nullptr ? pHome : "";
}

std::string UserDecimalSeparator() {
  const locale_t oUser = ::newlocale(LC_ALL_MASK, "", nullptr);
  if (oUser == nullptr) {
    return ".";
  }
  std::string sSeparator = ::nl_langinfo_l(RADIXCHAR, oUser);
  ::freelocale(oUser);
  return sSeparator.empty() ? "." : sSeparator;
}

}  // namespace quillet
