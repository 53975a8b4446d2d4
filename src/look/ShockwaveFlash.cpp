#include "look/ShockwaveFlash.h"

#include <QEvent>
#include <QRegularExpression>

#include "look/movies/movies.h"

namespace quillet {

ShockwaveFlash::ShockwaveFlash(QWidget* pParent) : QWidget(pParent) {}

void ShockwaveFlash::SetMovie(const QString& sPath) {
  if (m_oMovie != nullptr) {
    m_oMovie->Widget().hide();
    m_oMovie->Widget().deleteLater();  // this may be called from its own command
  }
  // A folder may have a "?" in its name too.
  const auto oEnd =
      QRegularExpression("\\.swf(\\?|$)", QRegularExpression::CaseInsensitiveOption).match(sPath);
  const QString sFile = sPath.left(oEnd.capturedStart(1));
  m_oMovie =
      MakeMovie(sFile.section(QRegularExpression("[\\\\/]"), -1), sPath.mid(oEnd.capturedEnd(1)),
                *this, [this](const QString& sCommand, const QString& sArguments) {
                  emit FSCommand(sCommand, sArguments);
                });
  if (m_oMovie != nullptr) {
    QWidget& oWidget = m_oMovie->Widget();
    oWidget.setToolTip(toolTip());
    oWidget.setGeometry(rect());
    oWidget.show();
    setFocusProxy(&oWidget);
  }
}

void ShockwaveFlash::Play() {
  if (m_oMovie != nullptr) {
    m_oMovie->Play();
  }
}

void ShockwaveFlash::SetCurrent(bool bCurrent) {
  if (m_oMovie != nullptr) {
    m_oMovie->SetCurrent(bCurrent);
  }
}

bool ShockwaveFlash::event(QEvent* pEvent) {
  if (pEvent->type() == QEvent::ToolTipChange && m_oMovie != nullptr) {
    m_oMovie->Widget().setToolTip(toolTip());  // also describes it to a screen reader
  }
  return QWidget::event(pEvent);
}

void ShockwaveFlash::resizeEvent(QResizeEvent* /*pEvent*/) {
  if (m_oMovie != nullptr) {
    m_oMovie->Widget().setGeometry(rect());
  }
}

}  // namespace quillet
