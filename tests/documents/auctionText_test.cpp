// Writing and reading an auction's text, and what damage to it does.
#include <gtest/gtest.h>

#include "support/Auctions.h"
#include "support/Prices.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

const std::string kFresh =
    "[TYPE]000|False|False|0|0|0|0|False[TYPE][OUTLAY]0|0|0|0|0|False[OUTLAY]"
    "[FEATURES]0|0[FEATURES][PAYPAL]False|0|1|False[PAYPAL]"
    "[POSTAGE]False|0|0|0|0|False|False|False|0|False[POSTAGE]";

// Every field differs from its neighbours, so that a swap of two shows.
const std::string kFull =
    "[TYPE]002|True|False|5|4|1|3|True[TYPE][OUTLAY]12.5|0.99|0.1|1E+07|-4|True[OUTLAY]"
    "[FEATURES]1114113|7[FEATURES][PAYPAL]True|2|5|True[PAYPAL]"
    "[POSTAGE]True|0.25|3|4.45|2|True|False|True|1.5|True[POSTAGE]";

/// The text of an auction into which kFull and then `sText` were read.
std::string AfterReading(std::string sText) {
  clsCalculate oAuction;
  std::string sFull = kFull;
  oAuction.Serialize(sFull, false);
  oAuction.Serialize(sText, false);
  return TextOf(oAuction);
}

std::string With(std::string sText, const std::string& sOld, const std::string& sNew) {
  const std::size_t nAt = sText.find(sOld);
  EXPECT_NE(nAt, std::string::npos) << sOld;
  return nAt == std::string::npos ? sText : sText.replace(nAt, sOld.size(), sNew);
}

TEST(AuctionText, IsWrittenInFiveSectionsBehindWhatIsThere) {
  clsCalculate oAuction;
  std::string sText = "before";
  oAuction.Serialize(sText, true);
  EXPECT_EQ(sText, "before" + kFresh);
  // The figures of the sample auctions prove that each value goes to its own field.
  std::string sFull = kFull;
  oAuction.Serialize(sFull, false);
  EXPECT_EQ(TextOf(oAuction), kFull);
}

TEST(AuctionText, AValueThatDoesNotConvertLeavesItsFieldAlone) {
  std::string sAccents;  // too long in bytes but not in characters
  while (sAccents.size() < 40000) {
    sAccents += "é";
  }
  const std::pair<std::string, const char*> aoRows[] = {
      // a section as read, and as written afterwards
      {"[TYPE]002[TYPE]", "[TYPE]002|True|False|5|4|1|3|True[TYPE]"},
      {"[TYPE]256|2|0|256|-1|2.5|x|-1[TYPE]", "[TYPE]002|True|False|5|4|1|3|True[TYPE]"},
      {"[OUTLAY]1|2|3|4|many|False[OUTLAY]", "[OUTLAY]1|2|3|4|-4|False[OUTLAY]"},
      {"[OUTLAY]1e39|nan|0x10|-|2147483648|no[OUTLAY]",
       "[OUTLAY]12.5|0.99|0.1|1E+07|-4|True[OUTLAY]"},
      {"[OUTLAY] 1 |-0|1E-46|1,5|7|0|9|9[OUTLAY]", "[OUTLAY]1|0|0|1E+07|7|False[OUTLAY]"},
      {"[OUTLAY]" + std::string(40000, '1') + "[OUTLAY]",  // too long to split
       "[OUTLAY]12.5|0.99|0.1|1E+07|-4|True[OUTLAY]"},
      {"[FEATURES]" + sAccents + "|3[FEATURES]", "[FEATURES]1114113|3[FEATURES]"},
      {"[PAYPAL]0|32767|-32768|0.0[PAYPAL]", "[PAYPAL]False|32767|-32768|False[PAYPAL]"},
      {"[PAYPAL]|32768|-32769|[PAYPAL]", "[PAYPAL]True|2|5|True[PAYPAL]"},
  };
  for (const auto& [sSection, sAfter] : aoRows) {
    const std::string sMarker = sSection.substr(0, sSection.find(']') + 1);
    const std::size_t nFrom = kFull.find(sMarker);
    const std::string sOld =
        kFull.substr(nFrom, kFull.find(sMarker, nFrom + 1) + sMarker.size() - nFrom);
    ScopedHost oHost;
    EXPECT_EQ(AfterReading(With(kFull, sOld, sSection)), With(kFull, sOld, sAfter)) << sSection;
    EXPECT_TRUE(oHost.aoShown.empty()) << sSection;
  }
}

TEST(AuctionText, FeesStandWhereTheyAreTodaysOrEnteredAndAreFreshWithoutTheirSection) {
  const std::string sFees = "[FEES]12|8.875|2.5|5|True|False[FEES]";
  const std::string sFreshFees = "[FEES]1|0|0|0|False|True[FEES]";
  for (const bool bToday : {false, true}) {
    UseSchedule(bToday ? "FeeModel,2" : "");
    const std::string sUsual = bToday ? sFreshFees : "";
    EXPECT_EQ(AfterReading(kFresh), kFresh + sUsual);
    EXPECT_EQ(AfterReading(kFresh + sFees), kFresh + sFees);
    EXPECT_EQ(AfterReading(kFresh + sFreshFees), kFresh + sUsual);
    EXPECT_EQ(AfterReading(kFresh + "[FEES]3|"), kFresh + sUsual) << "one marker";
    clsCalculate oAuction;
    std::string sEntered = kFull + sFees;
    oAuction.Serialize(sEntered, false);
    std::string sPartly = kFresh + "[FEES]x|-1[FEES]";
    oAuction.Serialize(sPartly, false);
    EXPECT_EQ(TextOf(oAuction), kFresh + "[FEES]1|-1|0|0|False|True[FEES]");
    std::string sWithout = kFresh;
    oAuction.Serialize(sWithout, false);
    EXPECT_EQ(TextOf(oAuction), kFresh + sUsual);
  }
  UseSchedule("");
}

TEST(AuctionText, AMissingSectionEndsTheReadingOrIsPassedOver) {
  const std::string sType = kFresh.substr(0, kFresh.find("[OUTLAY]"));
  const std::string sOutlay = "[OUTLAY]0|0|0|0|0|False[OUTLAY]";
  // The text, the section named by the message, and the initials of the sections read.
  const std::tuple<std::string, std::string, std::string> aoRows[] = {
      {"", "[OUTLAY]", ""},
      {"garbage before" + kFresh + "garbage behind", "", "TOFPP"},
      {With(kFresh, "[TYPE]", ""), "", "OFPP"},  // one marker left of two
      {With(kFresh, "[OUTLAY]", "[outlay]"), "[OUTLAY]", "T"},
      {sType + sOutlay, "[PAYPAL]", "TO"},
      {With(kFresh, "[POSTAGE]", ""), "[POSTAGE]", "TOFP"},
  };
  for (const auto& [sText, sShown, sRead] : aoRows) {
    SCOPED_TRACE(sText);
    ScopedHost oHost;
    const std::string sAfter = AfterReading(sText);
    std::string sChanged;
    for (const char* sFresh :
         {"[TYPE]000", "[OUTLAY]0|", "[FEATURES]0|", "[PAYPAL]F", "[POSTAGE]F"}) {
      sChanged += sAfter.find(sFresh) != std::string::npos ? std::string(1, sFresh[1]) : "";
    }
    EXPECT_EQ(sChanged, sRead);
    ASSERT_EQ(oHost.aoShown.size(), sShown.empty() ? 0U : 1U);
    EXPECT_TRUE(sShown.empty() ||
                oHost.aoShown[0] == (ShownMessage{"Failure loading section " + sShown, 0, ""}));
  }
}

}  // namespace
}  // namespace quillet
