#include "app/calc/calculate.h"

#include <system_error>

#include "answers/PriceFor.h"
#include "app/calc/CalcHost.h"
#include "app/calc/LineStream.h"
#include "base/failure.h"
#include "base/text.h"
#include "engine/clsCalculate.h"
#include "engine/profitPercent.h"
#include "platform/Files.h"

namespace quillet {
namespace {

Figures FiguresOf(clsCalculate& oAuction, const Options& oOptions) {
  oAuction.DoCalc();
  Figures oFigures;
  oFigures.fProfit = oAuction.m_fProfit;
  oFigures.fSellingCost = oAuction.m_fSellCost;
  oFigures.fPostageCost = oAuction.m_fPostageCost;
  oFigures.fPostageProfit = oAuction.m_fPostageProfit;
  oFigures.fListingFee = oAuction.m_fListingCost;
  oFigures.fFeaturesFee = oAuction.m_oSellingFeatures.LastFee();
  oFigures.fTotalListingFee = oFigures.fListingFee + oFigures.fFeaturesFee;
  oFigures.fReserveFee = oAuction.m_fReserveCost;
  oFigures.fFinalValueFee = oAuction.m_fFinalValueFee;
  oFigures.fPayPalFee = oAuction.m_fPayPayCost;
  oFigures.sProfitPercent = ProfitPercentText(oAuction);
  if (oOptions.bBreakEven) {
    oFigures.nBreakEven = PriceFor(oAuction, Goal{});
  }
  if (oOptions.oGoal) {
    oFigures.nGoalPrice = PriceFor(oAuction, *oOptions.oGoal);
  }
  return oFigures;
}

}  // namespace

void SetError(Result& oResult, std::string sError) {
  oResult.sMessage.reset();
  oResult.oFigures.reset();
  oResult.sAuction.reset();
  oResult.sError = std::move(sError);
}

void Calculate(std::string& sText, const Options& oOptions, Result& oResult) {
  if (sText.find_first_not_of(" \t\r\n") == std::string::npos) {
    SetError(oResult, "It is empty.");
    return;
  }
  clsCalculate oAuction;
  sText = DecodeText(std::move(sText));
  oAuction.Serialize(sText, false);
  oResult.sMessage = CalcHost::TakeMessage();
  if (!oResult.sAuction) {
    oResult.sAuction.emplace();
  }
  oResult.sAuction->clear();  // keeps its memory
  oAuction.Serialize(*oResult.sAuction, true);
  oResult.sError.reset();
  try {
    oResult.oFigures = FiguresOf(oAuction, oOptions);
  } catch (const Failure& oFailure) {
    oResult.oFigures.reset();
    oResult.sError = oFailure.what();
  }
}

void CalculateFile(const Options& oOptions, Result& oResult) {
  std::string sText;
  if (const std::error_code oError = ReadWholeFile(oResult.sFile, kLongestAuction, sText)) {
    SetError(oResult, "It can't be read: " + oError.message());
    return;
  }
  Calculate(sText, oOptions, oResult);
}

}  // namespace quillet
