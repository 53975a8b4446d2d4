// What must it sell for: a wanted profit, and the price that brings it.
#pragma once

#include <optional>

#include "answers/Goal.h"
#include "answers/Price.h"
#include "shell/whatif/TitledCard.h"

namespace quillet {

class ImageButton;
class Label;
class Segments;
class ctlNumericText;

class GoalCard : public TitledCard {
  Q_OBJECT

 public:
  explicit GoalCard(QWidget* pParent);

  [[nodiscard]] Goal Wanted() const { return m_oGoal; }

  /// Shows the price that meets the goal, or that none does. `fToday` is the price as it is.
  void Show(std::optional<Cents> nPrice, Single fToday);

  /// The box for the number.
  [[nodiscard]] ctlNumericText& Box() const { return *m_pBox; }

 signals:
  void GoalChanged();
  void UseClicked(Cents nPrice);

 protected:
  [[nodiscard]] int ContentHeight(int nWidth) const override;
  void PaintContent(QPainter& oPainter) override;
  void resizeEvent(QResizeEvent* pEvent) override;
  bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

 private:
  void PlaceControls();
  void ChangeKind();
  void ChangeAmount();

  Goal m_oGoal;
  std::optional<Cents> m_nPrice;
  Label* m_pToMake;
  ctlNumericText* m_pBox;
  Segments* m_pKinds;
  ImageButton* m_pUse;
};

}  // namespace quillet
