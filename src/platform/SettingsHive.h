// Where settings are kept: text values under a root and a path of keys.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace quillet {

/// The two roots, as the platform numbers them.
enum class HiveRoot : std::uint32_t {
  User = 0x80000001,     ///< settings of this user
  Machine = 0x80000002,  ///< settings shared by all users of the machine
};

/// Paths are keys joined by "\", as in "Software\Velmor\Quillet US\Config".
class SettingsHive {
 public:
  virtual ~SettingsHive() = default;

  /// The value's text, or nothing if it is missing or can't be read.
  [[nodiscard]] virtual std::optional<std::string> Read(HiveRoot eRoot, const std::string& sPath,
                                                        const std::string& sName) const = 0;

  /// Stores a value and creates its keys; false if the store can't be written.
  virtual bool Write(HiveRoot eRoot, const std::string& sPath, const std::string& sName,
                     const std::string& sValue) = 0;

  /// Removes a value; nothing happens if there is none.
  virtual void Delete(HiveRoot eRoot, const std::string& sPath, const std::string& sName) = 0;

  /// Makes sure that the changes made so far outlive the process, however it ends.
  virtual void Flush() = 0;
};

}  // namespace quillet
