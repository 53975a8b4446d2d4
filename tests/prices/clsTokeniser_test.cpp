#include "prices/clsTokeniser.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "base/failure.h"

namespace quillet {
namespace {

TEST(Tokeniser, SplitsAndDropsEmptyFields) {
  struct Row {
    const char* sText;
    const char* sSeparator;
    std::vector<std::string> asFields;
    bool bBlank;
  };
  const Row aoRows[] = {
      {"a,b", ",", {"a", "b"}, false},
      {"a,", ",", {"a"}, false},  // a separator at the end yields nothing more, not even a blank
      {"a,,b", ",", {"a", "b"}, true},
      {",a", ",", {"a"}, true},
      {"", ",", {}, true},
      {" a , ", ",", {" a ", " "}, false},
      {"xa--b--c", "--", {"a", "b", "c"}, false},  // a long separator skips part of the start
      {"aXbxc", "x", {"aXb", "c"}, false},
  };
  for (const Row& oRow : aoRows) {
    SCOPED_TRACE(std::string(oRow.sText) + " by " + oRow.sSeparator);
    clsTokeniser oTokens;
    const auto nCount = static_cast<std::int32_t>(oRow.asFields.size());
    EXPECT_EQ(oTokens.Tokenise(oRow.sText, oRow.sSeparator), nCount);
    EXPECT_EQ(oTokens.ParsedBlank(), oRow.bBlank);
    EXPECT_FALSE(oTokens.IsEmpty());
    for (std::int32_t i = 0; i < nCount; ++i) {
      EXPECT_EQ(oTokens.Element(i), oRow.asFields[static_cast<std::size_t>(i)]);
    }
    EXPECT_THROW((void)oTokens.Element(std::max(nCount, 1)), Failure);
    EXPECT_THROW((void)oTokens.Element(-1), Failure);
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
  oTokens.AddToArray("last");  // the count has reached the upper bound of 50: fifty more places
  EXPECT_EQ(oTokens.Element(100), "");
  EXPECT_THROW((void)oTokens.Element(101), Failure);
  oTokens.SetToken(";");
  EXPECT_EQ(oTokens.GetFlattenedSegments(50), "last" + std::string(50, ';'));
}

}  // namespace
}  // namespace quillet
