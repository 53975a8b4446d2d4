// The rows of alternatives, for a table of the toolkit.
#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "answers/Alternatives.h"

namespace quillet {

/// Name, fees, profit, difference. The first row is the best way to list.
class AlternativesModel : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  void Show(const std::vector<Alternative>& aoAlternatives);
  [[nodiscard]] const Alternative& At(int nRow) const {
    return m_aoRows.at(static_cast<std::size_t>(nRow));
  }
  /// The auction as it is; -1 before anything was shown.
  [[nodiscard]] int RowAsItIs() const;

  [[nodiscard]] int rowCount(const QModelIndex& oParent) const override;
  [[nodiscard]] int columnCount(const QModelIndex& oParent) const override;
  [[nodiscard]] QVariant data(const QModelIndex& oIndex, int nRole) const override;
  [[nodiscard]] QVariant headerData(int nSection, Qt::Orientation eAlong, int nRole) const override;

 private:
  [[nodiscard]] QString Text(const Alternative& oRow, int nColumn) const;
  [[nodiscard]] QColor Colour(int nRow, int nColumn) const;

  std::vector<Alternative> m_aoRows;
};

}  // namespace quillet
