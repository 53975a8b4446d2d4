#include "controls/SectionHeader.h"

#include <QMouseEvent>
#include <QPainter>

#include "look/marks.h"
#include "look/palette.h"
#include "look/scale.h"

namespace quillet {
namespace {

// The tag, by whether the header is being dragged.
constexpr const char* kAtRest = "0";
constexpr const char* kDragged = "1";

QPoint TwipsAt(const QMouseEvent& oEvent) {
  return {Twips(oEvent.position().x()), Twips(oEvent.position().y())};
}

}  // namespace

SectionHeader::SectionHeader(QWidget* pParent)
    : QWidget(pParent), Control(static_cast<QWidget&>(*this)) {
  setCursor(Qt::SizeAllCursor);
}

void SectionHeader::SetCaption(const QString& sCaption) {
  m_sCaption = sCaption;
  setAccessibleName(sCaption);
  update();
}

void SectionHeader::paintEvent(QPaintEvent* /*pEvent*/) {
  constexpr double kRadius = 5.0;
  QPainter oPainter(this);
  oPainter.setRenderHint(QPainter::Antialiasing);
  DrawRounded(oPainter, rect(), kRadius, Qt::NoPen, InkColour(Ink::HeaderBar));
  DrawWords(oPainter, rect().adjusted(Pixels(120), 0, 0, 0), m_sCaption,
            InkColour(Ink::OnHeaderBar));
}

void SectionHeader::mousePressEvent(QMouseEvent* pEvent) {
  SetTag(kDragged);
  m_oOrigin = TwipsAt(*pEvent);
}

void SectionHeader::mouseMoveEvent(QMouseEvent* pEvent) {
  if (Tag() == kDragged) {
    const QPoint oMoved = TwipsAt(*pEvent) - m_oOrigin;
    emit Moved(static_cast<float>(oMoved.x()), static_cast<float>(oMoved.y()));
  }
}

void SectionHeader::mouseReleaseEvent(QMouseEvent* pEvent) {
  mouseMoveEvent(pEvent);
  SetTag(kAtRest);
}

}  // namespace quillet
