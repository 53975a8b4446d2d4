// Where the values of one root of the settings lie.
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

  /// Sets a value; nothing as the value removes it. False, and the change is forgotten, if it can't
  /// be stored.
  virtual bool Change(const QString& sKey, const std::optional<QString>& sValue) = 0;

  /// Stores the changes that have been gathered.
  virtual void Flush() = 0;
};

/// The platform's own place.
[[nodiscard]] std::unique_ptr<SettingsStore> PlatformStore(HiveRoot eRoot);

}  // namespace quillet
