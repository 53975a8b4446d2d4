#include "app/calc/columns.h"

#include <charconv>

namespace quillet {
namespace {

Cell ReadName(const Result& oResult, std::string& sText) {
  if (oResult.nLine > 0) {
    sText = std::to_string(oResult.nLine);
    return Cell::Number;
  }
  sText = oResult.sFile;
  return Cell::Text;
}

template <std::optional<std::string> Result::*sField>
Cell ReadText(const Result& oResult, std::string& sText) {
  const std::optional<std::string>& sValue = oResult.*sField;
  if (sValue) {
    sText = *sValue;
  }
  return sValue ? Cell::Text : Cell::None;
}

template <Single Figures::*fField>
Cell ReadFigure(const Result& oResult, std::string& sText) {
  if (!oResult.oFigures) {
    return Cell::None;
  }
  std::array<char, 32> acText{};
  const auto oEnd = std::to_chars(acText.data(), acText.data() + acText.size(),
                                  ((*oResult.oFigures).*fField).Float());
  sText.assign(acText.data(), oEnd.ptr);
  return Cell::Number;
}

Cell ReadPercent(const Result& oResult, std::string& sText) {
  if (!oResult.oFigures || !oResult.oFigures->sProfitPercent) {
    return Cell::None;
  }
  sText = *oResult.oFigures->sProfitPercent;
  return Cell::Number;
}

}  // namespace

const std::array<Column, 14> kColumns = {{
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

}  // namespace quillet
