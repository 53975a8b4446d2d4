// Where the money goes: one bar, and its legend as a table.
#pragma once

#include <vector>

#include "shell/whatif/TitledCard.h"
#include "shell/whatif/moneyParts.h"

namespace quillet {

class MoneyCard : public TitledCard {
 public:
  explicit MoneyCard(QWidget* pParent);
  void Show(const Breakdown& oBreakdown);

 protected:
  [[nodiscard]] int ContentHeight(int nWidth) const override;
  void PaintContent(QPainter& oPainter) override;

 private:
  [[nodiscard]] int Rows(int nColumns) const;
  void PaintBar(QPainter& oPainter, const QRectF& oBar) const;
  void PaintEndOfIncome(QPainter& oPainter, const QRectF& oBar) const;
  void PaintEntry(QPainter& oPainter, const QRectF& oPlace, const ShownPart& oPart) const;
  void Describe();

  std::vector<ShownPart> m_aoParts;
  double m_fIncome = 1;  ///< as a share of the bar
};

}  // namespace quillet
