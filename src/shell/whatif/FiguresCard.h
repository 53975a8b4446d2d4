// The few figures that answer first: break-even, what is kept, return and margin.
#pragma once

#include <vector>

#include "shell/whatif/Answers.h"
#include "shell/whatif/TitledCard.h"

namespace quillet {

class FiguresCard : public TitledCard {
 public:
  explicit FiguresCard(QWidget* pParent);
  void Show(const Answers& oAnswers);

 protected:
  [[nodiscard]] int ContentHeight(int nWidth) const override;
  void PaintContent(QPainter& oPainter) override;

 private:
  struct Figure {
    const char* sCaption;
    int nWidth;  ///< the least, in twips, whatever the figure
    QString sValue;
    QColor oColour;
  };
  [[nodiscard]] std::vector<QRect> Places(const QRect& oContent) const;

  std::vector<Figure> m_aoFigures;
};

}  // namespace quillet
