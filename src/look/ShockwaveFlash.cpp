#include "look/ShockwaveFlash.h"

#include <QEvent>
#include <QRegularExpression>

#include "look/movies/AboutMovie.h"
#include "look/movies/ButtonMovie.h"
#include "look/movies/SplashMovie.h"

namespace quillet {
namespace {

constexpr struct {
  const char* sFileName;
  Icon eIcon;
  const char* sCaption;
} kButtons[] = {
    {"New_button.swf", Icon::New, "New"},
    {"Calc_button.swf", Icon::Calculator, "Calculator"},
    {"Wizard_button.swf", Icon::Wizard, "Wizard"},
    {"Save_button.swf", Icon::Save, "Save"},
    {"Load_button.swf", Icon::Load, "Load"},
    {"Config_button.swf", Icon::Configure, "Configure"},
    {"About_button.swf", Icon::About, "About"},
};

bool IsFile(const QString& sFileName, const char* sMovie) {
  return sFileName.compare(QLatin1String(sMovie), Qt::CaseInsensitive) == 0;
}

}  // namespace

ShockwaveFlash::ShockwaveFlash(QWidget* pParent) : QWidget(pParent) {}

void ShockwaveFlash::SetMovie(const QString& sPath) {
  if (m_pMovie != nullptr) {
    m_pMovie->hide();
    m_pMovie->deleteLater();  // this may be called from its own command
  }
  // A folder may have a "?" in its name too.
  const auto oEnd =
      QRegularExpression("\\.swf(\\?|$)", QRegularExpression::CaseInsensitiveOption).match(sPath);
  const QString sFile = sPath.left(oEnd.capturedStart(1));
  m_pMovie =
      MakeMovie(sFile.section(QRegularExpression("[\\\\/]"), -1), sPath.mid(oEnd.capturedEnd(1)));
  if (m_pMovie != nullptr) {
    m_pMovie->setToolTip(toolTip());
    m_pMovie->setGeometry(rect());
    m_pMovie->show();
    setFocusProxy(m_pMovie);
  }
}

/// The movie of that file name, in any case; null if there is none.
QWidget* ShockwaveFlash::MakeMovie(const QString& sFileName, const QString& sParameters) {
  const auto fnPassOn = [this](auto* pMovie, auto pCommand) {
    connect(pMovie, pCommand, this,
            [this](const QString& sCommand) { emit FSCommand(sCommand, {}); });
    return pMovie;
  };
  if (IsFile(sFileName, "About.swf")) {
    return fnPassOn(new AboutMovie(sParameters, this), &AboutMovie::Command);
  }
  if (IsFile(sFileName, "Splash.swf")) {
    return fnPassOn(new SplashMovie(sParameters, this), &SplashMovie::Command);
  }
  for (const auto& [sMovie, eIcon, sCaption] : kButtons) {
    if (IsFile(sFileName, sMovie)) {
      return fnPassOn(new ButtonMovie(eIcon, sCaption, this), &ButtonMovie::Command);
    }
  }
  return nullptr;
}

void ShockwaveFlash::Play() {
  if (auto* const pSplash = qobject_cast<SplashMovie*>(m_pMovie)) {
    pSplash->Play();
  }
}

void ShockwaveFlash::SetCurrent(bool bCurrent) {
  if (auto* const pButton = qobject_cast<ButtonMovie*>(m_pMovie)) {
    pButton->SetCurrent(bCurrent);
  }
}

bool ShockwaveFlash::event(QEvent* pEvent) {
  if (pEvent->type() == QEvent::ToolTipChange && m_pMovie != nullptr) {
    m_pMovie->setToolTip(toolTip());  // also describes it to a screen reader
  }
  return QWidget::event(pEvent);
}

void ShockwaveFlash::resizeEvent(QResizeEvent* /*pEvent*/) {
  if (m_pMovie != nullptr) {
    m_pMovie->setGeometry(rect());
  }
}

}  // namespace quillet
