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

/// QSettings reads the file. It writes a file beside it, and what that gives back as it was meant
/// takes the place of the old one. A file that can't be written (no permission, no folder, no
/// room), or can't be read, costs the change and nothing else: it stays whole, and reading gives
/// what it holds.
///
/// Replacing a file takes longer than a drag may pause, so changes are gathered until Flush. Change
/// tries beforehand whether that will work; if the disk fills up in between, or another program
/// keeps the folder locked for kLockMilliseconds, the gathered changes are lost. Reading sees them
/// at once, and always what other programs have stored.
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
  [[nodiscard]] bool HasLeaveAndRoomFor(const QString& sKey, const QString& sValue);
  void Store(const Changes& asChanges);

  QString m_sFolder;
  QString m_sFile;
  std::string m_sStamp;  ///< what tells the file that was read from another in its place
  IniValues m_asValues;  ///< that it held
  Changes m_asGathered;
};

}  // namespace quillet
