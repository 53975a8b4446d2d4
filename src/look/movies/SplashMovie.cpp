#include "look/movies/SplashMovie.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "look/movies/drawing.h"
#include "look/palette.h"

namespace quillet {
namespace {

// In the units of the design.
constexpr QSizeF kSize(553.0, 305.0);
constexpr QSizeF kQuillSize(103.0, 112.0);
constexpr QPointF kNib(5.0, 107.0);  // within the quill
constexpr double kNameLeft = 92.0;
constexpr double kNameBase = 154.0;
constexpr double kLineTop = 176.0;
constexpr double kLineEnd = 372.0;
constexpr double kLineWidth = 5.0;
constexpr double kSubtitleBase = 208.0;
constexpr double kFootBase = 281.0;
constexpr double kFootMargin = 24.0;

constexpr double kNamePoints = 58.0;
constexpr double kSubtitlePoints = 11.0;
constexpr double kFootPoints = 7.5;

// In seconds.
constexpr double kLength = 1.8;
constexpr double kComes = 0.4;  // the quill is where it writes
constexpr double kWritten = 1.15;
constexpr double kWordsCome = 1.0;
constexpr double kWordsStand = 1.4;
constexpr int kTick = 16;  // milliseconds

QString EditionOf(const QString& sParameters) {
  const QString sVersion = sParameters.section("Version=", 1).section('&', 0, 0);
  return sVersion == "UK"   ? "United Kingdom edition"
         : sVersion == "US" ? "United States edition"
                            : "European edition";
}

double LineTip(double fNow) {
  return kNameLeft + (kLineEnd - kNameLeft) * Eased(fNow, kComes, kWritten);
}

/// Comes in from beyond the upper right corner, then follows the line, wavering as a hand does.
QPointF NibAt(double fNow) {
  const double fAway = 1.0 - Eased(fNow, 0.0, kComes);
  const double fWriting =
      Eased(fNow, kComes, kComes + 0.15) - Eased(fNow, kWritten - 0.2, kWritten);
  const double fBeat = std::sin((fNow - kComes) * 2.0 * std::numbers::pi * 5.0) * fWriting;
  return {LineTip(fNow) + fAway * 180.0 + fBeat * 2.0,
          kLineTop - fAway * 120.0 - std::abs(fBeat) * 5.0};
}

}  // namespace

SplashMovie::SplashMovie(const QString& sParameters, QWidget* pStage)
    : QWidget(pStage), m_sEdition(EditionOf(sParameters)) {
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(QString("Quillet, %1").arg(m_sEdition));
  m_oTicks.setTimerType(Qt::PreciseTimer);
  connect(&m_oTicks, &QTimer::timeout, this, &SplashMovie::Advance);
}

void SplashMovie::Play() {
  m_oClock.start();
  m_oTicks.start(kTick);
}

void SplashMovie::Advance() {
  Tell(m_bStarted, "start");
  m_fNow = static_cast<double>(m_oClock.elapsed()) / 1000.0;
  if (m_fNow >= kLength) {
    End();
  }
  update();
}

void SplashMovie::End() {
  m_oTicks.stop();
  m_fNow = kLength;
  update();
  Tell(m_bStarted, "start");
  Tell(m_bStopped, "stop");
}

/// Sends each command once.
void SplashMovie::Tell(bool& bTold, const char* sCommand) {
  if (!std::exchange(bTold, true)) {
    emit Command(sCommand);
  }
}

void SplashMovie::keyPressEvent(QKeyEvent* pEvent) {
  pEvent->setAccepted(!m_bStopped);
  End();
}

void SplashMovie::mousePressEvent(QMouseEvent* pEvent) {
  pEvent->setAccepted(!m_bStopped);
  End();
}

void SplashMovie::paintEvent(QPaintEvent* /*pEvent*/) {
  const double fScale = width() / kSize.width();
  QPainter oPainter(this);
  oPainter.setRenderHint(QPainter::Antialiasing);
  oPainter.save();
  oPainter.scale(fScale, fScale);
  DrawGround(oPainter);
  DrawLine(oPainter);
  oPainter.restore();
  DrawName(oPainter, fScale);
  DrawWords(oPainter, fScale);
  oPainter.scale(fScale, fScale);
  oPainter.setOpacity(Eased(m_fNow, 0.0, kComes * 0.6));
  const QPointF oNib = NibAt(m_fNow);
  DrawQuill(oPainter, {oNib - kNib, kQuillSize});
}

void SplashMovie::DrawGround(QPainter& oPainter) const {
  QLinearGradient oGround(0, 0, 0, kSize.height());
  oGround.setColorAt(0, InkColour(Ink::Hover));
  oGround.setColorAt(1, InkColour(Ink::Column));
  oPainter.fillRect(QRectF({}, kSize + QSizeF(1, 1)), oGround);
  oPainter.setPen(QPen(InkColour(Ink::Hairline), 1.0));
  oPainter.setBrush(Qt::NoBrush);
  oPainter.drawRect(QRectF({}, kSize).adjusted(0.5, 0.5, -0.5, -0.5));
}

/// Each letter rises as the nib passes it.
void SplashMovie::DrawName(QPainter& oPainter, double fScale) const {
  constexpr double kRise = 10.0;
  constexpr double kReach = 70.0;  // how far the nib is past a letter when it is in place
  const QString sName = "Quillet";
  const QFont oFont = MovieFont(kNamePoints, QFont::Bold, fScale);
  const QFontMetricsF oMetrics(oFont);
  oPainter.setFont(oFont);
  oPainter.setPen(InkColour(Ink::Text));
  for (int i = 0; i < sName.size(); ++i) {
    const double fLeft = kNameLeft + oMetrics.horizontalAdvance(sName.left(i)) / fScale;
    // The line ends before the nib is past the last letters: they are in place once it is written.
    const double fSeen = std::max(Eased(LineTip(m_fNow), fLeft, fLeft + kReach),
                                  Eased(m_fNow, kWritten - 0.25, kWritten));
    oPainter.setOpacity(fSeen);
    oPainter.drawText(QPointF(fLeft, kNameBase + kRise * (1.0 - fSeen)) * fScale, sName.mid(i, 1));
  }
  oPainter.setOpacity(1.0);
}

void SplashMovie::DrawLine(QPainter& oPainter) const {
  if (m_fNow <= kComes) {
    return;
  }
  constexpr QColor kInk(0xFF, 0x80, 0x00);
  oPainter.setPen(QPen(kInk, kLineWidth, Qt::SolidLine, Qt::RoundCap));
  oPainter.drawLine(QPointF(kNameLeft + kLineWidth / 2.0, kLineTop),
                    QPointF(std::max(LineTip(m_fNow), kNameLeft + kLineWidth / 2.0), kLineTop));
}

/// The slogan, and below it the edition and the version.
void SplashMovie::DrawWords(QPainter& oPainter, double fScale) const {
  constexpr double kRise = 6.0;
  const double fSeen = Eased(m_fNow, kWordsCome, kWordsStand);
  oPainter.setOpacity(fSeen);
  oPainter.setFont(MovieFont(kSubtitlePoints, QFont::Medium, fScale));
  oPainter.setPen(InkColour(Ink::ColumnText));
  oPainter.drawText(QPointF(kNameLeft, kSubtitleBase + kRise * (1.0 - fSeen)) * fScale,
                    "Know what a sale will leave you.");
  oPainter.setFont(MovieFont(kFootPoints, QFont::Medium, fScale));
  oPainter.setPen(InkColour(Ink::FaintText));
  const QString sVersion = QCoreApplication::applicationVersion();
  const double fWidth = oPainter.fontMetrics().horizontalAdvance(sVersion) / fScale;
  oPainter.drawText(QPointF(kFootMargin, kFootBase) * fScale, m_sEdition);
  oPainter.drawText(QPointF(kSize.width() - kFootMargin - fWidth, kFootBase) * fScale, sVersion);
  oPainter.setOpacity(1.0);
}

}  // namespace quillet
