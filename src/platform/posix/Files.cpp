#include "platform/Files.h"

#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/Temporaries.h"
#include "platform/handles.h"

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
    return ::close(nHandle) == 0 ? std::error_code{} : LastSystemError();
  }

 private:
  int m_nHandle;
};

/// Gives a file the owner, group and mode of another, each as far as the user is allowed to.
std::error_code TakeAfter(int nHandle, const struct stat& oOld) {
  [[maybe_unused]] const bool bKept = ::fchown(nHandle, oOld.st_uid, oOld.st_gid) == 0 ||
                                      ::fchown(nHandle, static_cast<uid_t>(-1), oOld.st_gid) == 0;
  return ::fchmod(nHandle, oOld.st_mode & 07777U) == 0 ? std::error_code{} : LastSystemError();
}

/// When this returns, the file is on the disk and reads as it should. One that replaces none gets
/// "rw" for everybody, less the user's umask.
std::error_code WriteNewFile(const std::string& sPath, std::string_view sContent,
                             const struct stat* pOld) {
  Descriptor oFile(::open(sPath.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                          pOld != nullptr ? 0600 : 0666));
  if (!oFile.IsOpen()) {
    return LastSystemError();
  }
  std::error_code oError = WriteAll(oFile.Handle(), sContent);
  if (!oError && pOld != nullptr) {
    oError = TakeAfter(oFile.Handle(), *pOld);
  }
  if (!oError && (::fsync(oFile.Handle()) != 0 || ::lseek(oFile.Handle(), 0, SEEK_SET) != 0)) {
    oError = LastSystemError();
  }
  std::string sWritten;
  if (!oError) {
    oError = ReadAll(oFile.Handle(), sContent.size(), sWritten);
  }
  if (!oError && sWritten != sContent) {
    oError = std::make_error_code(std::errc::io_error);
  }
  return oError ? oError : oFile.Close();
}

/// Follows links to their target, so that a save through a link keeps the link. A dangling link is
/// an error.
std::error_code ResolveLinks(std::string& sPath) {
  char* const pResolved = ::realpath(sPath.c_str(), nullptr);
  if (pResolved != nullptr) {
    sPath = pResolved;
    ::free(pResolved);
    return {};
  }
  const std::error_code oError = LastSystemError();
  struct stat oStatus {};
  const bool bLink = ::lstat(sPath.c_str(), &oStatus) == 0 && S_ISLNK(oStatus.st_mode);
  return bLink ? oError : std::error_code{};
}

/// Without this, a rename may not survive a crash of the machine.
void SyncFolderOf(const std::string& sPath) {
  const std::string sFolder = FolderOf(sPath);
  const Descriptor oFolder(
      ::open(sFolder.empty() ? "." : sFolder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (oFolder.IsOpen()) {
    ::fsync(oFolder.Handle());
  }
}

std::error_code NotAFile(const struct stat& oStatus) {
  return std::make_error_code(S_ISDIR(oStatus.st_mode) ? std::errc::is_a_directory
                                                       : std::errc::operation_not_supported);
}

}  // namespace

bool IsDevice(const std::string& sPath) {
  struct stat oStatus {};
  return ::stat(sPath.c_str(), &oStatus) == 0 && !S_ISREG(oStatus.st_mode) &&
         !S_ISDIR(oStatus.st_mode);
}

std::error_code RemoveFile(const std::string& sPath) {
  return ::unlink(sPath.c_str()) == 0 ? std::error_code{} : LastSystemError();
}

std::error_code ReadWholeFile(const std::string& sPath, std::size_t nLimit, std::string& sContent) {
  const Descriptor oFile(::open(sPath.c_str(), O_RDONLY | O_CLOEXEC));
  if (!oFile.IsOpen()) {
    return LastSystemError();
  }
  return ReadAll(oFile.Handle(), nLimit, sContent);
}

std::error_code ReplaceFile(const std::string& sPath, std::string_view sContent) {
  std::string sTarget = sPath;
  if (std::error_code oError = ResolveLinks(sTarget)) {
    return oError;
  }
  struct stat oOld {};
  const bool bExists = ::stat(sTarget.c_str(), &oOld) == 0;
  if (bExists && !S_ISREG(oOld.st_mode)) {
    return NotAFile(oOld);
  }
  if (bExists && ::access(sTarget.c_str(), W_OK) != 0) {
    return LastSystemError();
  }
  const std::string sTemporary = TemporaryBeside(sTarget);
  std::error_code oError = WriteNewFile(sTemporary, sContent, bExists ? &oOld : nullptr);
  if (!oError && ::rename(sTemporary.c_str(), sTarget.c_str()) != 0) {
    oError = LastSystemError();
  }
  if (oError) {
    ::unlink(sTemporary.c_str());
    return oError;
  }
  SyncFolderOf(sTarget);
  SweepTemporariesBeside(sTarget);
  return {};
}

std::error_code AppendToFile(const std::string& sPath, std::string_view sContent,
                             std::string_view sHeaderIfEmpty) {
  Descriptor oFile(::open(sPath.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666));
  struct stat oStatus {};
  if (!oFile.IsOpen() || ::fstat(oFile.Handle(), &oStatus) != 0) {
    return LastSystemError();
  }
  std::string sText(oStatus.st_size == 0 ? sHeaderIfEmpty : std::string_view{});
  sText += sContent;
  const std::error_code oError = WriteAll(oFile.Handle(), sText);
  return oError ? oError : oFile.Close();
}

}  // namespace quillet
