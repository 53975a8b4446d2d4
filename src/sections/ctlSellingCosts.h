// The summary: the eight figures that a calculation gives.
#pragma once

#include <QWidget>
#include <vector>

#include "controls/Controls.h"
#include "engine/clsCalculate.h"

namespace quillet {

class GrandTotal;

class ctlSellingCosts : public QWidget, public Control {
  Q_OBJECT

 public:
  explicit ctlSellingCosts(QWidget* pParent);
  [[nodiscard]] const char* TypeName() const override { return "ctlSellingCosts"; }

  /// 0 for a wide strip, any other value for a column. Writing it rearranges the labels at once.
  [[nodiscard]] int Mode() const { return m_nMode; }
  void SetMode(int nMode);

  /// Shows the totals of an auction whose DoCalc has run.
  void ApplySellingCosts(clsCalculate& oCalculation);

  [[nodiscard]] Label& The(const char* sName) const;

 protected:
  void showEvent(QShowEvent* pEvent) override;

 private:
  void DescribeFigures();
  void ArrangeAsStrip();
  void ArrangeAsColumn();
  void CentreProfitLabel() const;
  [[nodiscard]] GrandTotal& GrandTotalLabel() const;

  int m_nMode = 0;
  std::vector<Label*> m_aoLabels;
};

}  // namespace quillet
