// The one door to the settings. Every value is text; nothing here raises to the caller.
#pragma once

#include <optional>
#include <string>

#include "base/Settings.h"
#include "platform/SettingsHive.h"

namespace quillet {

class clsRegistryAccess {
 public:
  /// Keeps its values in `oHive`, which isn't owned.
  explicit clsRegistryAccess(SettingsHive& oHive) : m_oHive(&oHive) {}

  /// The key under which all sections lie.
  void SetFullApplicationRegKey(const std::string& sKey) { m_sFullApplicationRegKey = sKey; }

  // A section's path is the application's key, joined with the section if there is one; with
  // bAbsoluteSection it is the section alone.

  /// True and the stored text; else the default, and False unless bCreate could store it.
  bool GetRegSetting(HiveRoot hKey, const std::string& sSection, const std::string& sSettingName,
                     std::string& sResult, const std::string& sDefault, bool bCreate,
                     bool bAbsoluteSection) const;
  bool GetRegSettingString(HiveRoot hKey, std::string& sResult, const std::string& sSettingName,
                           const std::string& sSection, const std::string& sDefault) const;
  /// The same for a value stored as hexadecimal text. False, and the default unconverted, if it was
  /// missing, created or not, or isn't hexadecimal.
  bool GetRegSettingBin(HiveRoot hKey, const std::string& sSection, const std::string& sSettingName,
                        std::string& sResult, const std::string& sDefault, bool bCreate,
                        bool bAbsoluteSection) const;

  /// False if the store can't be written: the change is lost and nothing else.
  bool SetRegSetting(HiveRoot hKey, const std::string& sSection, const std::string& sSettingName,
                     const std::string& sValue, bool bAbsoluteSection) const;
  bool SetRegSettingString(HiveRoot hKey, const std::string& sValue,
                           const std::string& sSettingName, const std::string& sSection) const;
  bool SetRegSettingBin(HiveRoot hKey, const std::string& sSection, const std::string& sSettingName,
                        const std::string& sValue, bool bAbsoluteSection) const;

  void DeleteValue(HiveRoot hKey, const std::string& sSection, const std::string& sSettingName,
                   bool bAbsoluteSection) const;

  /// What has been stored so far outlives a crash.
  void Flush() const { m_oHive->Flush(); }

  // The settings of the one table (Settings.h), by their row.

  /// The stored text; nothing if there is none.
  [[nodiscard]] std::optional<std::string> Find(const Setting& oSetting) const;
  /// The stored text or the row's default.
  [[nodiscard]] std::string Get(const Setting& oSetting) const;
  /// The same, and a missing value is stored with its default.
  [[nodiscard]] std::string GetOrCreate(const Setting& oSetting) const;
  bool Set(const Setting& oSetting, const std::string& sValue) const;

  // The user's settings of one section or window, whose own section is worked out.

  [[nodiscard]] std::optional<std::string> Find(const std::string& sSection,
                                                const char* sName) const;
  bool Set(const std::string& sSection, const char* sName, const std::string& sValue) const;

 private:
  [[nodiscard]] std::string Path(const std::string& sSection, bool bAbsoluteSection) const;

  SettingsHive* m_oHive;
  std::string m_sFullApplicationRegKey;
};

/// The settings of this edition, under RegistryRoot; made on first use.
[[nodiscard]] clsRegistryAccess& Registry();

/// Where Registry keeps its values from now on. The hive isn't owned, and must be set before the
/// first use.
void SetRegistryHive(SettingsHive& oHive);

}  // namespace quillet
