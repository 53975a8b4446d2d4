#include "base/basCommon.h"

#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "support/ByRegion.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

using namespace std::string_literals;

TEST(Common, NamesFollowTheRegion) {
  ScopedHost oHost;
  oHost.sProgramFolder = "/opt/a\\b";
  EXPECT_EQ(EditionName(), ByRegion("Quillet UK", "Quillet US"));
  EXPECT_EQ(RegistryRoot(),
            ByRegion("Software\\Velmor\\Quillet UK", "Software\\Velmor\\Quillet US"));
  EXPECT_EQ(UpdateFileName(true), ByRegion("UpdateUK_v0101.dat", "UpdateUS_v0101.dat"));
  // A "\" in the folder's own name is no separator here.
  EXPECT_EQ(UpdateFileName(false), "/opt/a\\b" + NativePath("\\" + UpdateFileName(true)));
}

TEST(Common, OfTwoEqualValuesTheSecondIsTheSmaller) {
  EXPECT_EQ(MinSingle(1, 2), 1);
  EXPECT_EQ(MinSingle(2, 1), 1);
  EXPECT_TRUE(std::signbit(MinSingle(0.0, -0.0).Float()));
  EXPECT_FALSE(std::signbit(MinSingle(-0.0, 0.0).Float()));
  EXPECT_EQ(MaxLong(-5, 1), 1);
}

TEST(Common, WaitingPumpsUntilTheTimeHasPassed) {
  ScopedHost oHost;
  WaitMilliseconds(0);
  WaitMilliseconds(-7);
  EXPECT_EQ(oHost.nPumped, 0);
  WaitMilliseconds(100);
  EXPECT_EQ(oHost.nPumped, 100);
}

TEST(Common, CleaningCutsAsManyCharactersAsThereAreControlCharactersAtTheEnd) {
  const std::pair<std::string, std::string> aoRows[] = {
      {"", ""},
      {"  abc  ", "abc"},
      {"abc\0\0"s, "abc"},
      {"abc\r\n", "abc"},
      {"abc \x01", "abc"},
      {"\x01"
       "abc",
       "\x01"
       "abc"},  // the front is left alone
      {"\tabc", "\tabc"},
      {"\x01\x02", ""},
      {"abc!", "abc!"},
      {"abc\x01!", "abc\x01"},  // one control character found, one character cut
      {"C:\\Docs\\\x01\x02", "C:\\Docs\\"},
      {"caf\xC3\xA9\x01", "café"},
  };
  for (const auto& [sText, sExpected] : aoRows) {
    EXPECT_EQ(CleanString(sText), sExpected);
  }
}

TEST(Common, AFormsKeyIsItsNameWithoutFrm) {
  EXPECT_EQ(FormKeyName("frmMain"), "Main");
  EXPECT_EQ(FormKeyName("Mainfrm"), "Mainfrm");
  EXPECT_EQ(FormKeyName("FrmMain"), "FrmMain");
  EXPECT_EQ(FormKeyName("frm"), "");
}

}  // namespace
}  // namespace quillet
