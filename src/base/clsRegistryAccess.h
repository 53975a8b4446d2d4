// The only access to the settings. Every value is text; nothing here throws.
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

  /// The key that holds all sections.
  void SetFullApplicationRegKey(const std::string& sKey) { m_sFullApplicationRegKey = sKey; }

  // A section's path is the application's key joined with the section, if one is given; with
  // bAbsoluteSection it is the section alone.

  /// True and the stored text; else the default, and False unless bCreate stored it.
  bool GetRegSetting(HiveRoot hKey, const std::string& sSection, const std::string& sSettingName,
                     std::string& sResult, const std::string& sDefault, bool bCreate,
                     bool bAbsoluteSection) const;
  /// The program itself reads by Find, Get and GetOrCreate.
  bool GetRegSettingString(HiveRoot hKey, std::string& sResult, const std::string& sSettingName,
                           const std::string& sSection, const std::string& sDefault) const;
  /// The same for a value stored as hexadecimal text. False, and the default unconverted, if the
  /// value was missing (even if created now) or isn't hexadecimal. The program itself stores none.
  bool GetRegSettingBin(HiveRoot hKey, const std::string& sSection, const std::string& sSettingName,
                        std::string& sResult, const std::string& sDefault, bool bCreate,
                        bool bAbsoluteSection) const;

  /// False if the store can't be written; then only this change is lost.
  bool SetRegSetting(HiveRoot hKey, const std::string& sSection, const std::string& sSettingName,
                     const std::string& sValue, bool bAbsoluteSection) const;
  bool SetRegSettingString(HiveRoot hKey, const std::string& sValue,
                           const std::string& sSettingName, const std::string& sSection) const;
  bool SetRegSettingBin(HiveRoot hKey, const std::string& sSection, const std::string& sSettingName,
                        const std::string& sValue, bool bAbsoluteSection) const;

  void DeleteValue(HiveRoot hKey, const std::string& sSection, const std::string& sSettingName,
                   bool bAbsoluteSection) const;

  /// Makes sure that what has been stored so far survives a crash.
  void Flush() const { m_oHive->Flush(); }

  // The settings of the table in Settings.h, by row.

  /// The stored text; nothing if there is none.
  [[nodiscard]] std::optional<std::string> Find(const Setting& oSetting) const;
  /// The stored text or the row's default.
  [[nodiscard]] std::string Get(const Setting& oSetting) const;
  /// The same, but stores the default of a missing value.
  [[nodiscard]] std::string GetOrCreate(const Setting& oSetting) const;
  bool Set(const Setting& oSetting, const std::string& sValue) const;

  // The user's settings of one section or window, under a path that the caller builds.

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

/// Where Registry keeps its values from now on. Not owned; must be set before the first use.
void SetRegistryHive(SettingsHive& oHive);

}  // namespace quillet
