#include "shell/whatif/Segments.h"

#include <QPainter>

#include "look/marks.h"
#include "look/scale.h"

namespace quillet {
namespace {

constexpr double kRadius = 4.0;

class Segment : public OptionButton {
 public:
  using OptionButton::OptionButton;

 protected:
  void paintEvent(QPaintEvent* /*pEvent*/) override {
    QPainter oPainter(this);
    oPainter.setRenderHint(QPainter::Antialiasing);
    const QRectF oFace = QRectF(rect()).adjusted(1, 1, -1, -1);
    if (isChecked() || underMouse()) {
      DrawRounded(oPainter, oFace, kRadius - 1, Qt::NoPen,
                  InkColour(isChecked() ? Ink::Hairline : Ink::Hover));
    }
    if (hasFocus()) {
      DrawRing(oPainter, oFace.adjusted(1, 1, -1, -1), kRadius - 2);
    }
    oPainter.setPen(InkColour(isChecked() ? Ink::Text : Ink::FaintText));
    oPainter.drawText(rect(), Qt::AlignCenter, text());
  }
};

}  // namespace

Segments::Segments(const QStringList& asCaptions, int nWidth, QWidget* pParent)
    : Frame(pParent), m_nEach(nWidth) {
  for (const QString& sCaption : asCaptions) {
    auto* const pOption = new Segment(this);
    pOption->setAttribute(Qt::WA_Hover);
    pOption->SetCaption(sCaption);
    pOption->SetValue(m_apOptions.isEmpty() ? 1 : 0);
    m_apOptions += pOption;
    connect(pOption, &QAbstractButton::toggled, this, [this](bool bChosen) {
      if (bChosen) {
        emit ChosenChanged();
      }
    });
  }
}

int Segments::Chosen() const {
  for (int i = 0; i < m_apOptions.size(); ++i) {
    if (m_apOptions.at(i)->Value() != 0) {
      return i;
    }
  }
  return 0;
}

void Segments::Placed() {
  for (int i = 0; i < m_apOptions.size(); ++i) {
    m_apOptions.at(i)->Place(i * m_nEach, 0, m_nEach, Height());
  }
}

void Segments::paintEvent(QPaintEvent* /*pEvent*/) {
  QPainter oPainter(this);
  oPainter.setRenderHint(QPainter::Antialiasing);
  DrawField(oPainter, rect(), Ink::FieldEdge, InkColour(Ink::Field));
}

}  // namespace quillet
