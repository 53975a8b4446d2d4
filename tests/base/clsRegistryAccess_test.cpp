#include "base/clsRegistryAccess.h"

#include <gtest/gtest.h>

#include "support/MemoryHive.h"

namespace quillet {
namespace {

constexpr HiveRoot kUser = HiveRoot::User;

class RegistryAccess : public ::testing::Test {
 protected:
  RegistryAccess() { m_oRegistry.SetFullApplicationRegKey("Software\\App"); }

  std::string& Value(const std::string& sPath) { return m_oHive.asValues[{kUser, sPath, "Name"}]; }

  MemoryHive m_oHive;
  clsRegistryAccess m_oRegistry{m_oHive};
  std::string m_sResult = "before";
};

TEST_F(RegistryAccess, ASectionsPathIsTheApplicationsKeyAndTheSectionUnlessItIsAbsolute) {
  for (const auto& [sSection, bAbsolute, sPath] :
       {std::tuple{"Config", false, "Software\\App\\Config"},
        {"", false, "Software\\App"},
        {"Other\\FTP", true, "Other\\FTP"}}) {
    EXPECT_TRUE(m_oRegistry.SetRegSetting(kUser, sSection, "Name", sPath, bAbsolute));
    EXPECT_EQ(Value(sPath), sPath);
    EXPECT_TRUE(
        m_oRegistry.GetRegSetting(kUser, sSection, "Name", m_sResult, "d", false, bAbsolute));
    EXPECT_EQ(m_sResult, sPath);
    m_oRegistry.DeleteValue(kUser, sSection, "Name", bAbsolute);
    EXPECT_TRUE(m_oHive.asValues.empty());
  }
}

TEST_F(RegistryAccess, AMissingValueIsTheDefaultAndFalseUnlessItCouldBeCreated) {
  m_oHive.bWritable = false;
  EXPECT_FALSE(m_oRegistry.GetRegSetting(kUser, "Config", "Name", m_sResult, "d", true, false));
  EXPECT_EQ(m_sResult, "d");
  m_oHive.bWritable = true;
  EXPECT_TRUE(m_oRegistry.GetRegSetting(kUser, "Config", "Name", m_sResult, "d", true, false));
  EXPECT_EQ(Value("Software\\App\\Config"), "d");
  Value("Software\\App\\Config") = "";  // an empty value counts too
  EXPECT_TRUE(m_oRegistry.GetRegSettingString(kUser, m_sResult, "Name", "Config", "d"));
  EXPECT_EQ(m_sResult, "");
}

TEST_F(RegistryAccess, BinaryValuesAreKeptAsHexadecimalText) {
  const auto fnGet = [this](bool bCreate) {
    return m_oRegistry.GetRegSettingBin(kUser, "Config", "Name", m_sResult, "0041", bCreate, false);
  };
  EXPECT_FALSE(fnGet(false));
  EXPECT_EQ(m_sResult, "0041");  // a default isn't converted
  EXPECT_FALSE(fnGet(true));
  EXPECT_EQ(Value("Software\\App\\Config"), "0041");
  EXPECT_TRUE(m_oRegistry.SetRegSettingBin(kUser, "Config", "Name", "£1", false));
  EXPECT_EQ(Value("Software\\App\\Config"), "00A30031");
  EXPECT_TRUE(fnGet(false));
  EXPECT_EQ(m_sResult, "£1");
  Value("Software\\App\\Config") = "broken";
  EXPECT_FALSE(fnGet(false));
  EXPECT_EQ(m_sResult, "0041");
}

}  // namespace
}  // namespace quillet
