#include "platform/posix/IniStore.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QThread>
#include <algorithm>
#include <cerrno>
#include <limits>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/Files.h"
#include "platform/Temporaries.h"

namespace quillet {
namespace {

/// Locks a folder against other Quillets. The lock ends with the process that holds it, however
/// that ends. On a file system without locks, nobody else is assumed to use the folder.
class FolderLock {
 public:
  FolderLock(const QString& sFolder, int nMilliseconds)
      : m_nHandle(::open(QFile::encodeName(sFolder).constData(), O_RDONLY | O_CLOEXEC)) {
    const QDeadlineTimer oEnd(nMilliseconds);
    while (::flock(m_nHandle, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
      if (oEnd.hasExpired()) {
        return;
      }
      QThread::msleep(10);
    }
    m_bHeld = m_nHandle >= 0;
  }
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;
  ~FolderLock() { ::close(m_nHandle); }

  [[nodiscard]] bool IsHeld() const { return m_bHeld; }

 private:
  int m_nHandle;
  bool m_bHeld = false;
};

std::string StampOf(const QString& sFile) {
  struct stat oStatus {};
  if (::stat(QFile::encodeName(sFile).constData(), &oStatus) != 0) {
    return "";
  }
  std::string sStamp;
  for (const auto nPart :
       {static_cast<std::int64_t>(oStatus.st_dev), static_cast<std::int64_t>(oStatus.st_ino),
        std::int64_t{oStatus.st_size}, std::int64_t{oStatus.st_mtim.tv_sec},
        std::int64_t{oStatus.st_mtim.tv_nsec}}) {
    sStamp += std::to_string(nPart) + ' ';
  }
  return sStamp;
}

/// The path of a file that is removed when this goes out of scope.
class ScratchFile {
 public:
  explicit ScratchFile(const QString& sBeside)
      : m_sPath(QString::fromStdString(TemporaryBeside(sBeside.toStdString()))) {}
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;
  ~ScratchFile() { QFile::remove(m_sPath); }

  [[nodiscard]] const QString& Path() const { return m_sPath; }

 private:
  QString m_sPath;
};

/// The values in a file; nothing if it exists but can't be read. Text with commas and no quotes is
/// a list to QSettings, but one text here.
std::optional<IniValues> ValuesOf(const QString& sFile) {
  if (QFile oFile(sFile); oFile.exists() && !oFile.open(QIODevice::ReadOnly)) {
    return std::nullopt;
  }
  const QSettings oFile(sFile, QSettings::IniFormat);  // locks and writes nothing without changes
  IniValues asValues;
  for (const QString& sKey : oFile.allKeys()) {
    const QVariant oValue = oFile.value(sKey);
    asValues[sKey] = oValue.typeId() == QMetaType::QStringList ? oValue.toStringList().join(',')
                                                               : oValue.toString();
  }
  return oFile.status() == QSettings::AccessError ? std::nullopt : std::optional(asValues);
}

/// The text that QSettings writes for these values; nothing if that fails or doesn't read back the
/// same.
std::optional<std::string> TextOf(const IniValues& asValues, const QString& sBeside) {
  const ScratchFile oWritten(sBeside);
  const ScratchFile oRead(sBeside);  // QSettings would read the first from its cache
  std::string sText;
  if (asValues.empty()) {
    return sText;
  }
  {
    QSettings oFile(oWritten.Path(), QSettings::IniFormat);
    for (const auto& [sKey, sValue] : asValues) {
      oFile.setValue(sKey, sValue);
    }
  }
  const bool bProven =
      QFile::rename(oWritten.Path(), oRead.Path()) && ValuesOf(oRead.Path()) == asValues &&
      !ReadWholeFile(oRead.Path().toStdString(), std::numeric_limits<std::size_t>::max(), sText);
  return bProven ? std::optional(sText) : std::nullopt;
}

/// Waits, since QSettings takes a file with the same size and time for the one it has read.
void OutliveTimeOf(const QString& sFile) {
  constexpr qint64 kStep = 20;  // milliseconds; file times advance in steps of up to 10
  if (const QFileInfo oFile(sFile); oFile.exists()) {
    const qint64 nAge = oFile.lastModified().msecsTo(QDateTime::currentDateTime());
    QThread::msleep(nAge < 0 ? 0 : static_cast<unsigned long>(std::max(kStep - nAge, qint64{0})));
  }
}

}  // namespace

std::unique_ptr<SettingsStore> PlatformStore(HiveRoot eRoot) {
  // The folders begin with the user's and end with the machine's.
  const QStringList asFolders =
      QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
  return std::make_unique<IniStore>(eRoot == HiveRoot::Machine ? asFolders.constLast()
                                                               : asFolders.constFirst());
}

IniStore::IniStore(const QString& sFolder)
    : m_sFolder(sFolder + "/velmor"), m_sFile(m_sFolder + "/quillet.ini") {}

std::optional<QString> IniStore::Read(const QString& sKey) {
  if (const auto oGathered = m_asGathered.find(sKey); oGathered != m_asGathered.end()) {
    return oGathered->second;
  }
  (void)Follow();
  const auto oFound = m_asValues.find(sKey);
  return oFound == m_asValues.end() ? std::nullopt : std::optional(oFound->second);
}

bool IniStore::Change(const QString& sKey, const std::optional<QString>& sValue) {
  if (m_asGathered.empty() && !CanStore(sKey, sValue.value_or(QString()))) {
    return false;
  }
  m_asGathered[sKey] = sValue;
  return true;
}

void IniStore::Flush() {
  if (const Changes asChanges = std::exchange(m_asGathered, {}); !asChanges.empty()) {
    Store(asChanges);
  }
}

/// Reads the file if it has been replaced since. False if it exists but can't be read, which must
/// not be mistaken for an empty file.
bool IniStore::Follow() {
  std::string sStamp = StampOf(m_sFile);
  if (sStamp == m_sStamp) {
    return true;
  }
  std::optional<IniValues> asValues = ValuesOf(m_sFile);
  const bool bRead = asValues.has_value();
  m_sStamp = bRead ? std::move(sStamp) : "";
  m_asValues = std::move(asValues).value_or(IniValues());
  return bRead;
}

/// A trial shows whether the file can be written at its new size.
bool IniStore::CanStore(const QString& sKey, const QString& sValue) {
  constexpr qsizetype kLongestEscape = 6;  // bytes that one character may take in the file
  const QFileInfo oFile(m_sFile);
  if (!QDir().mkpath(m_sFolder) || !Follow() || (oFile.exists() && !oFile.isWritable())) {
    return false;
  }
  const qsizetype nSize = oFile.size() + kLongestEscape * (sKey.size() + sValue.size());
  const QString sTrial = QString::fromStdString(TemporaryBeside(m_sFile.toStdString()));
  QFile oTrial(sTrial);
  const bool bRoom = oTrial.open(QIODevice::WriteOnly | QIODevice::NewOnly) &&
                     oTrial.write(QByteArray(nSize, ' ')) == nSize && oTrial.flush();
  QFile::remove(sTrial);
  return bRoom;
}

/// Stores the file's present values with the changes; leaves the file alone if anything fails.
void IniStore::Store(const Changes& asChanges) {
  const FolderLock oLock(m_sFolder, kLockMilliseconds);
  if (!oLock.IsHeld() || !Follow()) {
    return;
  }
  IniValues asValues = m_asValues;
  for (const auto& [sKey, sValue] : asChanges) {
    if (sValue) {
      asValues[sKey] = *sValue;
    } else {
      asValues.erase(sKey);
    }
  }
  const std::optional<std::string> sText = TextOf(asValues, m_sFile);
  OutliveTimeOf(m_sFile);
  if (sText && !ReplaceFile(m_sFile.toStdString(), *sText)) {
    m_asValues = std::move(asValues);
    m_sStamp = StampOf(m_sFile);
  }
}

}  // namespace quillet
