// A card of the what-if window: a panel with a title, and its content below.
#pragma once

#include <QString>
#include <QWidget>

#include "base/Single.h"
#include "look/palette.h"

namespace quillet {

/// As high as its content needs at the width that it gets. `sTitle` may be empty.
class TitledCard : public QWidget {
  Q_OBJECT

 public:
  TitledCard(QString sTitle, QWidget* pParent);

  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int nWidth) const override;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  /// The height that the content needs at a width, both in twips.
  [[nodiscard]] virtual int ContentHeight(int nWidth) const = 0;
  virtual void PaintContent(QPainter& /*oPainter*/) {}

  /// The content's place, in pixels.
  [[nodiscard]] QRect Content() const;
  /// The same in twips.
  [[nodiscard]] QRect ContentTwips() const;

  /// The title's place, up to the content's right end, in pixels.
  [[nodiscard]] QRect TitleRow() const;

  void paintEvent(QPaintEvent* pEvent) final;

 private:
  [[nodiscard]] int TopTwips() const;

  QString m_sTitle;
};

/// Text in a place, made smaller if it is too wide for it.
void DrawFitted(QPainter& oPainter, const QRectF& oPlace, const QString& sWords, QFont oFont,
                const QColor& oColour, int nAcross = Qt::AlignLeft);

/// The colour of a profit, or of a loss.
[[nodiscard]] QColor ColourOfProfit(Single fProfit);

}  // namespace quillet
