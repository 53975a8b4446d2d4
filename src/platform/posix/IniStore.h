// Settings in a file of sections and values, velmor/quillet.ini in a configuration folder.
#pragma once

#include <QString>
#include <map>
#include <optional>
#include <string>

#include "platform/qt/SettingsStore.h"

namespace quillet {

/// Values by their keys, which are joined by "/".
using IniValues = std::map<QString, QString>;

/// QSettings reads the file. It writes to another file beside it, which replaces the old one only
/// if it reads back correctly. If the file can't be written (no permission, no folder, no room) or
/// can't be read, only the change is lost: the file stays whole, and reading gives what it holds.
///
/// Replacing a file would make a drag stutter, so changes are gathered until Flush. Change checks
/// beforehand that Flush will work; if the disk fills up in between, or another program keeps the
/// folder locked for kLockMilliseconds, the gathered changes are lost. Reading always sees them,
/// and what other programs have stored.
class IniStore : public SettingsStore {
 public:
  static constexpr int kLockMilliseconds = 2000;

  /// The file velmor/quillet.ini below a folder, which needn't exist.
  explicit IniStore(const QString& sFolder);

  [[nodiscard]] std::optional<QString> Read(const QString& sKey) override;
  bool Change(const QString& sKey, const std::optional<QString>& sValue) override;
  void Flush() override;

 private:
  using Changes = std::map<QString, std::optional<QString>>;

  [[nodiscard]] bool Follow();
  [[nodiscard]] bool CanStore(const QString& sKey, const QString& sValue);
  void Store(const Changes& asChanges);

  QString m_sFolder;
  QString m_sFile;
  std::string m_sStamp;  ///< tells the file that was read from one that has replaced it
  IniValues m_asValues;  ///< the values it held
  Changes m_asGathered;
};

}  // namespace quillet
