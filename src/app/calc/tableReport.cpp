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

struct Line {
  std::string_view sLabel;
  std::string sAmount;
  std::string sBehind = {};
  std::string_view sColour = {};
};

std::string PriceText(const std::optional<Cents>& nPrice) {
  return nPrice ? FormatMoney(PriceOf(*nPrice)) : "none";
}

class TableReport : public Report {
 public:
  TableReport(const Options& oOptions, bool bColour) : m_oOptions(oOptions), m_bColour(bColour) {}

  [[nodiscard]] std::string_view Separator() const override { return "\n"; }

  void Add(const Result& oResult, std::string& sOut) override {
    if (!oResult.oFigures) {
      return;
    }
    sOut.append(Separator()).append(Coloured(ShowControls(oResult.Name()), kBold)).append("\n");
    AddRows(*oResult.oFigures, sOut);
  }

  [[nodiscard]] bool HoldsMessages() const override { return false; }

 private:
  [[nodiscard]] std::vector<Line> LinesOf(const Figures& oFigures) const {
    std::vector<Line> aoLines;
    aoLines.reserve(kRows.size() + 2);
    for (const Row& oRow : kRows) {
      aoLines.push_back({oRow.sLabel, FormatMoney(oFigures.*oRow.fAmount)});
    }
    aoLines.back().sColour = oFigures.fProfit < 0 ? kBoldRed : kBoldGreen;
    if (oFigures.sProfitPercent) {
      aoLines.back().sBehind = " (" + *oFigures.sProfitPercent + "%)";
    }
    if (m_oOptions.bBreakEven) {
      aoLines.push_back({"Break-even Price", PriceText(oFigures.nBreakEven)});
    }
    if (m_oOptions.oGoal) {
      aoLines.push_back({"Goal Price", PriceText(oFigures.nGoalPrice)});
    }
    return aoLines;
  }

  void AddRows(const Figures& oFigures, std::string& sOut) const {
    const std::vector<Line> aoLines = LinesOf(oFigures);
    std::size_t nWidth = 0;
    for (const Line& oLine : aoLines) {
      nWidth = std::max(nWidth, Utf16Length(oLine.sAmount));
    }
    for (const Line& oLine : aoLines) {
      const std::string sText = PadLeftWith(oLine.sAmount, nWidth, " ") + oLine.sBehind;
      sOut.append(oLine.sLabel).append(kLabelWidth - oLine.sLabel.size(), ' ');
      sOut.append(oLine.sColour.empty() ? sText : Coloured(sText, oLine.sColour)).append("\n");
    }
  }

  [[nodiscard]] std::string Coloured(const std::string& sText, std::string_view sColour) const {
    return m_bColour ? std::string(sColour) + sText + "\033[0m" : sText;
  }

  const Options& m_oOptions;
  bool m_bColour;
};

}  // namespace

std::unique_ptr<Report> MakeTableReport(const Options& oOptions, bool bColour) {
  return std::make_unique<TableReport>(oOptions, bColour);
}

}  // namespace quillet
