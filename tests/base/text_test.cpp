#include "base/text.h"

#include <string>

#include <gtest/gtest.h>

#include "base/failure.h"

namespace quillet {
namespace {

using namespace std::string_literals;

TEST(Text, CountsCharactersAsUtf16Units) {
  EXPECT_EQ(Utf16Length("abc"), 3U);
  EXPECT_EQ(Utf16Length("£€"), 2U);
  EXPECT_EQ(Utf16Length("😀"), 2U);
  EXPECT_EQ(Utf16Length("a\xE2\x82"), 3U);  // a cut-off character counts by the byte
}

TEST(Text, ReadsUtf8AsItStandsAndAnythingElseAsWindows1252) {
  const std::pair<std::string, const char*> aoRows[] = {
      {"£5", "£5"},
      {"\xA3"s + "5", "£5"},
      {"\x80\x9F", "€Ÿ"},
      {"caf\xE9", "café"},
      {"\xC0\x80", "À€"},            // an overlong zero isn't UTF-8
      {"\xED\xA0\x80", "í\u00A0€"},  // nor is half a surrogate pair
      {"\xF5\x80\x80\x80", "õ€€€"},
      {"\xE2\x82", "â‚"},
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

TEST(Text, PadsAndTrims) {
  EXPECT_EQ(PadLeftWith("7", 3, "0"), "007");
  EXPECT_EQ(PadLeftWith("1234", 3, "0"), "1234");
  EXPECT_EQ(PadLeftWith("7", 4, "ab"), "abab7");
  EXPECT_EQ(PadLeftWith("£", 2, "0"), "0£");
  EXPECT_EQ(PadLeftWith("7", 3, ""), "7");
  EXPECT_EQ(TrimAtNul("a\0b\0\0"s), "a\0b"s);
  EXPECT_EQ(TrimAtNul("\0\0"s), "");
  EXPECT_EQ(UpperCase("debug=true é"), "DEBUG=TRUE é");
}

}  // namespace
}  // namespace quillet
