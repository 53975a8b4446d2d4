#include "base/basCommon.h"

#include <string>

#include <gtest/gtest.h>

#include "support/TestHost.h"

namespace quillet {
namespace {

using namespace std::string_literals;

TEST(Common, ABackslashInTheNameOfTheProgramsFolderIsNoSeparatorHere) {
  ScopedHost oHost;
  oHost.sProgramFolder = "/opt/a\\b";
  EXPECT_EQ(UpdateFileName(false), "/opt/a\\b" + NativePath("\\" + UpdateFileName(true)));
}

TEST(Common, CleaningCutsAsManyCharactersAsThereAreControlCharactersAtTheEnd) {
  const std::pair<std::string, std::string> aoRows[] = {
      {"", ""},
      {"  abc  ", "abc"},
      {"abc\0\0"s, "abc"},
      {"\tabc", "\tabc"},  // the front is left alone
      {"\x01\x02", ""},
      {"abc\x01!", "abc\x01"},  // one control character found, one character cut
      {"caf\xC3\xA9\x01", "café"},
  };
  for (const auto& [sText, sExpected] : aoRows) {
    EXPECT_EQ(CleanString(sText), sExpected);
  }
}

}  // namespace
}  // namespace quillet
