#include "engine/clsPayPal.h"

#include <gtest/gtest.h>

#include "base/failure.h"
#include "support/Prices.h"
#include "support/TestHost.h"

namespace quillet {
namespace {

const std::string kCents = "CurrencyFormat,0.00\n";

clsPayPal Account(std::int32_t eType, std::int32_t nBand = 1) {
  clsPayPal oPayPal;
  oPayPal.m_bEnabled = true;
  oPayPal.m_eAccountType = eType;
  oPayPal.m_nBusinessBand = nBand;
  return oPayPal;
}

TEST(PayPal, AnExactHalfOfASmallestUnitGoesDown) {
  // The format, and the fee before rounding. The float of 2.675 lies below the half, but its text
  // doesn't; that of 12345.675 is 12345.6748, so its text ends in .67; 1.234568E+07 x 100 lies
  // between two floats, and 1234567936 is the even one.
  const std::tuple<const char*, const char*, float> aoRows[] = {
      {"0.00", "2.675", 2.67F},       {"0.00", "-2.675", -2.67F}, {"0.00", "8.425", 8.42F},
      {"0.00", "0.005", 0},           {"0.00", "0.0051", 0.01F},  {"0.00", "12345.675", 12345.67F},
      {"0.00", "12345678", 12345679}, {"0", "2.51", 3},           {"0.000", "1.2345", 1.234F}};
  for (const auto& [sFormat, sFee, fExpected] : aoRows) {
    UseSchedule("CurrencyFormat," + std::string(sFormat) + "\nPersonalRatePoundsFixed," + sFee);
    EXPECT_EQ(Account(kAccountPersonal).DoCalc(1, nullptr).Float(), fExpected) << sFee;
  }
  ScopedHost oHost;
  oHost.sDecimalSeparator = ",";
  UseSchedule(kCents + "PersonalRatePoundsFixed,1.515");
  EXPECT_EQ(Account(kAccountPersonal).DoCalc(1, nullptr).Float(), 1.51F);  // of 1,515
}

TEST(PayPal, IsAPercentageAndAFixedChargeForEachPayment) {
  UseSchedule(kCents + "PersonalRatePounds%,3.4\nPersonalRatePoundsFixed,0.2\n");
  const std::tuple<double, std::int32_t, bool, double> aoRows[] = {
      {100, 3, false, 3.6}, {100, 3, true, 4}, {100, 2, true, 3.8}, {100, 1, true, 3.6},
      {100, 0, true, 3.6},  {0, 3, true, 0},   {.01, 1, false, .2}};
  for (const auto& [fAmount, lQuantity, bIndividually, fExpected] : aoRows) {
    clsOutlay oOutlay;
    oOutlay.m_lQuantity = lQuantity;
    clsPayPal oPayPal = Account(kAccountPersonal);
    oPayPal.m_bPayIndividually = bIndividually;
    EXPECT_EQ(oPayPal.DoCalc(fAmount, &oOutlay), Single(fExpected)) << fAmount << lQuantity;
  }
  clsPayPal oPayPal = Account(kAccountPersonal);
  oPayPal.m_bEnabled = false;
  EXPECT_EQ(oPayPal.DoCalc(200, nullptr), 0);
  for (const std::int32_t eType : {0, 1, 2}) {
    EXPECT_EQ(Account(eType, 0).DoCalc(100, nullptr), 0);  // band 0 frees every account
  }
}

TEST(PayPal, TheBandsOwnValueSelectsTheRates) {
  UseSchedule(kCents +
              Tiers("BusinessRatePounds%", {{"0", "1500", "3.4"}, {"1500.01", "6000", "2.9"}}) +
              Tiers("BusinessRatePoundsFixed", {{"0", "6000", "0.2"}, {"6001", "-1", "0.5"}}) +
              "BusinessRateBand1Value,1500\nBusinessRateBand2Value,1501\n"
              "BusinessRateBand3Value,7000\nBusinessRateBand4Value,much\n"
              "BusinessRateBand-1Value,1\n");
  for (const std::int32_t eType : {kAccountPremier, kAccountBusiness}) {
    EXPECT_EQ(Account(eType, 1).DoCalc(1000, nullptr), Single(34.2));
    EXPECT_EQ(Account(eType, 2).DoCalc(1000, nullptr), Single(29.2));
    EXPECT_EQ(Account(eType, 3).DoCalc(1000, nullptr), .5);  // no tier holds it: no percentage
    EXPECT_EQ(Account(eType, -1).DoCalc(1000, nullptr), Single(34.2));
    for (const std::int32_t nBand : {4, 5, 32768, -32769}) {
      EXPECT_THROW((void)Account(eType, nBand).DoCalc(1000, nullptr), Failure) << nBand;
    }
  }
  EXPECT_THROW((void)Account(3, 1).DoCalc(1000, nullptr), Failure);  // asks for "Pounds%Ranges"
}

}  // namespace
}  // namespace quillet
