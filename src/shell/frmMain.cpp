#include "shell/frmMain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLineEdit>
#include <QShortcut>
#include <QWheelEvent>

#include "base/basCommon.h"
#include "base/basError.h"
#include "base/clsRegistryAccess.h"
#include "base/failure.h"
#include "controls/layout.h"
#include "look/font.h"
#include "look/palette.h"
#include "look/scale.h"
#include "shell/ButtonColumn.h"
#include "shell/ScrollFrame.h"
#include "shell/formPosition.h"
#include "shell/frmAbout.h"
#include "shell/whatif/WhatIfButton.h"

namespace quillet {
namespace {

// Places in twips.
constexpr int kWindowWidth = 11805;
constexpr int kWindowHeight = 8010;
constexpr int kRhsLeft = 1590;
constexpr int kMargin = 240;  // beside the sections, where the window is made to hold them

void SetGround(QWidget& oWidget, Ink eInk) {
  QPalette oPalette = oWidget.palette();
  oPalette.setColor(QPalette::Window, InkColour(eInk));
  oWidget.setPalette(oPalette);
  oWidget.setAutoFillBackground(true);
}

}  // namespace

frmMain::frmMain()
    : m_sCaption(EditionName()),
      m_oDocuments(*this, m_sCaption),
      m_oZoom(*this,
              [this] {
                Rescale();
                Form_Resize();
              }),
      m_pLhs(Make<ButtonColumn>("fraLHS", kWindowHeight, this)),
      m_pRhs(Make<ScrollFrame>("fraRHS", this)),
      m_pCalculator(Make<ctlCalculator>("ctlCalculator1", &m_pRhs->Content())),
      m_pWizard(Make<ctlWizard>("ctlWizard1", &m_pRhs->Content())),
      m_oWhatIf(m_pCalculator, m_pWizard, this) {
  setObjectName("frmMain");
  SetGround(*this, Ink::Hairline);  // a rule where it shows between the two frames
  SetGround(*m_pLhs, Ink::Column);
  SetGround(*m_pRhs, Ink::Ground);
  m_pCalculator->SetVisible(false);
  m_pWizard->SetVisible(false);
  MakeShortcuts();
  connect(m_pLhs, &ButtonColumn::Clicked, this,
          [this](int nIndex) { IgnoreFailure([&] { ClickButton(nIndex); }); });
  connect(m_pLhs, &ButtonColumn::AboutClicked, this,
          [this] { IgnoreFailure([this] { ShowAboutBox(); }); });
  connect(m_pRhs, &ScrollFrame::ContentResized, this, &frmMain::PlaceViews);
  connect(m_pCalculator, &ctlCalculator::Changed, this, [this](bool bDocDirty) {
    m_bEndAgreed = false;
    SetWindowTitle(m_pCalculator->ConfigMode() ? kDefaultAuctionTitle : m_oDocuments.FileName(),
                   bDocDirty);
  });
  connect(m_pCalculator, &ctlCalculator::ScheduleChosen, this, &frmMain::FollowSchedule);
  connect(m_pWizard, &ctlWizard::ScheduleChosen, this, &frmMain::FollowSchedule);
  connect(m_pWizard, &ctlWizard::WizardComplete, this,
          [this] { IgnoreFailure([this] { ClickButton(kButtonCalculator); }); });
}

frmMain::~frmMain() = default;

void frmMain::MakeShortcuts() {
  const auto fnAdd = [this](const char* sKeys, const auto& fnAction,
                            Qt::ShortcutContext eContext = Qt::WindowShortcut) {
    auto* const pShortcut = new QShortcut(QKeySequence(sKeys), this);
    pShortcut->setContext(eContext);
    connect(pShortcut, &QShortcut::activated, this, [fnAction] { IgnoreFailure(fnAction); });
  };
  fnAdd("Ctrl+Q", [this] {
    m_bEndAgreed = false;
    close();
  });
  for (const char* const sKeys : {"Ctrl++", "Ctrl+="}) {
    fnAdd(
        sKeys, [this] { m_oZoom.Step(true); }, Qt::ApplicationShortcut);
  }
  fnAdd(
      "Ctrl+-", [this] { m_oZoom.Step(false); }, Qt::ApplicationShortcut);
  fnAdd(
      "Ctrl+0", [this] { m_oZoom.SetPercent(100); }, Qt::ApplicationShortcut);
  fnAdd(kWhatIfKey, [this] { m_oWhatIf.Open(); });
}

void frmMain::Show() {
  Form_Load();
  if (m_oZoom.IsFirstStart()) {
    FitFirstStart();  // before the window manager gets a size; again once the frame's is known
  }
  show();
  Form_Activate();
}

void frmMain::Form_Load() {
  m_oZoom.Load();
  m_lMinWidth = kWindowWidth;
  m_lMinHeight = kWindowHeight;
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
  if (m_oZoom.IsFirstStart()) {
    FitFirstStart();
  }
}

/// Makes room for the whole calculator, with its boxes for config mode.
void frmMain::FitFirstStart() {
  int nWidth = 0;
  int nHeight = 0;
  m_pCalculator->WholeSize(true, nWidth, nHeight);
  m_oZoom.Fit({kRhsLeft + nWidth + kMargin, nHeight + kMargin});
}

void frmMain::ClickButton(int nIndex) {
  if (nIndex == kButtonSave) {
    ctlNumericText::CommitFocused();  // a keyboard command doesn't move the focus
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
  m_pLhs->MarkCurrent(kButtonCalculator);
}

/// The stored default auction silently replaces unsaved changes to it.
void frmMain::ShowConfiguration() {
  m_oDocuments.SaveOrLoadDefaultAuction(false);
  PushDocument(true, DefaultAuction(), kDefaultAuctionTitle);
  m_pLhs->MarkCurrent(kButtonConfig);
}

void frmMain::PushDocument(bool bConfigMode, clsCalculate& oDocument, const std::string& sTitle) {
  m_pWizard->SetVisible(false);
  m_pCalculator->SetVisible(true);
  m_pCalculator->setFocus();  // from a row that is hidden it would move to some box
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
  m_pLhs->MarkCurrent(kButtonWizard);
  Form_Resize();
  m_pRhs->ShowBeginning();
}

/// Nothing of the old schedule stays, not even in a hidden view.
void frmMain::FollowSchedule() {
  for (clsCalculate* const pAuction : {&WorkingAuction(), &DefaultAuction()}) {
    pAuction->m_oSellingFeatures.ForgetPrices();
  }
  m_pCalculator->FollowSchedule();
  m_pWizard->FollowSchedule();
  m_pCalculator->CalcMinSize(m_lCalcMinWidth, m_lCalcMinHeight);
  Form_Resize();
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

void frmMain::SetWindowTitle(const std::string& sName, bool bDirty) {
  std::string sTitle = sName;
  if (sTitle.ends_with(kAuctionExtension)) {
    sTitle.resize(sTitle.size() - std::string_view(kAuctionExtension).size());
  }
  const std::string sCaption = sTitle.empty() ? m_sCaption : m_sCaption + " - " + sTitle;
  // To the toolkit "[*]" is a placeholder; written twice it is itself.
  setWindowTitle(QString::fromStdString(sCaption + (bDirty ? "*" : "")).replace("[*]", "[*][*]"));
}

void frmMain::Rescale() {
  QApplication::setFont(ThemeFont(kTextPoints));
  RescaleAll(*this);
  m_oWhatIf.Rescale();
}

/// The window can't be smaller than its view needs, unless the screen is smaller still. Where the
/// whole view doesn't fit the screen, the frame scrolls.
void frmMain::Form_Resize() {
  if (isMinimized()) {
    return;
  }
  const bool bCalculator = m_pCalculator->Visible();
  const QSize oNeeded(Pixels(bCalculator ? kRhsLeft + m_lCalcMinWidth : m_lMinWidth),
                      Pixels(bCalculator ? m_lCalcMinHeight : m_lMinHeight));
  const QSize oRoom = m_oZoom.RoomOnScreen();
  setMinimumSize(oNeeded.boundedTo(oRoom));

  const int nHeight = Twips(height());
  m_pLhs->PlaceBeside(nHeight);
  m_pRhs->Place(kRhsLeft, 0, Twips(width()) - kRhsLeft, nHeight);
  const QSize oView = WholeView();
  m_pRhs->Content().setMinimumSize(
      Pixels(kRhsLeft) + oView.width() > oRoom.width() ? oView.width() : 0,
      oView.height() > oRoom.height() ? oView.height() : 0);
  PlaceViews();
}

/// The view's size, in pixels, with nothing cut off.
QSize frmMain::WholeView() const {
  if (!m_pCalculator->Visible()) {
    return {Pixels(m_lMinWidth - kRhsLeft), Pixels(m_lMinHeight)};
  }
  int nWidth = 0;
  int nHeight = 0;
  m_pCalculator->WholeSize(m_pCalculator->ConfigMode(), nWidth, nHeight);
  return {Pixels(nWidth + kMargin), Pixels(nHeight + kMargin)};
}

void frmMain::PlaceViews() {
  const QSize oRoom = m_pRhs->Content().size();
  for (Control* const pView : std::initializer_list<Control*>{m_pCalculator, m_pWizard}) {
    if (pView->Visible()) {
      pView->Place(pView->Left(), pView->Top(), Twips(oRoom.width()), Twips(oRoom.height()));
    }
  }
}

/// A box that loses the focus writes into the auction shown. So it must lose it before a command
/// that may show another auction, which it would otherwise change.
void frmMain::LeaveBox() {
  if (qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr) {
    ctlNumericText::LeaveFor(m_pWizard->Visible() ? m_pWizard->Widget() : m_pCalculator->Widget());
  }
  for (ctlNumericText* const pBox : m_pRhs->findChildren<ctlNumericText*>()) {
    pBox->ForgetRefusal();
  }
}

void frmMain::StorePlaces() const {
  SaveFormPosition(*this);
  m_oWhatIf.StorePlace();
}

bool frmMain::EndSession(bool bMayAsk) {
  ctlNumericText::CommitFocused();
  StorePlaces();
  m_bEndAgreed = !bMayAsk || m_oDocuments.PromptBeforeExit();
  Registry().Flush();
  return m_bEndAgreed;
}

void frmMain::EndUnasked() {
  if (isVisible()) {
    StorePlaces();
  }
  WriteLog("End app");
}

void frmMain::closeEvent(QCloseEvent* pEvent) {
  ctlNumericText::CommitFocused();
  StorePlaces();
  // A session that ends closes the window itself; if it went on after all, the user closes it.
  const bool bAsked = m_bEndAgreed && !pEvent->spontaneous();
  if (!bAsked && !m_oDocuments.PromptBeforeExit()) {
    pEvent->ignore();
    return;
  }
  m_oWhatIf.Close();
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
  m_oZoom.Step(pEvent->angleDelta().y() > 0);
}

}  // namespace quillet
