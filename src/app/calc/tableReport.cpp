#include <algorithm>
#include <array>

#include "app/calc/Report.h"
#include "base/text.h"
#include "prices/money.h"

namespace quillet {
namespace {

struct Row {
  std::string_view sLabel;
  Single Figures::*fAmount;
};

constexpr std::array<Row, 8> kRows = {{
    {"Insertion Fee", &Figures::fListingFee},
    {"Total Listing Fee", &Figures::fTotalListingFee},
    {"Reserve Fee", &Figures::fReserveFee},
    {"Final Value Fee", &Figures::fFinalValueFee},
    {"Selling Cost", &Figures::fSellingCost},
    {"Postage & Packing", &Figures::fPostageCost},
    {"PayPal Fee", &Figures::fPayPalFee},
    {"Profit", &Figures::fProfit},
}};
constexpr std::size_t kLabelWidth = 19;  // the longest label and two blanks

constexpr std::string_view kBold = "\033[1m";
constexpr std::string_view kBoldGreen = "\033[1;32m";
constexpr std::string_view kBoldRed = "\033[1;31m";

class TableReport : public Report {
 public:
  explicit TableReport(bool bColour) : m_bColour(bColour) {}

  void Add(const Result& oResult, std::string& sOut) override {
    if (!oResult.oFigures) {
      return;
    }
    if (!m_bFirst) {
      sOut += '\n';
    }
    m_bFirst = false;
    sOut.append(Coloured(ShowControls(oResult.Name()), kBold)).append("\n");
    AddRows(*oResult.oFigures, sOut);
  }

  [[nodiscard]] bool HoldsMessages() const override { return false; }

 private:
  void AddRows(const Figures& oFigures, std::string& sOut) const {
    std::array<std::string, kRows.size()> asAmounts;
    std::size_t nWidth = 0;
    for (std::size_t i = 0; i < kRows.size(); ++i) {
      asAmounts.at(i) = FormatMoney(oFigures.*kRows.at(i).fAmount);
      nWidth = std::max(nWidth, Utf16Length(asAmounts.at(i)));
    }
    for (std::size_t i = 0; i < kRows.size(); ++i) {
      std::string sText = PadLeftWith(asAmounts.at(i), nWidth, " ");
      if (&kRows.at(i) == &kRows.back()) {
        if (oFigures.sProfitPercent) {
          sText += " (" + *oFigures.sProfitPercent + "%)";
        }
        sText = Coloured(sText, oFigures.fProfit < 0 ? kBoldRed : kBoldGreen);
      }
      sOut.append(kRows.at(i).sLabel).append(kLabelWidth - kRows.at(i).sLabel.size(), ' ');
      sOut.append(sText).append("\n");
    }
  }

  [[nodiscard]] std::string Coloured(const std::string& sText, std::string_view sColour) const {
    return m_bColour ? std::string(sColour) + sText + "\033[0m" : sText;
  }

  bool m_bColour;
  bool m_bFirst = true;
};

}  // namespace

std::unique_ptr<Report> MakeTableReport(bool bColour) {
  return std::make_unique<TableReport>(bColour);
}

}  // namespace quillet
