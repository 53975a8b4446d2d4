#include "platform/qt/QtSettingsHive.h"

#include <array>

#include <gtest/gtest.h>
#include <windows.h>

#include "platform/windows/wide.h"

namespace quillet {
namespace {

const std::string kPath = "Software\\Velmor\\Quillet Test\\Config";

/// A text value as the system stores it.
std::wstring Stored(const wchar_t* sName) {
  std::array<wchar_t, 100> acText{};
  DWORD nBytes = sizeof(acText);
  ::RegGetValueW(HKEY_CURRENT_USER, Wide(kPath).c_str(), sName, RRF_RT_REG_SZ, nullptr,
                 acText.data(), &nBytes);
  return acText.data();
}

TEST(QtSettingsHiveTest, SharesEveryChangeWithOtherProgramsAtOnce) {
  QtSettingsHive oHive;
  EXPECT_TRUE(oHive.Write(HiveRoot::User, kPath, "Top", "  £ 價, 1  "));
  EXPECT_EQ(Stored(L"Top"), Wide("  £ 價, 1  "));
  ::RegSetKeyValueW(HKEY_CURRENT_USER, Wide(kPath).c_str(), L"Top", REG_SZ, L"22",
                    3 * sizeof(wchar_t));
  EXPECT_EQ(oHive.Read(HiveRoot::User, kPath, "Top"), "22");
  oHive.Delete(HiveRoot::User, kPath, "Top");
  EXPECT_EQ(Stored(L"Top"), L"");
  ::RegDeleteTreeW(HKEY_CURRENT_USER, Wide("Software\\Velmor\\Quillet Test").c_str());
}

}  // namespace
}  // namespace quillet
