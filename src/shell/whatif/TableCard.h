// The alternatives, side by side.
#pragma once

#include <vector>

#include "answers/Alternatives.h"
#include "shell/whatif/TitledCard.h"

namespace quillet {

class AlternativesModel;
class AlternativesTable;

class TableCard : public TitledCard {
  Q_OBJECT

 public:
  explicit TableCard(QWidget* pParent);
  void Show(const std::vector<Alternative>& aoAlternatives);

  /// Makes the auction as it is the current row.
  void GoToAsItIs();

  /// Updates fonts and row heights after a change of zoom.
  void Rescale();

 signals:
  /// A row was double-clicked, or Enter was pressed on it.
  void UseClicked(const Change& oChange);
  /// The current row, in the card's pixels, has moved.
  void CurrentMoved(const QRect& oRow);

 protected:
  [[nodiscard]] int ContentHeight(int nWidth) const override;
  void resizeEvent(QResizeEvent* pEvent) override;

 private:
  void PlaceTable();

  AlternativesModel* m_pModel;
  AlternativesTable* m_pTable;
};

}  // namespace quillet
