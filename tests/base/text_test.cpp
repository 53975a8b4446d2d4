#include "base/text.h"

#include <string>

#include <gtest/gtest.h>

#include "base/failure.h"

namespace quillet {
namespace {

using namespace std::string_literals;

TEST(Text, ReadsUtf8AsItStandsAndAnythingElseAsWindows1252) {
  const std::pair<std::string, const char*> aoRows[] = {
      {"£5", "£5"},
      {"\xA3"s + "5", "£5"},
      {"\x80\x9F", "€Ÿ"},
      {"\xC0\x80", "À€"},                               // an overlong zero isn't UTF-8
      {"\xED\xA0\x80", "í\u00A0€"},                     // nor is half a surrogate pair
      {"\xEF\xBB\xBF\xC2\xA3\xEF\xBB\xBF", "£\uFEFF"},  // only a leading byte-order mark is dropped
  };
  for (const auto& [sBytes, sExpected] : aoRows) {
    EXPECT_EQ(DecodeText(sBytes), sExpected);
  }
}

TEST(Text, HexadecimalTextHoldsFourDigitsACharacter) {
  std::string sHex = "x";
  StringToHex("A£😀", sHex);
  EXPECT_EQ(sHex, "x004100A3D83DDE00");
  std::string sText = "y";
  HexToString("004100a3D83DDE00", sText);
  EXPECT_EQ(sText, "yA£😀");
  for (const char* sBad : {"004G", "-041", "0x41", "00 1"}) {
    std::string sOut = "kept";
    EXPECT_THROW(HexToString(sBad, sOut), Failure) << sBad;
    EXPECT_EQ(sOut, "kept");
  }
}

}  // namespace
}  // namespace quillet
