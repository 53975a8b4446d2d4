// The settings, in the platform's usual place: the registry on Windows, elsewhere
// velmor/quillet.ini in the user's and in the machine's configuration folder.
#pragma once

#include <QTimer>
#include <memory>

#include "platform/SettingsHive.h"
#include "platform/qt/SettingsStore.h"

namespace quillet {

/// A store may gather changes: they are written on Flush, after kGatherMilliseconds if the event
/// loop runs, and at the latest when the hive is destroyed.
///
/// Made after the application object, whose event loop it uses.
class QtSettingsHive : public SettingsHive {
 public:
  static constexpr int kGatherMilliseconds = 500;

  /// Uses the platform's own stores.
  QtSettingsHive();
  /// Uses the given stores.
  QtSettingsHive(std::unique_ptr<SettingsStore> oUser, std::unique_ptr<SettingsStore> oMachine);
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
  [[nodiscard]] SettingsStore& StoreOf(HiveRoot eRoot) const;
  bool Change(SettingsStore& oStore, const QString& sKey, const std::optional<QString>& sValue);

  std::unique_ptr<SettingsStore> m_oUser;
  std::unique_ptr<SettingsStore> m_oMachine;
  QTimer m_oGathering;  ///< runs while changes are being gathered
};

}  // namespace quillet
