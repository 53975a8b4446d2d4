#include "shell/frmMain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLineEdit>
#include <QScreen>
#include <QShortcut>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "base/basCommon.h"
#include "base/basError.h"
#include "base/clsRegistryAccess.h"
#include "base/failure.h"
#include "look/ShockwaveFlash.h"
#include "look/font.h"
#include "look/palette.h"
#include "look/scale.h"
#include "platform/Files.h"
#include "shell/ScrollFrame.h"
#include "shell/formPosition.h"
#include "shell/frmAbout.h"
#include "shell/zoomSteps.h"

namespace quillet {
namespace {

// Places in twips.
constexpr int kWindowWidth = 11805;
constexpr int kWindowHeight = 8010;
constexpr int kRhsLeft = 1590;
constexpr int kLhsWidth = 1575;
constexpr int kButtonLeft = 240;
constexpr int kButtonSize = 1080;
constexpr int kFirstButtonTop = 240;
constexpr int kAboutTop = 6720;
constexpr int kMargin = 240;  // beside the sections, where the window is made to hold them

struct ButtonDesign {
  const char* sMovie;
  const char* sToolTip;
  const char* sShortcut;
};

constexpr std::array<ButtonDesign, 6> kButtons = {{
    {"\\Graphics\\Buttons\\New_button.swf", "New Auction", "Ctrl+N"},
    {"\\Graphics\\Buttons\\Calc_button.swf", "Calculator", "Ctrl+1"},
    {"\\Graphics\\Buttons\\Wizard_button.swf", "Wizard", "Ctrl+2"},
    {"\\Graphics\\Buttons\\Save_button.swf", "Save", "Ctrl+S"},
    {"\\Graphics\\Buttons\\Load_button.swf", "Load", "Ctrl+O"},
    {"\\Graphics\\Buttons\\Config_button.swf", "Default Configuration", "Ctrl+,"},
}};
constexpr ButtonDesign kAboutButton = {"\\Graphics\\Buttons\\About_button.swf", "About", "F1"};

QString ToolTipOf(const ButtonDesign& oButton) {
  const QKeySequence oKeys(QString::fromLatin1(oButton.sShortcut));
  return QString("%1 (%2)").arg(oButton.sToolTip, oKeys.toString(QKeySequence::NativeText));
}

/// A button that plays a movie, and calls `fnClick` when the movie sends "click" in any case.
template <typename Click>
ShockwaveFlash* MakeButton(const ButtonDesign& oButton, const char* sName, QWidget* pParent,
                           Click&& fnClick) {
  auto* const pButton = new ShockwaveFlash(pParent);
  pButton->setObjectName(sName);
  pButton->SetMovie(
      QString::fromStdString(NativePath(TheHost().ProgramFolder() + std::string(oButton.sMovie))));
  pButton->setToolTip(ToolTipOf(oButton));
  pButton->setAccessibleName(oButton.sToolTip);
  QObject::connect(pButton, &ShockwaveFlash::FSCommand, pParent,
                   [fnClick](const QString& sCommand, const QString& /*sArguments*/) {
                     if (sCommand.toLower() == "click") {
                       IgnoreFailure(fnClick);
                     }
                   });
  return pButton;
}

void SetGround(QWidget& oWidget, Ink eInk) {
  QPalette oPalette = oWidget.palette();
  oPalette.setColor(QPalette::Window, InkColour(eInk));
  oWidget.setPalette(oPalette);
  oWidget.setAutoFillBackground(true);
}

void PlaceInTwips(QWidget& oWidget, int nLeft, int nTop, int nWidth, int nHeight) {
  oWidget.setGeometry(Pixels(nLeft), Pixels(nTop), Pixels(nWidth), Pixels(nHeight));
}

}  // namespace

frmMain::frmMain()
    : m_sCaption(EditionName()),
      m_oDocuments(*this, m_sCaption),
      m_pLhs(new ScrollFrame(this)),
      m_pRhs(new ScrollFrame(this)),
      m_pCalculator(new ctlCalculator(&m_pRhs->Content())),
      m_pWizard(new ctlWizard(&m_pRhs->Content())) {
  setObjectName("frmMain");
  m_pLhs->SetName("fraLHS");
  m_pRhs->SetName("fraRHS");
  SetGround(*this, Ink::Hairline);  // a rule where it shows between the two frames
  SetGround(*m_pLhs, Ink::Column);
  SetGround(*m_pRhs, Ink::Ground);
  m_pCalculator->SetName("ctlCalculator1");
  m_pCalculator->SetVisible(false);
  m_pWizard->SetName("ctlWizard1");
  m_pWizard->SetVisible(false);
  MakeButtons();
  MakeShortcuts();
  connect(m_pLhs, &ScrollFrame::ContentResized, this, &frmMain::PlaceAbout);
  connect(m_pRhs, &ScrollFrame::ContentResized, this, &frmMain::PlaceViews);
  connect(m_pCalculator, &ctlCalculator::Changed, this, [this](bool bDocDirty) {
    m_bEndAgreed = false;
    SetWindowTitle(m_pCalculator->ConfigMode() ? kDefaultAuctionTitle : m_oDocuments.FileName(),
                   bDocDirty);
  });
  connect(m_pWizard, &ctlWizard::WizardComplete, this,
          [this] { IgnoreFailure([this] { ClickButton(kButtonCalculator); }); });
}

frmMain::~frmMain() = default;

void frmMain::MakeButtons() {
  for (int i = 0; i < static_cast<int>(m_apMenuButtons.size()); ++i) {
    const auto nIndex = static_cast<std::size_t>(i);
    m_apMenuButtons.at(nIndex) = MakeButton(kButtons.at(nIndex), "swfVerticalMenuButtons",
                                            &m_pLhs->Content(), [this, i] { ClickButton(i); });
  }
  m_pAbout = MakeButton(kAboutButton, "swfAbout", &m_pLhs->Content(), [this] { ShowAboutBox(); });
}

void frmMain::MakeShortcuts() {
  const auto fnAdd = [this](const QKeySequence& oKeys, const auto& fnAction) {
    auto* const pShortcut = new QShortcut(oKeys, this);
    connect(pShortcut, &QShortcut::activated, this, [fnAction] { IgnoreFailure(fnAction); });
  };
  for (int i = 0; i < static_cast<int>(kButtons.size()); ++i) {
    fnAdd(QKeySequence(kButtons.at(static_cast<std::size_t>(i)).sShortcut),
          [this, i] { ClickButton(i); });
  }
  fnAdd(QKeySequence(kAboutButton.sShortcut), [this] { ShowAboutBox(); });
  fnAdd(QKeySequence("Ctrl+Q"), [this] {
    m_bEndAgreed = false;
    close();
  });
  const auto fnStep = [this](bool bLarger) {
    SetZoomPercent(NextZoomStep(static_cast<int>(std::lround(Zoom() * 100)), bLarger));
  };
  for (const char* const sKeys : {"Ctrl++", "Ctrl+="}) {
    fnAdd(QKeySequence(sKeys), [fnStep] { fnStep(true); });
  }
  fnAdd(QKeySequence("Ctrl+-"), [fnStep] { fnStep(false); });
  fnAdd(QKeySequence("Ctrl+0"), [this] { SetZoomPercent(100); });
}

void frmMain::Show() {
  Form_Load();
  if (m_bFirstStart) {
    FitFirstStart();  // before the window manager is told of a size, and again when it is known
  }
  show();
  Form_Activate();
}

void frmMain::Form_Load() {
  const std::optional<int> nZoom = StoredZoom();
  m_bFirstStart = !nZoom;
  SetZoom(nZoom.value_or(100) / 100.0);
  m_lMinWidth = kWindowWidth;
  m_lMinHeight = kWindowHeight;
  m_lAboutBottomGap = m_lMinHeight - kAboutTop;
  resize(Pixels(kWindowWidth), Pixels(kWindowHeight));
  Rescale();
  RestoreFormPosition(*this);
  m_oDocuments.SaveOrLoadDefaultAuction(false);
}

void frmMain::Form_Activate() {
  const std::string sStartMode = Registry().GetOrCreate(settings::kStartMode);
  if (!m_bFirstActivate) {
    return;
  }
  m_bFirstActivate = false;
  IgnoreFailure([&] {
    if (sStartMode == "0") {
      m_oDocuments.StartWizard();
    } else {
      m_oDocuments.NewAuction();
    }
  });
  if (m_bFirstStart) {
    FitFirstStart();
  }
}

/// The first start of all: the largest zoom at which the whole calculator fits the screen, and a
/// window that holds it.
void frmMain::FitFirstStart() {
  constexpr double kTwipsPerPixel = 15.0;
  int nWidth = 0;
  int nHeight = 0;
  m_pCalculator->WholeSize(true, nWidth, nHeight);
  nWidth += kRhsLeft + kMargin;
  nHeight += kMargin;
  // The window manager hasn't framed the window yet: an ordinary frame is allowed for.
  const QSize oFrame(16, 48);
  const QRect oScreen = screen()->availableGeometry();
  const QSize oRoom = oScreen.size() - oFrame;
  SetZoomPercent(LargestFittingZoom(nWidth / kTwipsPerPixel, nHeight / kTwipsPerPixel,
                                    oRoom.width(), oRoom.height()));
  resize(QSize(Pixels(nWidth), Pixels(nHeight)).boundedTo(oRoom));
  const QSize oOuter = size() + oFrame;
  move(oScreen.topLeft() +
       QPoint((oScreen.width() - oOuter.width()) / 2, (oScreen.height() - oOuter.height()) / 2));
}

void frmMain::ClickButton(int nIndex) {
  if (nIndex == kButtonSave) {
    ctlNumericText::CommitFocused();  // a command by key leaves the focus where it is
  } else {
    LeaveBox();
  }
  switch (nIndex) {
    case kButtonNew:
      m_oDocuments.NewAuction();
      Form_Resize();
      break;
    case kButtonCalculator:
      ShowCalculator();
      break;
    case kButtonWizard:
      m_oDocuments.StartWizard();
      break;
    case kButtonSave:
      if (m_pCalculator->ConfigMode()) {
        m_oDocuments.SaveOrLoadDefaultAuction(true);
      } else {
        m_oDocuments.SaveOrLoadAuction(true);
      }
      break;
    case kButtonLoad:
      if (!m_pCalculator->ConfigMode()) {
        m_oDocuments.SaveOrLoadAuction(false);
      }
      break;
    case kButtonConfig:
      ShowConfiguration();
      break;
    default:
      ShowMessage("Button not recognised", kMessageInformation, "");
  }
}

void frmMain::OpenAuction(const std::string& sPath) {
  IgnoreFailure([&] {
    ClickButton(kButtonCalculator);
    m_oDocuments.UseFile(sPath, false);
  });
}

void frmMain::ShowCalculator() {
  PushDocument(false, WorkingAuction(), m_oDocuments.FileName());
  MarkCurrent(kButtonCalculator);
}

/// The stored default auction replaces what is unsaved of it, without a word.
void frmMain::ShowConfiguration() {
  m_oDocuments.SaveOrLoadDefaultAuction(false);
  PushDocument(true, DefaultAuction(), kDefaultAuctionTitle);
  MarkCurrent(kButtonConfig);
}

void frmMain::PushDocument(bool bConfigMode, clsCalculate& oDocument, const std::string& sTitle) {
  m_pWizard->SetVisible(false);
  m_pCalculator->SetVisible(true);
  m_pCalculator->setFocus();  // from a row that goes it would wander into a box
  m_pCalculator->SetConfigMode(bConfigMode);
  m_pCalculator->RefreshSums(true, &oDocument);
  m_pCalculator->CalcMinSize(m_lCalcMinWidth, m_lCalcMinHeight);
  SetWindowTitle(sTitle, false);
  Form_Resize();
  m_pRhs->ShowBeginning();
}

void frmMain::RefreshCalculator() {
  m_pCalculator->RefreshSums(true);
}

void frmMain::ShowWizard() {
  m_pCalculator->SetVisible(false);
  m_pWizard->Place(m_pCalculator->Left(), m_pCalculator->Top(), m_pCalculator->Width(),
                   m_pCalculator->Height());
  m_pWizard->SetVisible(true);
  MarkCurrent(kButtonWizard);
  Form_Resize();
  m_pRhs->ShowBeginning();
}

/// Returns when the window about the product is closed.
void frmMain::ShowAboutBox() {
  if (m_frmAboutBox == nullptr) {
    m_frmAboutBox = std::make_unique<frmAbout>(this);
    connect(m_frmAboutBox.get(), &frmAbout::ResetControlPositions, this, [this] {
      IgnoreFailure([this] {
        m_pCalculator->ResetControlPositions();
        Form_Resize();
      });
    });
  }
  m_frmAboutBox->exec();
  m_frmAboutBox.reset();
}

void frmMain::MarkCurrent(int nIndex) {
  for (int i = 0; i < static_cast<int>(m_apMenuButtons.size()); ++i) {
    m_apMenuButtons.at(static_cast<std::size_t>(i))->SetCurrent(i == nIndex);
  }
}

void frmMain::SetWindowTitle(const std::string& sName, bool bDirty) {
  std::string sTitle = sName;
  if (sTitle.ends_with(kAuctionExtension)) {
    sTitle.resize(sTitle.size() - std::string_view(kAuctionExtension).size());
  }
  const std::string sCaption = sTitle.empty() ? m_sCaption : m_sCaption + " - " + sTitle;
  // "[*]" would stand for a mark of the toolkit's own; written twice it stands for itself.
  setWindowTitle(QString::fromStdString(sCaption + (bDirty ? "*" : "")).replace("[*]", "[*][*]"));
}

void frmMain::SetZoomPercent(int nPercent) {
  if (size() != m_oZoomedSize) {
    m_oChosenSize = {Twips(width()), Twips(height())};
  }
  SetZoom(nPercent / 100.0);
  Registry().Set(settings::kZoom, std::to_string(nPercent));
  Rescale();
  Form_Resize();
  ResizeWithZoom();
}

/// The window goes with what is in it, as far as the screen has room, and comes back with it.
void frmMain::ResizeWithZoom() {
  if (!isMaximized()) {
    const QSize oWanted(Pixels(m_oChosenSize.width()), Pixels(m_oChosenSize.height()));
    resize(oWanted.boundedTo(RoomOnScreen()));
    KeepOnScreen();
  }
  m_oZoomedSize = size();
}

void frmMain::KeepOnScreen() {
  const QRect oScreen = screen()->availableGeometry();
  const QRect oWindow = frameGeometry();
  const QPoint oFarthest = oScreen.bottomRight() - QPoint(oWindow.width(), oWindow.height());
  const QPoint oAt(std::max(oScreen.left(), std::min(oWindow.left(), oFarthest.x() + 1)),
                   std::max(oScreen.top(), std::min(oWindow.top(), oFarthest.y() + 1)));
  if (oAt != oWindow.topLeft()) {
    move(oAt);
  }
}

void frmMain::Rescale() {
  QApplication::setFont(ThemeFont(kTextPoints));
  RescaleAll(*this);
  for (int i = 0; i < static_cast<int>(m_apMenuButtons.size()); ++i) {
    PlaceInTwips(*m_apMenuButtons.at(static_cast<std::size_t>(i)), kButtonLeft,
                 kFirstButtonTop + kButtonSize * i, kButtonSize, kButtonSize);
  }
}

/// Below the size that its view needs the window can't be made, unless the screen is smaller still.
/// What the whole view needs, and the screen can't give, the frame scrolls.
void frmMain::Form_Resize() {
  if (isMinimized()) {
    return;
  }
  const bool bCalculator = m_pCalculator->Visible();
  const QSize oNeeded(Pixels(bCalculator ? kRhsLeft + m_lCalcMinWidth : m_lMinWidth),
                      Pixels(bCalculator ? m_lCalcMinHeight : m_lMinHeight));
  const QSize oRoom = RoomOnScreen();
  setMinimumSize(oNeeded.boundedTo(oRoom));

  const int nHeight = Twips(height());
  m_pLhs->Place(0, 0, kLhsWidth, nHeight);
  m_pLhs->Content().setMinimumHeight(Pixels(kAboutTop + kButtonSize));
  m_pRhs->Place(kRhsLeft, 0, Twips(width()) - kRhsLeft, nHeight);
  const QSize oView = WholeView();
  m_pRhs->Content().setMinimumSize(
      Pixels(kRhsLeft) + oView.width() > oRoom.width() ? oView.width() : 0,
      oView.height() > oRoom.height() ? oView.height() : 0);
  PlaceAbout();
  PlaceViews();
}

/// The largest that the window can be made on its screen, without the edges around it.
QSize frmMain::RoomOnScreen() const {
  return screen()->availableSize() - (frameGeometry().size() - size());
}

/// What the view takes, in pixels, with nothing cut off.
QSize frmMain::WholeView() const {
  if (!m_pCalculator->Visible()) {
    return {Pixels(m_lMinWidth - kRhsLeft), Pixels(m_lMinHeight)};
  }
  int nWidth = 0;
  int nHeight = 0;
  m_pCalculator->WholeSize(m_pCalculator->ConfigMode(), nWidth, nHeight);
  return {Pixels(nWidth + kMargin), Pixels(nHeight + kMargin)};
}

/// At its distance from the bottom, but never over the other buttons.
void frmMain::PlaceAbout() {
  const int nBottom = Twips(m_pLhs->Content().height());
  PlaceInTwips(*m_pAbout, kButtonLeft, std::max(nBottom - m_lAboutBottomGap, kAboutTop),
               kButtonSize, kButtonSize);
}

void frmMain::PlaceViews() {
  const QSize oRoom = m_pRhs->Content().size();
  for (Control* const pView : std::initializer_list<Control*>{m_pCalculator, m_pWizard}) {
    if (pView->Visible()) {
      pView->Place(pView->Left(), pView->Top(), Twips(oRoom.width()), Twips(oRoom.height()));
    }
  }
}

/// A box that is left writes into the auction on view. So it is left before a command that may
/// bring another one, which would else be changed by it.
void frmMain::LeaveBox() {
  if (qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr) {
    ctlNumericText::LeaveFor(m_pWizard->Visible() ? m_pWizard->Widget() : m_pCalculator->Widget());
  }
  for (ctlNumericText* const pBox : m_pRhs->findChildren<ctlNumericText*>()) {
    pBox->ForgetRefusal();
  }
}

bool frmMain::EndSession(bool bMayAsk) {
  ctlNumericText::CommitFocused();
  SaveFormPosition(*this);
  m_bEndAgreed = !bMayAsk || m_oDocuments.PromptBeforeExit();
  Registry().Flush();
  return m_bEndAgreed;
}

void frmMain::EndUnasked() {
  if (isVisible()) {
    SaveFormPosition(*this);
  }
  WriteLog("End app");
}

void frmMain::closeEvent(QCloseEvent* pEvent) {
  ctlNumericText::CommitFocused();
  SaveFormPosition(*this);
  // A session that has ended closes the window itself; one that went on after all leaves that to
  // the user.
  const bool bAsked = m_bEndAgreed && !pEvent->spontaneous();
  if (!bAsked && !m_oDocuments.PromptBeforeExit()) {
    pEvent->ignore();
    return;
  }
  WriteLog("End app");
  pEvent->accept();
}

void frmMain::resizeEvent(QResizeEvent* pEvent) {
  QWidget::resizeEvent(pEvent);
  Form_Resize();
}

void frmMain::changeEvent(QEvent* pEvent) {
  QWidget::changeEvent(pEvent);
  if (pEvent->type() == QEvent::ActivationChange && isActiveWindow() && !m_bFirstActivate) {
    Form_Activate();
  }
}

void frmMain::wheelEvent(QWheelEvent* pEvent) {
  if (pEvent->modifiers() != Qt::ControlModifier || pEvent->angleDelta().y() == 0) {
    QWidget::wheelEvent(pEvent);
    return;
  }
  const int nPercent = static_cast<int>(std::lround(Zoom() * 100));
  SetZoomPercent(NextZoomStep(nPercent, pEvent->angleDelta().y() > 0));
}

}  // namespace quillet
