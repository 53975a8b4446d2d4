#include "shell/frmAbout.h"

#include <QKeyEvent>
#include <QPainter>
#include <QShowEvent>
#include <array>
#include <initializer_list>
#include <string>

#include "base/basCommon.h"
#include "base/basMain.h"
#include "base/clsRegistryAccess.h"
#include "base/failure.h"
#include "base/servers.h"
#include "base/text.h"
#include "base/version.h"
#include "controls/Controls.h"
#include "controls/ImageButton.h"
#include "controls/layout.h"
#include "look/ShockwaveFlash.h"
#include "look/palette.h"
#include "look/scale.h"
#include "platform/Files.h"
#include "shell/SettingsPage.h"

namespace quillet {
namespace {

// Places in twips. The design's size is that of the whole window, with the edges and the title bar
// of the platform that it was drawn on.
constexpr int kOuterWidth = 7785;
constexpr int kOuterHeight = 4350;
constexpr int kFrameWidth = 90;
constexpr int kFrameHeight = 465;
constexpr int kPageLeft = 2040;
constexpr int kPageTop = 120;
constexpr int kPageWidth = 5415;
constexpr int kPageHeight = 3615;

/// A rule between the images and the pages. The pages, which are opaque, cover it.
class Line : public QWidget, public Control {
 public:
  explicit Line(QWidget* pParent) : QWidget(pParent), Control(static_cast<QWidget&>(*this)) {
    QPalette oPalette = palette();
    oPalette.setColor(QPalette::Window, ColourOf(kColourHighlight));
    setPalette(oPalette);
    setAutoFillBackground(true);
  }
  [[nodiscard]] const char* TypeName() const override { return "Line"; }
};

template <typename Kind>
Kind* MakePage(const char* sName, QWidget* pParent) {
  auto* const pPage = Make<Kind>(sName, pParent);
  pPage->setAutoFillBackground(true);
  pPage->SetVisible(false);
  return pPage;
}

/// "00.01.000" of "0.1.0".
std::string PaddedVersion() {
  const QStringList asParts = QString(kVersion).split('.');
  const auto fnPadded = [&](int nPart, std::size_t nLength) {
    return PadLeftWith(asParts.value(nPart).toStdString(), nLength, "0");
  };
  return fnPadded(0, 2) + "." + fnPadded(1, 2) + "." + fnPadded(2, 3);
}

}  // namespace

frmAbout::frmAbout(QWidget* pOwner)
    : QDialog(pOwner, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      m_pLine1(Make<Line>("Line1", this)),
      m_pImgAbout(Make<ImageButton>("imgAbout", this)),
      m_pImgSettings(Make<ImageButton>("imgSettings", this)),
      m_pFraAmination(MakePage<Frame>("fraAmination", this)),
      m_pAniFlash(new ShockwaveFlash(m_pFraAmination)),
      m_pFraSettings(MakePage<SettingsPage>("fraSettings", this)) {
  setObjectName("frmAbout");
  m_pAniFlash->setObjectName("aniFlash");
  DescribeControls();
  PlaceControls();
  ConnectControls();
  Form_Load();
}

void frmAbout::DescribeControls() {
  Describe(*m_pImgAbout, "A&bout", "About Quillet");
  Describe(*m_pImgSettings, "&Settings", "Settings of Quillet");
  m_pImgAbout->SetPicture(ButtonPicture::About);
  m_pImgAbout->SetPage(true);
  m_pImgSettings->SetPicture(ButtonPicture::Settings);
  m_pImgSettings->SetPage(true);
}

void frmAbout::PlaceControls() {
  constexpr int kLineWidth = 15;
  PlaceAll(std::to_array<ControlPlace>({
      {m_pLine1, 2280, 120, kLineWidth, 3600},
      {m_pImgAbout, 240, 120, 1695, 420},
      {m_pImgSettings, 240, 600, 1695, 420},
  }));
  RescaleAll(*this);  // the fonts too
  m_pAniFlash->setGeometry(0, 0, Pixels(kPageWidth), Pixels(kPageHeight));
}

void frmAbout::ConnectControls() {
  connect(m_pImgAbout, &QAbstractButton::clicked, this,
          [this] { IgnoreFailure([this] { imgAbout_Click(); }); });
  connect(m_pImgSettings, &QAbstractButton::clicked, this, [this] { ShowPage(1); });
  connect(m_pFraSettings, &SettingsPage::ResetControlPositions, this,
          &frmAbout::ResetControlPositions);
  connect(m_pAniFlash, &ShockwaveFlash::FSCommand, this, [this](const QString& sCommand) {
    IgnoreFailure([&] { aniFlash_FSCommand(sCommand); });
  });
}

void frmAbout::Form_Load() {
  QPalette oPalette = palette();
  oPalette.setColor(QPalette::Window, ColourOf(kColourWindowText));
  setPalette(oPalette);
  setFixedSize(Pixels(kOuterWidth - kFrameWidth), Pixels(kOuterHeight - kFrameHeight));
  setWindowTitle(
      QString::fromStdString("About - " + EditionName() + " (v" + PaddedVersion() + ")"));
  m_pImgAbout->click();
}

void frmAbout::imgAbout_Click() {
  const std::string sInfo = ExpandAboutText(g_sAboutText);
  const std::string sMusic = Registry().Get(settings::kMusicId);
  const std::string sMute = Registry().Get(settings::kMusicMute);
  // The path of the movie is native; its parameters are text, in which a "\" means itself.
  m_pAniFlash->SetMovie(
      QString::fromStdString(NativePath(TheHost().ProgramFolder() + "\\Graphics\\About.swf") +
                             "?AboutInfo=" + sInfo + "&" + sMusic + "&" + sMute));
  ShowPage(0);
}

void frmAbout::ShowPage(std::int32_t lPage) {
  Frame* const pChosen = lPage == 0 ? m_pFraAmination : m_pFraSettings;
  pChosen->Place(kPageLeft, kPageTop, kPageWidth, kPageHeight);
  for (Frame* const pPage : std::initializer_list<Frame*>{m_pFraAmination, m_pFraSettings}) {
    pPage->SetEnabled(pPage == pChosen);
    pPage->SetVisible(pPage == pChosen);
  }
  m_pImgAbout->setChecked(lPage == 0);
  m_pImgSettings->setChecked(lPage != 0);
}

void frmAbout::ResetSettings() {
  m_pFraSettings->ResetSettings();
}

void frmAbout::aniFlash_FSCommand(const QString& sCommand) {
  const QString sLower = sCommand.toLower();
  const std::string sText = sCommand.toStdString();
  if (sLower == "click") {
    OpenDocument(kWebsite);
  } else if (sLower == "music=0" || sLower == "music=1" || sLower == "music=2" ||
             sLower == "music=3") {
    Registry().Set(settings::kMusicId, sText);
  } else if (sLower == "mute=false" || sLower == "mute=true") {
    Registry().Set(settings::kMusicMute, sText);
  }
}

void frmAbout::keyPressEvent(QKeyEvent* pEvent) {
  if (pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter) {
    m_pFraSettings->ApplyIfOffered();
  } else {
    QDialog::keyPressEvent(pEvent);
  }
}

/// The images have the background of the main window's buttons.
void frmAbout::paintEvent(QPaintEvent* /*pEvent*/) {
  QPainter oPainter(this);
  const int nEdge = Pixels(kPageLeft);
  oPainter.fillRect(QRect(0, 0, nEdge - 1, height()), InkColour(Ink::Column));
  oPainter.fillRect(QRect(nEdge - 1, 0, 1, height()), InkColour(Ink::Hairline));
}

void frmAbout::showEvent(QShowEvent* pEvent) {
  QDialog::showEvent(pEvent);
  m_pImgAbout->setFocus();
}

}  // namespace quillet
