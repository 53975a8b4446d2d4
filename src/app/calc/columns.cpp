#include "app/calc/columns.h"

#include <array>
#include <charconv>

namespace quillet {
namespace {

Cell ReadName(const Result& oResult, std::string& sText) {
  if (oResult.nLine > 0) {
    sText += std::to_string(oResult.nLine);
    return Cell::Number;
  }
  sText += oResult.sFile;
  return Cell::Text;
}

template <std::optional<std::string> Result::*sField>
Cell ReadText(const Result& oResult, std::string& sText) {
  const std::optional<std::string>& sValue = oResult.*sField;
  if (sValue) {
    sText += *sValue;
  }
  return sValue ? Cell::Text : Cell::None;
}

/// The shortest text that reads back as the same 32-bit float.
Cell WriteNumber(Single fValue, std::string& sText) {
  std::array<char, 32> acText{};
  const auto oEnd = std::to_chars(acText.data(), acText.data() + acText.size(), fValue.Float());
  sText.append(acText.data(), oEnd.ptr);
  return Cell::Number;
}

template <Single Figures::*fField>
Cell ReadFigure(const Result& oResult, std::string& sText) {
  if (!oResult.oFigures) {
    return Cell::None;
  }
  return WriteNumber((*oResult.oFigures).*fField, sText);
}

template <std::optional<Cents> Figures::*nField>
Cell ReadPrice(const Result& oResult, std::string& sText) {
  if (!oResult.oFigures) {
    return Cell::None;
  }
  const std::optional<Cents> nPrice = (*oResult.oFigures).*nField;
  if (nPrice) {
    return WriteNumber(PriceOf(*nPrice), sText);
  }
  sText += "none";
  return Cell::None;
}

Cell ReadPercent(const Result& oResult, std::string& sText) {
  if (!oResult.oFigures || !oResult.oFigures->sProfitPercent) {
    return Cell::None;
  }
  sText += *oResult.oFigures->sProfitPercent;
  return Cell::Number;
}

constexpr std::array<Column, 14> kColumns = {{
    {"file", ReadName},
    {"message", ReadText<&Result::sMessage>},
    {"error", ReadText<&Result::sError>},
    {"profit", ReadFigure<&Figures::fProfit>},
    {"profit_percent", ReadPercent},
    {"selling_cost", ReadFigure<&Figures::fSellingCost>},
    {"postage_cost", ReadFigure<&Figures::fPostageCost>},
    {"postage_profit", ReadFigure<&Figures::fPostageProfit>},
    {"listing_fee", ReadFigure<&Figures::fListingFee>},
    {"features_fee", ReadFigure<&Figures::fFeaturesFee>},
    {"reserve_fee", ReadFigure<&Figures::fReserveFee>},
    {"final_value_fee", ReadFigure<&Figures::fFinalValueFee>},
    {"paypal_fee", ReadFigure<&Figures::fPayPalFee>},
    {"auction", ReadText<&Result::sAuction>},
}};

}  // namespace

std::vector<Column> ColumnsFor(const Options& oOptions) {
  std::vector<Column> aoColumns(kColumns.begin(), kColumns.end());
  if (oOptions.bBreakEven) {
    aoColumns.push_back({"break_even", ReadPrice<&Figures::nBreakEven>});
  }
  if (oOptions.oGoal) {
    aoColumns.push_back({"goal_price", ReadPrice<&Figures::nGoalPrice>});
  }
  return aoColumns;
}

}  // namespace quillet
