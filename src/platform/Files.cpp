// What std::filesystem answers alike on every system.
#include "platform/Files.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/handles.h"
#include "platform/paths.h"

namespace quillet {
namespace {

constexpr char kSeparator = static_cast<char>(std::filesystem::path::preferred_separator);

}  // namespace

std::string NativePath(std::string sPath) {
  std::replace(sPath.begin(), sPath.end(), kSeparator == '/' ? '\\' : '/', kSeparator);
  return sPath;
}

std::string FolderOf(const std::string& sPath) {
  return sPath.substr(0, sPath.find_last_of(std::string{'/', kSeparator}) + 1);
}

std::string FileNameOf(const std::string& sPath) {
  return sPath.substr(FolderOf(sPath).size());
}

bool FileExists(const std::string& sPath) {
  std::error_code oIgnored;
  return std::filesystem::exists(PathOf(sPath), oIgnored);
}

std::uint64_t FileSize(const std::string& sPath) {
  std::error_code oError;
  const std::uintmax_t nSize = std::filesystem::file_size(PathOf(sPath), oError);
  return oError ? 0 : nSize;
}

std::error_code ReadAll(Handle hFile, std::size_t nLimit, std::string& sContent) {
  std::string sRead;
  std::array<char, 65536> acBlock;  // NOLINT: zeroing would only waste time
  std::size_t nRead = 0;
  do {
    if (std::error_code oError = ReadSome(hFile, acBlock.data(), acBlock.size(), nRead)) {
      return oError;
    }
    sRead.append(acBlock.data(), nRead);
    if (sRead.size() > nLimit) {
      return std::make_error_code(std::errc::file_too_large);
    }
  } while (nRead > 0);
  sContent = std::move(sRead);
  return {};
}

}  // namespace quillet
