#include "look/movies/AboutMovie.h"

#include <QCoreApplication>
#include <QPainter>
#include <QTimer>
#include <cmath>

#include "look/font.h"
#include "look/movies/MovieButton.h"
#include "look/movies/ScrollingText.h"
#include "look/movies/drawing.h"
#include "look/palette.h"

namespace quillet {
namespace {

// In the units of the design.
constexpr double kWidth = 361.0;
constexpr double kLeft = 16.0;
constexpr QRectF kQuill(kLeft, 8.0, 40.0, 43.5);
constexpr QPointF kName(68.0, 33.0);
constexpr QPointF kSubtitle(69.0, 51.0);
constexpr double kRuleTop = 67.0;
constexpr QRectF kText(kLeft - 3.0, 70.0, kWidth - kLeft + 3.0, 124.0);
constexpr double kRuleBottom = 197.0;
constexpr double kRowTop = 206.0;
constexpr double kRowHeight = 28.0;
constexpr double kTuneWidth = 38.0;
constexpr double kGap = 4.0;
constexpr double kLinkSides = 10.0;

constexpr double kNamePoints = 20.0;

constexpr std::array<const char*, kTunes> kTuneNames = {"First Light", "Market Day", "Penny Waltz",
                                                        "Sold"};

QString OwnMessage() {
  return QString("Quillet %1").arg(QCoreApplication::applicationVersion()).trimmed() +
         "<br><br>What a sale costs, before you list it: the listing, reserve and final value "
         "fees, "
         "the selling features, postage and PayPal."
         "<br><br>And what it leaves you.";
}

QString MessageOf(const QString& sParameters) {
  constexpr QLatin1String kMessage("AboutInfo=");
  const QString sMessage = sParameters.section('&', 0, -3);
  return sMessage.size() > kMessage.size() && sMessage.startsWith(kMessage)
             ? sMessage.mid(kMessage.size())
             : OwnMessage();
}

int TuneOf(const QString& sParameters) {
  constexpr QLatin1String kMusic("music=");
  const QString sMusic = sParameters.section('&', -2, -2);
  const int nTune =
      sMusic.startsWith(kMusic, Qt::CaseInsensitive) ? sMusic.mid(kMusic.size()).toInt() : 0;
  return nTune >= 0 && nTune < kTunes ? nTune : 0;
}

bool IsMute(const QString& sParameters) {
  return sParameters.section('&', -1).compare(QLatin1String("mute=true"), Qt::CaseInsensitive) == 0;
}

QRect Scaled(const QRectF& oPlace, double fScale) {
  return QRectF(oPlace.topLeft() * fScale, oPlace.size() * fScale).toAlignedRect();
}

}  // namespace

AboutMovie::AboutMovie(const QString& sParameters, QWidget* pStage)
    : QWidget(pStage),
      m_nTune(TuneOf(sParameters)),
      m_bMute(IsMute(sParameters)),
      m_pText(new ScrollingText(MessageOf(sParameters), this)) {
  MakeTunes();
  MakeMute();
  MakeLink();
  ShowState();
}

void AboutMovie::MakeTunes() {
  for (int i = 0; i < kTunes; ++i) {
    const QString sNumber = QString::number(i + 1);
    auto* const pTune = new MovieButton(Icon::Note, sNumber, this);
    const QString sName =
        QString("Tune %1: %2").arg(sNumber, kTuneNames.at(static_cast<size_t>(i)));
    pTune->setObjectName(QString("tune%1").arg(i));
    pTune->setAccessibleName(sName);
    pTune->setToolTip(sName);
    pTune->setCheckable(true);
    connect(pTune, &QAbstractButton::clicked, this, [this, i] { ChooseTune(i); });
    m_apTunes.at(static_cast<size_t>(i)) = pTune;
  }
}

void AboutMovie::MakeMute() {
  m_pMute = new MovieButton(Icon::Sound, {}, this);
  m_pMute->setObjectName("mute");
  m_pMute->setAccessibleName("Mute");
  m_pMute->setCheckable(true);
  connect(m_pMute, &QAbstractButton::clicked, this, [this] { ToggleMute(); });
}

void AboutMovie::MakeLink() {
  m_pLink = new MovieButton(Icon::Link, "Website", this);
  m_pLink->setObjectName("website");
  m_pLink->setAccessibleName("Website");
  m_pLink->setToolTip("Open the website of Quillet");
  m_pLink->setCursor(Qt::PointingHandCursor);
  connect(m_pLink, &QAbstractButton::clicked, this, [this] { emit Command("click"); });
}

void AboutMovie::ChooseTune(int nTune) {
  m_nTune = nTune;
  ShowState();
  PlayOrStop();
  emit Command(QString("music=%1").arg(nTune));
}

void AboutMovie::ToggleMute() {
  m_bMute = !m_bMute;
  ShowState();
  PlayOrStop();
  emit Command(m_bMute ? "mute=true" : "mute=false");
}

void AboutMovie::ShowState() {
  for (int i = 0; i < kTunes; ++i) {
    m_apTunes.at(static_cast<size_t>(i))->setChecked(i == m_nTune);
  }
  m_pMute->SetIcon(m_bMute ? Icon::Muted : Icon::Sound);
  m_pMute->setChecked(m_bMute);
  m_pMute->setToolTip(m_bMute ? "Sound on" : "Mute");
}

void AboutMovie::PlayOrStop() const {
  if (m_bMute) {
    TheSound().Stop();
  } else {
    TheSound().Play(m_nTune);
  }
}

void AboutMovie::resizeEvent(QResizeEvent* /*pEvent*/) {
  const double fScale = width() / kWidth;
  m_pText->SetScale(fScale);
  m_pText->setGeometry(Scaled(kText, fScale));
  double fLeft = kLeft - 2.0;
  const auto fnPlace = [&](MovieButton* pButton) {
    pButton->SetScale(fScale);
    pButton->setGeometry(Scaled({fLeft, kRowTop, kTuneWidth, kRowHeight}, fScale));
    fLeft += kTuneWidth + kGap;
  };
  for (MovieButton* const pTune : m_apTunes) {
    fnPlace(pTune);
  }
  fLeft += kGap;
  fnPlace(m_pMute);
  m_pLink->SetScale(fScale);
  const double fLink = m_pLink->WidthOfWords() / fScale + 2.0 * kLinkSides;
  m_pLink->setGeometry(Scaled({kWidth - fLink, kRowTop, fLink, kRowHeight}, fScale));
}

void AboutMovie::paintEvent(QPaintEvent* /*pEvent*/) {
  const double fScale = width() / kWidth;
  QPainter oPainter(this);
  oPainter.setRenderHint(QPainter::Antialiasing);
  oPainter.setPen(InkColour(Ink::Text));
  oPainter.setFont(MovieFont(kNamePoints, QFont::Bold, fScale));
  oPainter.drawText(kName * fScale, "Quillet");
  oPainter.setPen(InkColour(Ink::ColumnText));
  oPainter.setFont(MovieFont(kTextPoints, QFont::Medium, fScale));
  oPainter.drawText(kSubtitle * fScale, "Know what a sale will leave you.");
  for (const double fRule : {kRuleTop, kRuleBottom}) {
    const double fAt = std::floor(fRule * fScale);
    oPainter.fillRect(QRectF(kLeft * fScale, fAt, width() - kLeft * fScale, 1.0),
                      InkColour(Ink::Hairline));
  }
  oPainter.scale(fScale, fScale);
  DrawQuill(oPainter, kQuill);
}

/// Lets the window appear first, since the first tune has to load a library.
void AboutMovie::showEvent(QShowEvent* /*pEvent*/) {
  QTimer::singleShot(0, this, [this] {
    if (isVisible() && !m_bMute) {
      PlayOrStop();
    }
  });
}

void AboutMovie::hideEvent(QHideEvent* /*pEvent*/) {
  TheSound().Stop();
}

}  // namespace quillet
