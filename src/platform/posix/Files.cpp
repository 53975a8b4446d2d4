#include "platform/Files.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/Descriptors.h"

namespace quillet {
namespace {

/// An open file, closed when it goes out of scope.
class Descriptor {
 public:
  explicit Descriptor(int nHandle) : m_nHandle(nHandle) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { (void)Close(); }

  [[nodiscard]] bool IsOpen() const { return m_nHandle >= 0; }
  [[nodiscard]] int Handle() const { return m_nHandle; }

  /// Some file systems report a full disk only here.
  std::error_code Close() {
    if (m_nHandle < 0) {
      return {};
    }
    const int nHandle = m_nHandle;
    m_nHandle = -1;
    return ::close(nHandle) == 0 ? std::error_code{} : LastError();
  }

 private:
  int m_nHandle;
};

/// Without a mode the file gets what the user's mask leaves of "rw" for everybody.
std::error_code WriteNewFile(const std::string& sPath, std::string_view sContent,
                             std::optional<mode_t> nMode) {
  Descriptor oFile(
      ::open(sPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, nMode.value_or(0666U)));
  if (!oFile.IsOpen() || (nMode && ::fchmod(oFile.Handle(), *nMode) != 0)) {
    return LastError();
  }
  if (std::error_code oError = WriteAll(oFile.Handle(), sContent)) {
    return oError;
  }
  if (::fsync(oFile.Handle()) != 0) {
    return LastError();
  }
  return oFile.Close();
}

/// The file that a chain of symbolic links ends in, so that replacing a link keeps the link.
std::string ResolveLinks(const std::string& sPath) {
  char* const pResolved = ::realpath(sPath.c_str(), nullptr);
  if (pResolved == nullptr) {
    return sPath;
  }
  std::string sResolved(pResolved);
  ::free(pResolved);
  return sResolved;
}

}  // namespace

std::string NativePath(std::string sPath) {
  std::replace(sPath.begin(), sPath.end(), '\\', '/');
  return sPath;
}

bool FileExists(const std::string& sPath) {
  return ::access(sPath.c_str(), F_OK) == 0;
}

std::uint64_t FileSize(const std::string& sPath) {
  struct stat oStatus {};
  const bool bFile = ::stat(sPath.c_str(), &oStatus) == 0 && S_ISREG(oStatus.st_mode);
  return bFile ? static_cast<std::uint64_t>(oStatus.st_size) : 0;
}

std::error_code RemoveFile(const std::string& sPath) {
  return ::unlink(sPath.c_str()) == 0 ? std::error_code{} : LastError();
}

std::error_code ReadWholeFile(const std::string& sPath, std::size_t nLimit, std::string& sContent) {
  const Descriptor oFile(::open(sPath.c_str(), O_RDONLY | O_CLOEXEC));
  if (!oFile.IsOpen()) {
    return LastError();
  }
  std::string sRead;
  std::array<char, 65536> acBlock;  // NOLINT: zeros would only take time
  while (true) {
    std::size_t nRead = 0;
    if (std::error_code oError = ReadSome(oFile.Handle(), acBlock.data(), acBlock.size(), nRead)) {
      return oError;
    }
    if (nRead == 0) {
      break;
    }
    sRead.append(acBlock.data(), nRead);
    if (sRead.size() > nLimit) {
      return std::make_error_code(std::errc::file_too_large);
    }
  }
  sContent = std::move(sRead);
  return {};
}

std::error_code ReplaceFile(const std::string& sPath, std::string_view sContent) {
  const std::string sTarget = ResolveLinks(sPath);
  struct stat oStatus {};
  const bool bExists = ::stat(sTarget.c_str(), &oStatus) == 0;
  if (bExists && !S_ISREG(oStatus.st_mode)) {
    // A device or pipe can't be replaced, only written to; opening a folder so fails as it should.
    Descriptor oFile(::open(sTarget.c_str(), O_WRONLY | O_CLOEXEC));
    if (!oFile.IsOpen()) {
      return LastError();
    }
    const std::error_code oError = WriteAll(oFile.Handle(), sContent);
    return oError ? oError : oFile.Close();
  }
  if (bExists && ::access(sTarget.c_str(), W_OK) != 0) {
    return LastError();
  }
  const std::string sTemporary = sTarget + "." + std::to_string(::getpid()) + ".tmp";
  const std::optional<mode_t> nMode =
      bExists ? std::optional<mode_t>(oStatus.st_mode & 07777U) : std::nullopt;
  std::error_code oError = WriteNewFile(sTemporary, sContent, nMode);
  if (!oError && ::rename(sTemporary.c_str(), sTarget.c_str()) != 0) {
    oError = LastError();
  }
  if (oError) {
    ::unlink(sTemporary.c_str());
  }
  return oError;
}

std::error_code AppendToFile(const std::string& sPath, std::string_view sContent,
                             std::string_view sHeaderIfEmpty) {
  Descriptor oFile(::open(sPath.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666));
  struct stat oStatus {};
  if (!oFile.IsOpen() || ::fstat(oFile.Handle(), &oStatus) != 0) {
    return LastError();
  }
  std::string sText(oStatus.st_size == 0 ? sHeaderIfEmpty : std::string_view{});
  sText += sContent;
  const std::error_code oError = WriteAll(oFile.Handle(), sText);
  return oError ? oError : oFile.Close();
}

}  // namespace quillet
