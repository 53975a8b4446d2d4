#include "shell/frmAbout.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QShowEvent>
#include <array>
#include <string>

#include "base/basCommon.h"
#include "base/basMain.h"
#include "base/clsRegistryAccess.h"
#include "base/conversions.h"
#include "base/failure.h"
#include "base/servers.h"
#include "base/text.h"
#include "base/version.h"
#include "controls/ComboBox.h"
#include "controls/Controls.h"
#include "controls/ImageButton.h"
#include "controls/layout.h"
#include "look/ShockwaveFlash.h"
#include "look/palette.h"
#include "look/scale.h"
#include "platform/Files.h"
#include "sections/controlHelpers.h"
#include "sections/ctlNumericText.h"

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

constexpr int kMinSnap = 1;
constexpr int kMaxSnap = 1000;
constexpr double kSettingPoints = 7.5;  // so that the longest caption ends before its button

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

Frame* MakePage(const char* sName, QWidget* pParent) {
  auto* const pFrame = Make<Frame>(sName, pParent);
  pFrame->SetTag(sName);
  pFrame->setAutoFillBackground(true);
  pFrame->SetVisible(false);
  return pFrame;
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
      m_pFraAmination(MakePage("fraAmination", this)),
      m_pAniFlash(new ShockwaveFlash(m_pFraAmination)),
      m_pFraSettings(MakePage("fraSettings", this)),
      m_pLblStartMode(Make<Label>("lblStartMode", m_pFraSettings)),
      m_pCboStartMode(Make<ComboBox>("cboStartMode", m_pFraSettings)),
      m_pLabel3(Make<Label>("Label3", m_pFraSettings)),
      m_pTxtSnapToGrid(Make<ctlNumericText>("txtSnapToGrid", m_pFraSettings)),
      m_pLabel2(Make<Label>("Label2", m_pFraSettings)),
      m_pImgResetPositions(Make<ImageButton>("imgResetPositions", m_pFraSettings)),
      m_pLblHint(Make<Label>("lblHint", m_pFraSettings)),
      m_pImgApply(Make<ImageButton>("imgApply", m_pFraSettings)),
      m_pImgCancel(Make<ImageButton>("imgCancel", m_pFraSettings)) {
  setObjectName("frmAbout");
  m_pAniFlash->setObjectName("aniFlash");
  DescribeControls();
  PlaceControls();
  ConnectControls();
  Form_Load();
}

void frmAbout::DescribeControls() {
  struct Description {
    Control* pControl;
    const char* sCaption;
    const char* sToolTip;
  };
  const std::array aoDescriptions = std::to_array<Description>({
      {m_pImgAbout, "A&bout", "About Quillet"},
      {m_pImgSettings, "&Settings", "Settings of Quillet"},
      {m_pLblStartMode, "Start Mode", ""},
      {m_pCboStartMode, "", "The view that Quillet starts with"},
      {m_pLabel3, "Snap to Grid Size", ""},
      {m_pTxtSnapToGrid, "", "The step in which sections are dragged, in twips of 1/1440 inch"},
      {m_pLabel2, "Reset Expert Positions", ""},
      {m_pImgResetPositions, "&Reset", "Put the sections of the calculator back in their places"},
      {m_pLblHint,
       "The start mode applies from the next start, the grid size from the next drag. Reset takes "
       "effect at once.",
       ""},
      {m_pImgApply, "&Apply", "Store these settings"},
      {m_pImgCancel, "&Cancel", "Go back to the stored settings"},
  });
  for (const auto& [pControl, sCaption, sToolTip] : aoDescriptions) {
    pControl->SetCaption(sCaption);
    pControl->Widget().setToolTip(sToolTip);
    pControl->Widget().setAccessibleName(QString(sCaption).remove('&'));
  }
  m_pCboStartMode->setAccessibleName(m_pLblStartMode->Caption());
  m_pTxtSnapToGrid->SetAccessibleName(m_pLabel3->Caption());
  m_pImgResetPositions->setAccessibleName(m_pLabel2->Caption());
  m_pLblHint->setWordWrap(true);
  m_pLblHint->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  for (Label* const pLabel : {m_pLblStartMode, m_pLabel3, m_pLabel2, m_pLblHint}) {
    pLabel->SetFontSize(kSettingPoints, QFont::Medium);
  }
  m_pImgAbout->SetPicture(ButtonPicture::About);
  m_pImgAbout->SetPage(true);
  m_pImgSettings->SetPicture(ButtonPicture::Settings);
  m_pImgSettings->SetPage(true);
  m_pImgApply->SetPicture(ButtonPicture::Finish);
  m_pImgApply->SetPrimary(true);
  m_pTxtSnapToGrid->SetDecimalPlaces(0);
  m_pTxtSnapToGrid->SetMin(kMinSnap);
  m_pTxtSnapToGrid->SetMax(kMaxSnap);
}

void frmAbout::PlaceControls() {
  constexpr int kLineWidth = 15;
  constexpr int kGap = 90;  // the places of Apply and Cancel overlap
  m_pImgApply->SetGap(kGap);
  m_pImgCancel->SetGap(kGap);
  m_pImgResetPositions->SetFlush(true);  // with the boxes above it
  PlaceAll(std::to_array<ControlPlace>({
      {m_pLine1, 2280, 120, kLineWidth, 3600},
      {m_pImgAbout, 240, 120, 1695, 420},
      {m_pImgSettings, 240, 600, 1695, 420},
      {m_pLblStartMode, 240, 150, 1335, 255},
      {m_pCboStartMode, 2040, 120, 3135, 315},
      {m_pLabel3, 240, 570, 1695, 255},
      {m_pTxtSnapToGrid, 2040, 570, 1095, 255},
      {m_pLabel2, 240, 1005, 1695, 255},
      {m_pImgResetPositions, 2040, 945, 1470, 375},
      {m_pLblHint, 240, 1560, 4935, 600},
      {m_pImgApply, 2400, 3120, 1470, 375},
      {m_pImgCancel, 3840, 3120, 1470, 375},
  }));
  RescaleAll(*this);  // the fonts too
  m_pAniFlash->setGeometry(0, 0, Pixels(kPageWidth), Pixels(kPageHeight));
}

void frmAbout::ConnectControls() {
  connect(m_pImgAbout, &QAbstractButton::clicked, this,
          [this] { IgnoreFailure([this] { imgAbout_Click(); }); });
  connect(m_pImgSettings, &QAbstractButton::clicked, this, [this] { ShowPage(1); });
  connect(m_pImgResetPositions, &QAbstractButton::clicked, this, &frmAbout::ResetControlPositions);
  connect(m_pImgApply, &QAbstractButton::clicked, this,
          [this] { IgnoreFailure([this] { imgApply_Click(); }); });
  connect(m_pImgCancel, &QAbstractButton::clicked, this, &frmAbout::ResetSettings);
  const auto fnOfferApply = [this] { m_pImgApply->SetVisible(true); };
  connect(m_pCboStartMode, &QComboBox::activated, this, fnOfferApply);
  connect(m_pCboStartMode, &QComboBox::currentIndexChanged, this, fnOfferApply);
  connect(m_pTxtSnapToGrid, &ctlNumericText::Changed, this, fnOfferApply);
  m_pTxtSnapToGrid->TextBox()->installEventFilter(this);
  connect(m_pAniFlash, &ShockwaveFlash::FSCommand, this, [this](const QString& sCommand) {
    IgnoreFailure([&] { aniFlash_FSCommand(sCommand); });
  });
}

void frmAbout::Form_Load() {
  QPalette oPalette = palette();
  oPalette.setColor(QPalette::Window, ColourOf(kColourWindowText));
  setPalette(oPalette);
  for (QWidget* const pWidget : findChildren<QWidget*>()) {
    if (auto* const pControl = dynamic_cast<Control*>(pWidget)) {
      ApplyThemeColours(*pControl);
    }
  }
  m_pLblHint->SetForeColor(kColourGreyText);
  setFixedSize(Pixels(kOuterWidth - kFrameWidth), Pixels(kOuterHeight - kFrameHeight));
  ResetSettings();
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
  for (QWidget* const pWidget : findChildren<QWidget*>()) {
    auto* const pFrame = dynamic_cast<Frame*>(pWidget);
    if (pFrame == pChosen) {
      pFrame->Place(kPageLeft, kPageTop, kPageWidth, kPageHeight);
      pFrame->SetEnabled(true);
      pFrame->SetVisible(true);
    } else if (pFrame != nullptr && pFrame->Tag() == pFrame->Name()) {
      pFrame->SetEnabled(false);
      pFrame->SetVisible(false);
    }
  }
  m_pImgAbout->setChecked(lPage == 0);
  m_pImgSettings->setChecked(lPage != 0);
}

void frmAbout::ResetSettings() {
  IgnoreFailure([this] {
    FillStartMode(Registry().Get(settings::kStartMode));
    m_pTxtSnapToGrid->SetText(Registry().GetOrCreate(settings::kSnapToGrid));
    m_pImgApply->SetVisible(false);
  });
}

void frmAbout::FillStartMode(const std::string& sStored) {
  constexpr std::array<const char*, 2> kModes = {"Wizard", "Advanced"};  // by their data
  m_pCboStartMode->clear();
  for (int i = 0; i < static_cast<int>(kModes.size()); ++i) {
    m_pCboStartMode->addItem(kModes.at(static_cast<std::size_t>(i)), i);
  }
  m_pCboStartMode->setCurrentIndex(sStored == "1" ? 1 : 0);  // what is neither counts as the first
}

/// Enters a text that was typed and not yet left, or corrects it, and stores it as a plain number.
void frmAbout::imgApply_Click() {
  m_pTxtSnapToGrid->CommitTyping();
  m_pTxtSnapToGrid->SetValue({});
  Registry().Set(settings::kStartMode, m_pCboStartMode->currentData().toString().toStdString());
  Registry().Set(settings::kSnapToGrid, m_pTxtSnapToGrid->Text());
  g_lSnapToGrid = ToLong(m_pTxtSnapToGrid->Text()).value_or(g_lSnapToGrid);
  m_pImgApply->SetVisible(false);
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

/// Coming back from another window or a menu doesn't count as entering the box again.
bool frmAbout::eventFilter(QObject* pWatched, QEvent* pEvent) {
  if (pEvent->type() == QEvent::FocusIn) {
    const Qt::FocusReason eReason = static_cast<QFocusEvent*>(pEvent)->reason();
    if (eReason != Qt::ActiveWindowFocusReason && eReason != Qt::PopupFocusReason) {
      m_pImgApply->SetVisible(true);
    }
  }
  return QDialog::eventFilter(pWatched, pEvent);
}

void frmAbout::keyPressEvent(QKeyEvent* pEvent) {
  const bool bEnter = pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter;
  if (bEnter && m_pImgApply->isVisible()) {
    m_pImgApply->click();
  } else if (!bEnter) {
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
