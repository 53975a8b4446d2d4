// Where the values of one root of the settings are stored.
#pragma once

#include <QString>
#include <memory>
#include <optional>

#include "platform/SettingsHive.h"

namespace quillet {

/// Keys are joined by "/".
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  [[nodiscard]] virtual std::optional<QString> Read(const QString& sKey) = 0;

  /// Sets a value, or removes it if `sValue` is nothing. False, and the change is dropped, if it
  /// can't be stored.
  virtual bool Change(const QString& sKey, const std::optional<QString>& sValue) = 0;

  /// Stores the changes that have been gathered.
  virtual void Flush() = 0;
};

/// The platform's own store.
[[nodiscard]] std::unique_ptr<SettingsStore> PlatformStore(HiveRoot eRoot);

}  // namespace quillet
