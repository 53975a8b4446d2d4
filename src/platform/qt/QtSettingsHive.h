// The settings in the place where the platform keeps such things: the registry on Windows,
// elsewhere velmor/quillet.ini in the user's and in the machine's configuration folder.
#pragma once

#include <QTimer>
#include <memory>

#include "platform/SettingsHive.h"

class QString;

namespace quillet {

/// A file that can't be written (no leave, no folder, no room) costs the change and nothing else:
/// Write answers false, the file stays whole, and reading gives what it holds.
///
/// Replacing a file takes longer than a drag may pause, so changes are gathered: they are in the
/// file upon Flush, kGatherMilliseconds later if the event loop runs, and at the latest when the
/// hive is destroyed. Write tries beforehand whether that will work; if the disk fills up in
/// between, the gathered changes are lost. Reading sees them at once, and always what other
/// programs have stored.
///
/// Made after the application object, whose event loop it uses.
class QtSettingsHive : public SettingsHive {
 public:
  static constexpr int kGatherMilliseconds = 500;

  /// The platform's own places.
  QtSettingsHive();
  /// Files velmor/quillet.ini below these folders, which needn't exist.
  QtSettingsHive(const QString& sUserFolder, const QString& sMachineFolder);
  QtSettingsHive(const QtSettingsHive&) = delete;
  QtSettingsHive& operator=(const QtSettingsHive&) = delete;
  ~QtSettingsHive() override;

  [[nodiscard]] std::optional<std::string> Read(HiveRoot eRoot, const std::string& sPath,
                                                const std::string& sName) const override;
  bool Write(HiveRoot eRoot, const std::string& sPath, const std::string& sName,
             const std::string& sValue) override;
  void Delete(HiveRoot eRoot, const std::string& sPath, const std::string& sName) override;
  void Flush() override;

 private:
  class Store;

  QtSettingsHive(std::unique_ptr<Store> oUser, std::unique_ptr<Store> oMachine);
  [[nodiscard]] Store& StoreOf(HiveRoot eRoot) const;
  bool Change(Store& oStore, const QString& sKey, const std::optional<QString>& sValue);

  std::unique_ptr<Store> m_oUser;
  std::unique_ptr<Store> m_oMachine;
  QTimer m_oGathering;  ///< runs while changes are being gathered
};

}  // namespace quillet
