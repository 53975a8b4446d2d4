#include "shell/whatif/AlternativesModel.h"

#include <QColor>
#include <algorithm>
#include <array>

#include "look/palette.h"
#include "shell/whatif/TitledCard.h"
#include "shell/whatif/figures.h"

namespace quillet {
namespace {

enum Column : int { kName, kFees, kProfit, kDifference, kColumns };

constexpr std::array<const char*, kColumns> kHeadings = {"", "Fees", "Profit", "Difference"};

}  // namespace

void AlternativesModel::Show(const std::vector<Alternative>& aoAlternatives) {
  if (aoAlternatives.size() != m_aoRows.size()) {
    beginResetModel();
    m_aoRows = aoAlternatives;
    endResetModel();
    return;
  }
  m_aoRows = aoAlternatives;
  if (!m_aoRows.empty()) {
    emit dataChanged(index(0, 0), index(static_cast<int>(m_aoRows.size()) - 1, kColumns - 1));
  }
}

int AlternativesModel::RowAsItIs() const {
  const auto pRow = std::find_if(m_aoRows.begin(), m_aoRows.end(), [](const Alternative& o) {
    return o.eKind == AlternativeKind::AsItIs;
  });
  return pRow == m_aoRows.end() ? -1 : static_cast<int>(pRow - m_aoRows.begin());
}

int AlternativesModel::rowCount(const QModelIndex& oParent) const {
  return oParent.isValid() ? 0 : static_cast<int>(m_aoRows.size());
}

int AlternativesModel::columnCount(const QModelIndex& oParent) const {
  return oParent.isValid() ? 0 : int{kColumns};
}

QVariant AlternativesModel::data(const QModelIndex& oIndex, int nRole) const {
  if (!oIndex.isValid()) {
    return {};
  }
  switch (nRole) {
    case Qt::DisplayRole:
      return Text(At(oIndex.row()), oIndex.column());
    case Qt::ToolTipRole:
      return Text(At(oIndex.row()), kName) + "\nA double click, or Enter, uses it";
    case Qt::ForegroundRole:
      return Colour(oIndex.row(), oIndex.column());
    case Qt::TextAlignmentRole:
      return int{oIndex.column() == kName ? Qt::AlignLeft : Qt::AlignRight} | int{Qt::AlignVCenter};
    default:
      return {};
  }
}

QVariant AlternativesModel::headerData(int nSection, Qt::Orientation eAlong, int nRole) const {
  return eAlong == Qt::Horizontal && nRole == Qt::DisplayRole
             ? QVariant(kHeadings.at(static_cast<std::size_t>(nSection)))
             : QVariant();
}

QString AlternativesModel::Text(const Alternative& oRow, int nColumn) const {
  switch (nColumn) {
    case kName:
      return QString::fromStdString(oRow.sName);
    case kFees:
      return Money(oRow.fFees);
    case kProfit:
      return Money(oRow.fProfit);
    default:
      return oRow.eKind == AlternativeKind::AsItIs ? "" : SignedAmount(oRow.fDifference);
  }
}

QColor AlternativesModel::Colour(int nRow, int nColumn) const {
  const Alternative& oRow = At(nRow);
  if (nColumn == kDifference && oRow.fDifference == 0) {
    return InkColour(Ink::FaintText);
  }
  const Single fTold = nColumn == kProfit       ? oRow.fProfit
                       : nColumn == kDifference ? oRow.fDifference
                                                : Single();
  const bool bBest = nRow == 0;
  return fTold < 0 ? ColourOfProfit(fTold) : bBest ? ColourOfProfit(0) : InkColour(Ink::Text);
}

}  // namespace quillet
