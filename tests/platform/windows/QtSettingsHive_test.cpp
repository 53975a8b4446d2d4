#include "platform/qt/QtSettingsHive.h"

#include <optional>

#include <gtest/gtest.h>
#include <windows.h>

#include "platform/windows/wide.h"

namespace quillet {
namespace {

constexpr auto kUser = HiveRoot::User;
const std::string kVelmor = "Software\\Velmor";
const std::string kPath = kVelmor + "\\Quillet Test\\Config";

/// Every text in the registry is the user's own from the first moment, so each test asks there.
class QtSettingsHiveTest : public ::testing::Test {
 protected:
  ~QtSettingsHiveTest() override {
    ::RegDeleteTreeW(HKEY_CURRENT_USER, Wide(kVelmor + "\\Quillet Test").c_str());
  }

  /// A text value as the system has it.
  static std::optional<std::string> Stored(const std::string& sPath, const std::string& sName) {
    std::wstring sText(65536, L'\0');
    auto nBytes = static_cast<DWORD>(sText.size() * sizeof(wchar_t));
    if (::RegGetValueW(HKEY_CURRENT_USER, Wide(sPath).c_str(), Wide(sName).c_str(), RRF_RT_REG_SZ,
                       nullptr, sText.data(), &nBytes) != ERROR_SUCCESS) {
      return std::nullopt;
    }
    sText.resize(nBytes / sizeof(wchar_t) - 1);  // without the end
    return Narrow(sText);
  }

  QtSettingsHive m_oHive;
};

TEST_F(QtSettingsHiveTest, EveryTextIsAStringOfTheRegistryAtOnceAndComesBack) {
  const std::string asTexts[] = {
      "", "  both ends  ", "a,b", "@Invalid()", "two\nlines\r\n", "£ € 価格", "007"};
  for (const std::string& sText : asTexts) {
    EXPECT_TRUE(m_oHive.Write(kUser, kPath, "Value", sText)) << sText;
    // Qt marks its own kinds of values with an "@" in front and so doubles that of a text.
    EXPECT_EQ(Stored(kPath, "Value"), sText.starts_with('@') ? "@" + sText : sText);
    EXPECT_EQ(QtSettingsHive().Read(kUser, kPath, "Value"), sText);
  }
}

TEST_F(QtSettingsHiveTest, WhatAnotherProgramWritesIsReadAtOnceAndDeletedForIt) {
  EXPECT_TRUE(m_oHive.Write(kUser, kPath, "Top", "1"));
  ::RegSetKeyValueW(HKEY_CURRENT_USER, Wide(kPath).c_str(), L"Top", REG_SZ, L"22",
                    3 * sizeof(wchar_t));
  EXPECT_EQ(m_oHive.Read(kUser, kPath, "Top"), "22");
  m_oHive.Delete(kUser, kPath, "Top");
  EXPECT_EQ(Stored(kPath, "Top"), std::nullopt);
}

}  // namespace
}  // namespace quillet
