#include "platform/qt/QtSettingsHive.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>
#include <QStandardPaths>
#include <map>
#include <utility>

namespace quillet {
namespace {

/// The store's own spelling of a value's place.
QString KeyOf(const std::string& sPath, const std::string& sName) {
  return QString::fromStdString(sPath).replace('\\', '/') + '/' + QString::fromStdString(sName);
}

/// A text with bare commas, as one may type it into the file, is read as a list.
std::string TextOf(const QVariant& oValue) {
  return (oValue.typeId() == QMetaType::QStringList ? oValue.toStringList().join(',')
                                                    : oValue.toString())
      .toStdString();
}

QString FileIn(const QString& sFolder) {
  return sFolder + "/velmor/quillet.ini";
}

#ifdef Q_OS_WIN
constexpr auto kOwnFormat = QSettings::NativeFormat;  // the registry

QString OwnPlace(HiveRoot eRoot) {
  return eRoot == HiveRoot::Machine ? "HKEY_LOCAL_MACHINE" : "HKEY_CURRENT_USER";
}
#else
constexpr auto kOwnFormat = QSettings::IniFormat;

/// The folders begin with the user's and end with the machine's.
QString OwnPlace(HiveRoot eRoot) {
  const QStringList asFolders =
      QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
  return FileIn(eRoot == HiveRoot::Machine ? asFolders.constLast() : asFolders.constFirst());
}
#endif

}  // namespace

/// The values of one root, and the changes to them that aren't stored yet.
class QtSettingsHive::Store {
 public:
  Store(QString sPlace, QSettings::Format eFormat)
      : m_sPlace(std::move(sPlace)), m_eFormat(eFormat) {
    Open();
  }

  [[nodiscard]] std::optional<std::string> Read(const QString& sKey) {
    const auto oGathered = m_asGathered.find(sKey);
    if (oGathered != m_asGathered.end()) {
      return oGathered->second ? std::optional(oGathered->second->toStdString()) : std::nullopt;
    }
    FollowFile();
    return m_oSettings->contains(sKey) ? std::optional(TextOf(m_oSettings->value(sKey)))
                                       : std::nullopt;
  }

  /// Keeps a change for the next Flush; nothing as the value removes it. False, and the change is
  /// forgotten, if it can't be stored.
  bool Change(const QString& sKey, const std::optional<QString>& sValue) {
    if (!IsFile()) {
      return Put({{sKey, sValue}});
    }
    if (m_asGathered.empty() && !HasLeaveAndRoomFor({{sKey, sValue}})) {
      return false;
    }
    m_asGathered[sKey] = sValue;
    return true;
  }

  /// Stores what has been gathered, or forgets it if that isn't possible any more.
  void Flush() {
    const Changes asChanges = std::exchange(m_asGathered, {});
    if (!asChanges.empty() && HasLeaveAndRoomFor(asChanges)) {
      Put(asChanges);
    }
  }

 private:
  using Changes = std::map<QString, std::optional<QString>>;

  [[nodiscard]] bool IsFile() const { return m_eFormat == QSettings::IniFormat; }

  void Open() { m_oSettings = std::make_unique<QSettings>(m_sPlace, m_eFormat); }

  /// Writes the file if there are changes, and reads it if another program has replaced it.
  void FollowFile() {
    if (IsFile()) {
      m_oSettings->sync();
    }
  }

  bool Put(const Changes& asChanges) {
    for (const auto& [sKey, sValue] : asChanges) {
      sValue ? m_oSettings->setValue(sKey, *sValue) : m_oSettings->remove(sKey);
    }
    FollowFile();
    const QSettings::Status eStatus = m_oSettings->status();
    if (eStatus != QSettings::NoError) {
      Open();  // since an object never forgets a failure
    }
    return eStatus != QSettings::AccessError;
  }

  /// QSettings would hold on to a change that it could not write, so it gets none before a trial
  /// has shown that the file can be written at its new size.
  [[nodiscard]] bool HasLeaveAndRoomFor(const Changes& asChanges) const {
    constexpr qsizetype kLongestEscape = 6;  // bytes that one character may take in the file
    const QFileInfo oFile(m_sPlace);
    qsizetype nSize = oFile.size();
    for (const auto& [sKey, sValue] : asChanges) {
      nSize += kLongestEscape * (sKey.size() + sValue.value_or(QString()).size());
    }
    QDir().mkpath(oFile.path());
    QSaveFile oTrial(m_sPlace);
    return oTrial.open(QIODevice::WriteOnly) && oTrial.write(QByteArray(nSize, ' ')) == nSize &&
           oTrial.flush();
  }

  QString m_sPlace;
  QSettings::Format m_eFormat;
  std::unique_ptr<QSettings> m_oSettings;
  Changes m_asGathered;
};

QtSettingsHive::QtSettingsHive()
    : QtSettingsHive(std::make_unique<Store>(OwnPlace(HiveRoot::User), kOwnFormat),
                     std::make_unique<Store>(OwnPlace(HiveRoot::Machine), kOwnFormat)) {}

QtSettingsHive::QtSettingsHive(const QString& sUserFolder, const QString& sMachineFolder)
    : QtSettingsHive(std::make_unique<Store>(FileIn(sUserFolder), QSettings::IniFormat),
                     std::make_unique<Store>(FileIn(sMachineFolder), QSettings::IniFormat)) {}

QtSettingsHive::QtSettingsHive(std::unique_ptr<Store> oUser, std::unique_ptr<Store> oMachine)
    : m_oUser(std::move(oUser)), m_oMachine(std::move(oMachine)) {
  m_oGathering.setSingleShot(true);
  m_oGathering.setInterval(kGatherMilliseconds);
  m_oGathering.callOnTimeout([this] { Flush(); });
}

QtSettingsHive::~QtSettingsHive() {
  QtSettingsHive::Flush();
}

void QtSettingsHive::Flush() {
  m_oUser->Flush();
  m_oMachine->Flush();
}

std::optional<std::string> QtSettingsHive::Read(HiveRoot eRoot, const std::string& sPath,
                                                const std::string& sName) const {
  return StoreOf(eRoot).Read(KeyOf(sPath, sName));
}

bool QtSettingsHive::Write(HiveRoot eRoot, const std::string& sPath, const std::string& sName,
                           const std::string& sValue) {
  const QString sKey = KeyOf(sPath, sName);
  return StoreOf(eRoot).Read(sKey) == sValue ||
         Change(StoreOf(eRoot), sKey, QString::fromStdString(sValue));
}

void QtSettingsHive::Delete(HiveRoot eRoot, const std::string& sPath, const std::string& sName) {
  const QString sKey = KeyOf(sPath, sName);
  if (StoreOf(eRoot).Read(sKey)) {
    Change(StoreOf(eRoot), sKey, std::nullopt);
  }
}

QtSettingsHive::Store& QtSettingsHive::StoreOf(HiveRoot eRoot) const {
  return eRoot == HiveRoot::Machine ? *m_oMachine : *m_oUser;
}

bool QtSettingsHive::Change(Store& oStore, const QString& sKey,
                            const std::optional<QString>& sValue) {
  const bool bDone = oStore.Change(sKey, sValue);
  if (bDone && !m_oGathering.isActive()) {
    m_oGathering.start();
  }
  return bDone;
}

}  // namespace quillet
