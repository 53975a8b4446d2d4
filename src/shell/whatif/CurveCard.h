// Profit by price, as a line, with a read-out.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "shell/whatif/Answers.h"
#include "shell/whatif/TitledCard.h"
#include "shell/whatif/curveScale.h"

namespace quillet {

/// The read-out follows the pointer, or the arrow keys: with Shift held they go further.
class CurveCard : public TitledCard {
 public:
  using ProfitAt = std::function<Single(Cents nPrice)>;

  /// `fnProfitAt` works out what the read-out says; if it throws a Failure, there is no read-out.
  CurveCard(ProfitAt fnProfitAt, QWidget* pParent);
  void Show(const Answers& oAnswers);

  /// The text beside the title; empty without a read-out.
  [[nodiscard]] QString ReadOut() const;

 protected:
  [[nodiscard]] int ContentHeight(int nWidth) const override;
  void PaintContent(QPainter& oPainter) override;
  void mouseMoveEvent(QMouseEvent* pEvent) override;
  void leaveEvent(QEvent* pEvent) override;
  void focusOutEvent(QFocusEvent* pEvent) override;
  void keyPressEvent(QKeyEvent* pEvent) override;

 private:
  [[nodiscard]] QRectF Plot() const;
  [[nodiscard]] CurveScale Scale() const { return {m_aoPoints, Plot()}; }
  [[nodiscard]] Cents StepOfPrices() const;
  [[nodiscard]] Cents JumpNear(Cents nPrice) const;
  void Read(std::optional<Cents> nPrice);
  void Describe(const Answers& oAnswers);

  void PaintGrid(QPainter& oPainter, const CurveScale& oScale) const;
  void PaintPrices(QPainter& oPainter, const CurveScale& oScale) const;
  void PaintLine(QPainter& oPainter, const CurveScale& oScale) const;
  void PaintJumps(QPainter& oPainter, const CurveScale& oScale) const;
  void PaintBreakEven(QPainter& oPainter, const CurveScale& oScale) const;
  void PaintToday(QPainter& oPainter, const CurveScale& oScale) const;
  void PaintReadOut(QPainter& oPainter, const CurveScale& oScale) const;

  ProfitAt m_fnProfitAt;
  std::vector<CurvePoint> m_aoPoints;
  Single m_fToday;  ///< price of one item
  Single m_fProfit;
  std::optional<Cents> m_nBreakEven;
  std::optional<Cents> m_nRead;
  Single m_fRead;
};

}  // namespace quillet
