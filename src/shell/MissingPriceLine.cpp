#include "shell/MissingPriceLine.h"

#include <QPainter>

#include "base/basCommon.h"
#include "look/palette.h"
#include "prices/clsPrices.h"

namespace quillet {

MissingPriceLine::MissingPriceLine(QWidget* pParent) : Label(pParent) {
  SetVisible(false);
}

/// Shows only the file's name; the tooltip says where it is.
void MissingPriceLine::Refresh() {
  const std::optional<Finding>& oMissing = Prices().MissingPrice();
  if (oMissing) {
    const auto fnText = [&](bool bNameOnly) {
      return QString::fromStdString(FindingLine(UpdateFileName(bNameOnly), *oMissing));
    };
    SetCaption(fnText(true).replace("&", "&&"));
    setToolTip("<span>" + fnText(false).toHtmlEscaped() + "</span>");
  }
  SetVisible(oMissing.has_value());
}

void MissingPriceLine::paintEvent(QPaintEvent* /*pEvent*/) {
  QPainter oPainter(this);
  oPainter.setPen(InkColour(Ink::Warning));
  oPainter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter,
                    fontMetrics().elidedText(text(), Qt::ElideMiddle, width()));
}

}  // namespace quillet
