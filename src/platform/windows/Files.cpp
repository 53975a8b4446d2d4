#include "platform/Files.h"

#include <windows.h>
#undef ReplaceFile  // the system's macro

#include "platform/Temporaries.h"
#include "platform/handles.h"
#include "platform/windows/wide.h"

namespace quillet {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// An open file, closed when it goes out of scope.
class OpenFile {
 public:
  OpenFile(const std::string& sPath, DWORD nAccess, DWORD nShare, DWORD nHow)
      : m_hFile(::CreateFileW(Wide(sPath).c_str(), nAccess, nShare, nullptr, nHow,
                              FILE_ATTRIBUTE_NORMAL, nullptr)) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() { (void)Close(); }

  [[nodiscard]] bool IsOpen() const { return m_hFile != INVALID_HANDLE_VALUE; }
  [[nodiscard]] HANDLE Handle() const { return m_hFile; }

  std::error_code Close() {
    if (!IsOpen()) {
      return {};
    }
    const HANDLE hFile = m_hFile;
    m_hFile = INVALID_HANDLE_VALUE;
    return ::CloseHandle(hFile) != FALSE ? std::error_code{} : LastSystemError();
  }

 private:
  HANDLE m_hFile;
};

/// When this returns, the file is on the disk and reads as it should.
std::error_code WriteNewFile(const std::string& sPath, std::string_view sContent) {
  OpenFile oFile(sPath, GENERIC_READ | GENERIC_WRITE, 0, CREATE_NEW);
  if (!oFile.IsOpen()) {
    return LastSystemError();
  }
  if (std::error_code oError = WriteAll(oFile.Handle(), sContent)) {
    return oError;
  }
  if (::FlushFileBuffers(oFile.Handle()) == FALSE ||
      ::SetFilePointerEx(oFile.Handle(), {}, nullptr, FILE_BEGIN) == FALSE) {
    return LastSystemError();
  }
  std::string sWritten;
  if (std::error_code oError = ReadAll(oFile.Handle(), sContent.size(), sWritten)) {
    return oError;
  }
  return sWritten == sContent ? oFile.Close() : std::make_error_code(std::errc::io_error);
}

/// Keeps the old file's permissions and dates. If it fails halfway, the old file is put back.
bool PutInPlaceOfOld(const std::wstring& sTemporary, const std::wstring& sPath) {
  constexpr DWORD kIgnoreRights = 4;  // REPLACEFILE_IGNORE_ACL_ERRORS, which some headers lack
  const std::wstring sOld = sTemporary + L".old";
  const bool bDone =
      ::ReplaceFileW(sPath.c_str(), sTemporary.c_str(), sOld.c_str(),
                     REPLACEFILE_IGNORE_MERGE_ERRORS | kIgnoreRights, nullptr, nullptr) != FALSE;
  if (!bDone) {
    ::MoveFileExW(sOld.c_str(), sPath.c_str(), 0);
  }
  if (::GetFileAttributesW(sPath.c_str()) != INVALID_FILE_ATTRIBUTES) {
    ::DeleteFileW(sOld.c_str());
  }
  return bDone;
}

/// The first way needs an old file, and a disk with permissions.
bool PutInPlace(const std::wstring& sTemporary, const std::wstring& sPath) {
  return PutInPlaceOfOld(sTemporary, sPath) ||
         ::MoveFileExW(sTemporary.c_str(), sPath.c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
}

}  // namespace

bool IsDevice(const std::string& sPath) {
  const OpenFile oFile(sPath, 0, kShareAll, OPEN_EXISTING);
  return oFile.IsOpen() && ::GetFileType(oFile.Handle()) != FILE_TYPE_DISK;
}

std::error_code RemoveFile(const std::string& sPath) {
  return ::DeleteFileW(Wide(sPath).c_str()) != FALSE ? std::error_code{} : LastSystemError();
}

std::error_code ReadWholeFile(const std::string& sPath, std::size_t nLimit, std::string& sContent) {
  const OpenFile oFile(sPath, GENERIC_READ, kShareAll, OPEN_EXISTING);
  if (!oFile.IsOpen()) {
    return LastSystemError();
  }
  return ReadAll(oFile.Handle(), nLimit, sContent);
}

std::error_code ReplaceFile(const std::string& sPath, std::string_view sContent) {
  const DWORD nAttributes = ::GetFileAttributesW(Wide(sPath).c_str());
  if (nAttributes != INVALID_FILE_ATTRIBUTES &&
      (nAttributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0) {
    return {ERROR_ACCESS_DENIED, std::system_category()};
  }
  const std::string sTemporary = TemporaryBeside(sPath);
  std::error_code oError = WriteNewFile(sTemporary, sContent);
  if (!oError && !PutInPlace(Wide(sTemporary), Wide(sPath))) {
    oError = LastSystemError();
  }
  if (oError) {
    ::DeleteFileW(Wide(sTemporary).c_str());
  } else {
    SweepTemporariesBeside(sPath);
  }
  return oError;
}

std::error_code AppendToFile(const std::string& sPath, std::string_view sContent,
                             std::string_view sHeaderIfEmpty) {
  OpenFile oFile(sPath, FILE_APPEND_DATA | FILE_READ_ATTRIBUTES, kShareAll, OPEN_ALWAYS);
  LARGE_INTEGER oSize{};
  if (!oFile.IsOpen() || ::GetFileSizeEx(oFile.Handle(), &oSize) == FALSE) {
    return LastSystemError();
  }
  std::string sText(oSize.QuadPart == 0 ? sHeaderIfEmpty : std::string_view{});
  sText += sContent;
  const std::error_code oError = WriteAll(oFile.Handle(), sText);
  return oError ? oError : oFile.Close();
}

}  // namespace quillet
