#include "prices/clsTokeniser.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "base/failure.h"

namespace quillet {
namespace {

TEST(Tokeniser, SplitsAndDropsEmptyFields) {
  using Fields = std::vector<std::string>;
  const std::tuple<const char*, const char*, Fields, bool> aoRows[] = {
      {"a,b", ",", {"a", "b"}, false},
      {"a,", ",", {"a"}, false},  // a separator at the end adds no field, not even an empty one
      {"a,,b", ",", {"a", "b"}, true},
      {",a", ",", {"a"}, true},
      {"", ",", {}, true},
      {" a , ", ",", {" a ", " "}, false},
      {"xa--b--c", "--", {"a", "b", "c"}, false},  // a long separator skips part of the start
      {"aXbxc", "x", {"aXb", "c"}, false},
  };
  for (const auto& [sText, sSeparator, asFields, bBlank] : aoRows) {
    SCOPED_TRACE(std::string(sText) + " by " + sSeparator);
    clsTokeniser oTokens;
    Fields asFound(static_cast<std::size_t>(oTokens.Tokenise(sText, sSeparator)));
    std::generate(asFound.begin(), asFound.end(),
                  [&, i = 0]() mutable { return oTokens.Element(i++); });
    EXPECT_EQ(asFound, asFields);
    EXPECT_EQ(oTokens.ParsedBlank(), bBlank);
    EXPECT_THROW((void)oTokens.Element(std::max(oTokens.Count(), 1)), Failure);
  }
}

TEST(Tokeniser, ATextOf32766CharactersIsTheLongest) {
  std::string sLongest;
  for (int i = 0; i < 32766; ++i) {
    sLongest += "£";
  }
  clsTokeniser oTokens;
  EXPECT_EQ(oTokens.Tokenise(sLongest, ","), 1);
  EXPECT_EQ(oTokens.Element(0), sLongest);
  EXPECT_THROW((void)oTokens.Tokenise(sLongest + "x", ","), Failure);
}

TEST(Tokeniser, ABuiltListKeepsPlacesForMore) {
  clsTokeniser oTokens;
  EXPECT_EQ(oTokens.Element(50), "");
  EXPECT_THROW((void)oTokens.Element(51), Failure);
  oTokens.AddToArray("");
  EXPECT_EQ(oTokens.Count(), 0);
  for (int i = 0; i < 50; ++i) {
    oTokens.AddToArray("a");
  }
  oTokens.AddToArray("last");  // at its upper bound of 50 the array grows by fifty
  EXPECT_EQ(oTokens.Element(100), "");
  EXPECT_THROW((void)oTokens.Element(101), Failure);
  oTokens.SetToken(";");
  EXPECT_EQ(oTokens.GetFlattenedSegments(50), "last" + std::string(50, ';'));
}

}  // namespace
}  // namespace quillet
