#include "base/clsRegistryAccess.h"

#include <cassert>
#include <memory>

#include "base/basCommon.h"
#include "base/failure.h"
#include "base/text.h"

namespace quillet {
namespace {

SettingsHive* g_oHive = nullptr;
std::unique_ptr<clsRegistryAccess> g_oRegistry;

}  // namespace

std::string clsRegistryAccess::Path(const std::string& sSection, bool bAbsoluteSection) const {
  if (bAbsoluteSection) {
    return sSection;
  }
  return sSection.empty() ? m_sFullApplicationRegKey : m_sFullApplicationRegKey + "\\" + sSection;
}

bool clsRegistryAccess::GetRegSetting(HiveRoot hKey, const std::string& sSection,
                                      const std::string& sSettingName, std::string& sResult,
                                      const std::string& sDefault, bool bCreate,
                                      bool bAbsoluteSection) const {
  const std::optional<std::string> sStored =
      m_oHive->Read(hKey, Path(sSection, bAbsoluteSection), sSettingName);
  sResult = sStored.value_or(sDefault);
  if (!sStored && bCreate) {
    return SetRegSetting(hKey, sSection, sSettingName, sDefault, bAbsoluteSection);
  }
  return sStored.has_value();
}

bool clsRegistryAccess::GetRegSettingString(HiveRoot hKey, std::string& sResult,
                                            const std::string& sSettingName,
                                            const std::string& sSection,
                                            const std::string& sDefault) const {
  return GetRegSetting(hKey, sSection, sSettingName, sResult, sDefault, false, false);
}

bool clsRegistryAccess::GetRegSettingBin(HiveRoot hKey, const std::string& sSection,
                                         const std::string& sSettingName, std::string& sResult,
                                         const std::string& sDefault, bool bCreate,
                                         bool bAbsoluteSection) const {
  std::string sHex;
  if (!GetRegSetting(hKey, sSection, sSettingName, sHex, sDefault, false, bAbsoluteSection)) {
    if (bCreate) {
      SetRegSetting(hKey, sSection, sSettingName, sDefault, bAbsoluteSection);
    }
    sResult = sDefault;
    return false;
  }
  try {
    std::string sText;
    HexToString(sHex, sText);
    sResult = std::move(sText);
    return true;
  } catch (const Failure&) {
    sResult = sDefault;
    return false;
  }
}

bool clsRegistryAccess::SetRegSetting(HiveRoot hKey, const std::string& sSection,
                                      const std::string& sSettingName, const std::string& sValue,
                                      bool bAbsoluteSection) const {
  return m_oHive->Write(hKey, Path(sSection, bAbsoluteSection), sSettingName, sValue);
}

bool clsRegistryAccess::SetRegSettingString(HiveRoot hKey, const std::string& sValue,
                                            const std::string& sSettingName,
                                            const std::string& sSection) const {
  return SetRegSetting(hKey, sSection, sSettingName, sValue, false);
}

bool clsRegistryAccess::SetRegSettingBin(HiveRoot hKey, const std::string& sSection,
                                         const std::string& sSettingName, const std::string& sValue,
                                         bool bAbsoluteSection) const {
  std::string sHex;
  StringToHex(sValue, sHex);
  return SetRegSetting(hKey, sSection, sSettingName, sHex, bAbsoluteSection);
}

void clsRegistryAccess::DeleteValue(HiveRoot hKey, const std::string& sSection,
                                    const std::string& sSettingName, bool bAbsoluteSection) const {
  m_oHive->Delete(hKey, Path(sSection, bAbsoluteSection), sSettingName);
}

std::optional<std::string> clsRegistryAccess::Find(const Setting& oSetting) const {
  return m_oHive->Read(oSetting.eRoot, Path(oSetting.sSection, false), oSetting.sName);
}

std::optional<std::string> clsRegistryAccess::Find(const std::string& sSection,
                                                   const char* sName) const {
  return m_oHive->Read(HiveRoot::User, Path(sSection, false), sName);
}

std::string clsRegistryAccess::Get(const Setting& oSetting) const {
  return Find(oSetting).value_or(oSetting.sDefault);
}

std::string clsRegistryAccess::GetOrCreate(const Setting& oSetting) const {
  std::string sResult;
  GetRegSetting(oSetting.eRoot, oSetting.sSection, oSetting.sName, sResult, oSetting.sDefault, true,
                false);
  return sResult;
}

bool clsRegistryAccess::Set(const Setting& oSetting, const std::string& sValue) const {
  return SetRegSettingString(oSetting.eRoot, sValue, oSetting.sName, oSetting.sSection);
}

bool clsRegistryAccess::Set(const std::string& sSection, const char* sName,
                            const std::string& sValue) const {
  return SetRegSettingString(HiveRoot::User, sValue, sName, sSection);
}

clsRegistryAccess& Registry() {
  if (!g_oRegistry) {
    assert(g_oHive != nullptr);
    g_oRegistry = std::make_unique<clsRegistryAccess>(*g_oHive);
    g_oRegistry->SetFullApplicationRegKey(RegistryRoot());
  }
  return *g_oRegistry;
}

void SetRegistryHive(SettingsHive& oHive) {
  g_oHive = &oHive;
  g_oRegistry.reset();
}

}  // namespace quillet
