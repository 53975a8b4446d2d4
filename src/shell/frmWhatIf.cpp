#include "shell/frmWhatIf.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <utility>

#include "answers/Trial.h"
#include "base/FlagGuard.h"
#include "base/basCommon.h"
#include "base/failure.h"
#include "controls/Controls.h"
#include "controls/ImageButton.h"
#include "controls/layout.h"
#include "look/scale.h"
#include "sections/ctlNumericText.h"
#include "shell/ScrollFrame.h"
#include "shell/formPosition.h"
#include "shell/whatif/CurveCard.h"
#include "shell/whatif/FiguresCard.h"
#include "shell/whatif/GoalCard.h"
#include "shell/whatif/MoneyCard.h"
#include "shell/whatif/TableCard.h"
#include "shell/whatif/copyText.h"

namespace quillet {
namespace {

// Twips.
constexpr int kDesignWidth = 9600;
constexpr int kDesignHeight = 12930;
constexpr int kMargin = 210;
constexpr int kFocusMargin = 360;  // around what has the focus
constexpr int kBetween = 165;
constexpr int kTwoColumns = 15000;  // from here on the table is beside the other cards
constexpr int kButtonRow = 420;
constexpr int kUndoWidth = 960;
constexpr int kCopyWidth = 1650;
constexpr int kCloseWidth = 1050;
constexpr int kButtonGap = 45;

}  // namespace

frmWhatIf::frmWhatIf(AuctionView& oView, QWidget* pOwner)
    : QWidget(pOwner, Qt::Window),
      m_oView(oView),
      m_pFault(Make<Label>("lblFault", this)),
      m_pCards(Make<ScrollFrame>("fraCards", this)),
      m_pFigures(new FiguresCard(&m_pCards->Content())),
      m_pMoney(new MoneyCard(&m_pCards->Content())),
      m_pGoal(new GoalCard(&m_pCards->Content())),
      m_pCurve(new CurveCard(
          [this](Cents nPrice) {
            return Trial(m_oView.AuctionOnView()).With(SellFor(nPrice)).m_fProfit;
          },
          &m_pCards->Content())),
      m_pTable(new TableCard(&m_pCards->Content())),
      m_pButtons(new QWidget(this)),
      m_pUndo(Make<ImageButton>("imgUndo", m_pButtons)),
      m_pCopy(Make<ImageButton>("imgCopy", m_pButtons)),
      m_pClose(Make<ImageButton>("imgClose", m_pButtons)) {
  setObjectName("frmWhatIf");
  setWindowTitle(QString::fromStdString("What if - " + EditionName()));
  MakeButtons();
  MakeCards();
  auto* const pLayout = new QVBoxLayout(this);
  pLayout->addWidget(m_pFault);
  pLayout->addWidget(m_pCards, 1);
  pLayout->addWidget(m_pButtons);
  m_pFault->setWordWrap(true);
  m_pFault->SetVisible(false);
  LayOut();
  resize(Design());
}

frmWhatIf::~frmWhatIf() = default;

void frmWhatIf::MakeButtons() {
  const QKeySequence oUndo(QKeySequence::Undo);
  const QString sUndo = oUndo.toString(QKeySequence::NativeText);
  m_pUndo->SetCaption("U&ndo");
  m_pUndo->setToolTip(QString("Take back what was used last (%1)").arg(sUndo));
  m_pCopy->SetCaption("Copy as &text");
  m_pCopy->setToolTip("Copy where the money goes and the table, for a spreadsheet");
  m_pClose->SetCaption("&Close");
  m_pClose->setToolTip("Close (Esc)");
  connect(m_pUndo, &QAbstractButton::clicked, this, &frmWhatIf::Undo);
  connect(m_pCopy, &QAbstractButton::clicked, this, &frmWhatIf::Copy);
  connect(m_pClose, &QAbstractButton::clicked, this, &QWidget::close);
  connect(new QShortcut(oUndo, this), &QShortcut::activated, this, &frmWhatIf::Undo);
}

void frmWhatIf::MakeCards() {
  m_pColumns = new QBoxLayout(QBoxLayout::TopToBottom, &m_pCards->Content());
  m_pFirst = new QVBoxLayout;
  m_pCards->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // it is drawn only where it scrolls
  for (TitledCard* const pCard :
       std::initializer_list<TitledCard*>{m_pFigures, m_pMoney, m_pGoal, m_pCurve}) {
    m_pFirst->addWidget(pCard);
  }
  m_pColumns->addLayout(m_pFirst, 1);
  auto* const pSecond = new QVBoxLayout;
  pSecond->addWidget(m_pTable);
  pSecond->addStretch();
  m_pColumns->addLayout(pSecond, 1);
  connect(m_pGoal, &GoalCard::GoalChanged, this, &frmWhatIf::Show);
  connect(m_pGoal, &GoalCard::UseClicked, this, [this](Cents nPrice) { Use(SellFor(nPrice)); });
  connect(m_pTable, &TableCard::UseClicked, this, [this](const Change& oChange) {
    Use(oChange);
    m_pTable->GoToAsItIs();
  });
  connect(m_pTable, &TableCard::CurrentMoved, this, [this](const QRect& oRow) {
    const QPoint oAt = m_pTable->mapTo(&m_pCards->Content(), oRow.center());
    m_pCards->ensureVisible(m_pCards->horizontalScrollBar()->value(), oAt.y(), 0, oRow.height());
  });
}

void frmWhatIf::Open() {
  if (!isVisible()) {
    PlaceFirst();
    RestoreFormPosition(*this);
  }
  show();
  if (isMinimized()) {
    showNormal();
  }
  raise();
  activateWindow();
  Follow();
  FocusGoal();
}

/// Focuses the goal's box, unless that would scroll the first answers away.
void frmWhatIf::FocusGoal() {
  QLineEdit* const pText = m_pGoal->Box().TextBox();
  const int nBottom = pText->mapTo(&m_pCards->Content(), QPoint(0, pText->height())).y();
  m_pCards->ShowBeginning();
  if (nBottom + Pixels(kFocusMargin) <= m_pCards->viewport()->height()) {
    pText->setFocus();
    pText->selectAll();
  }
}

/// At the right of its owner, or wherever the screen has room beside it.
void frmWhatIf::PlaceFirst() {
  constexpr int kApart = 8;
  const QRect oScreen = parentWidget()->screen()->availableGeometry();
  const QRect oOwner = parentWidget()->frameGeometry();
  const QSize oFrame = parentWidget()->frameGeometry().size() - parentWidget()->size();
  resize(Design().boundedTo(oScreen.size() - oFrame));
  const int nWidth = width() + oFrame.width();
  const bool bRight = oOwner.right() + kApart + nWidth <= oScreen.right();
  const int nLeft = bRight ? oOwner.right() + 1 + kApart : oOwner.left() - kApart - nWidth;
  const QPoint oInside = parentWidget()->geometry().topLeft() - oOwner.topLeft();
  const int nLowest = oScreen.bottom() + 1 - height() - oFrame.height();
  const bool bBeside = bRight || nLeft >= oScreen.left();
  const QPoint oAt(bBeside ? nLeft : oScreen.right() + 1 - nWidth,
                   std::max(oScreen.top(), std::min(oOwner.top(), nLowest)));
  setGeometry({oAt + oInside, size()});
}

void frmWhatIf::Follow() {
  if (isVisible() && !m_bChanging) {
    m_oUses.Follow(m_oView.AuctionOnView());
    Show();
  }
}

void frmWhatIf::Show() {
  try {
    ShowAnswers(AnswersFor(m_oView.AuctionOnView(), m_pGoal->Wanted()));
  } catch (const Failure& oFailure) {
    ShowFault(oFailure.what());
  }
  m_pUndo->SetEnabled(m_oUses.CanUndo());
}

void frmWhatIf::ShowAnswers(const Answers& oAnswers) {
  m_oAnswers = oAnswers;
  m_pFault->SetVisible(false);
  m_pCards->SetVisible(true);
  m_pCopy->SetEnabled(true);
  m_pFigures->Show(oAnswers);
  m_pMoney->Show(oAnswers.oBreakdown);
  m_pGoal->Show(oAnswers.nGoalPrice, oAnswers.fPrice);
  m_pCurve->Show(oAnswers);
  m_pTable->Show(oAnswers.aoAlternatives);
}

void frmWhatIf::ShowFault(const QString& sFault) {
  m_oAnswers.reset();
  m_pFault->SetCaption(QString(sFault).replace("&", "&&"));
  m_pFault->SetVisible(true);
  m_pCards->SetVisible(false);
  m_pCopy->SetEnabled(false);
}

void frmWhatIf::Use(const Change& oChange) {
  const FlagGuard oChanging(m_bChanging);
  clsCalculate& oAuction = m_oView.AuctionOnView();
  m_oUses.Use(oAuction, oChange);
  m_oView.ShowChanged(true);
  m_oUses.Done(oAuction);
  Show();
}

void frmWhatIf::Undo() {
  if (!m_oUses.CanUndo()) {
    return;
  }
  const FlagGuard oChanging(m_bChanging);
  m_oUses.Undo();
  m_oView.ShowChanged(false);
  m_oUses.Done(m_oView.AuctionOnView());
  Show();
}

void frmWhatIf::Copy() const {
  if (m_oAnswers) {
    QApplication::clipboard()->setText(CopyText(*m_oAnswers));
  }
}

QSize frmWhatIf::Design() const {
  return {Pixels(kDesignWidth), Pixels(kDesignHeight)};
}

void frmWhatIf::Rescale() {
  const double fBefore = std::exchange(m_fZoom, Zoom());
  LayOut();
  m_pTable->Rescale();
  if (!isMaximized() && isVisible()) {
    const QSize oWanted(qRound(width() / fBefore * Zoom()), qRound(height() / fBefore * Zoom()));
    resize(oWanted.boundedTo(screen()->availableSize()));
  }
}

void frmWhatIf::LayOut() {
  const int nMargin = Pixels(kMargin);
  RescaleAll(*this);
  layout()->setContentsMargins(0, 0, 0, nMargin);
  layout()->setSpacing(Pixels(kBetween));
  QLayout& oCards = *m_pCards->Content().layout();
  oCards.setContentsMargins(nMargin, nMargin,
                            nMargin - style()->pixelMetric(QStyle::PM_ScrollBarExtent), 0);
  oCards.setSpacing(Pixels(kBetween));
  m_pFirst->setSpacing(Pixels(kBetween));
  m_pFault->setContentsMargins(nMargin, nMargin, nMargin, 0);
  m_pButtons->setFixedHeight(Pixels(kButtonRow));
  PlaceButtons();
  for (TitledCard* const pCard : m_pCards->Content().findChildren<TitledCard*>()) {
    pCard->updateGeometry();
  }
  layout()->invalidate();
  layout()->activate();
}

void frmWhatIf::PlaceButtons() {
  const int nClose = Twips(width()) - kMargin - kCloseWidth;
  const int nCopy = nClose - kButtonGap - kCopyWidth;
  PlaceAll(std::to_array<ControlPlace>({
      {m_pUndo, kMargin, 0, kUndoWidth, kButtonRow},
      {m_pCopy, nCopy, 0, kCopyWidth, kButtonRow},
      {m_pClose, nClose, 0, kCloseWidth, kButtonRow},
  }));
}

void frmWhatIf::resizeEvent(QResizeEvent* pEvent) {
  QWidget::resizeEvent(pEvent);
  m_pColumns->setDirection(Twips(width()) >= kTwoColumns ? QBoxLayout::LeftToRight
                                                         : QBoxLayout::TopToBottom);
  PlaceButtons();
}

void frmWhatIf::changeEvent(QEvent* pEvent) {
  QWidget::changeEvent(pEvent);
  if (pEvent->type() == QEvent::ActivationChange && isActiveWindow()) {
    emit Entered();
  }
}

void frmWhatIf::closeEvent(QCloseEvent* pEvent) {
  SaveFormPosition(*this);
  QWidget::closeEvent(pEvent);
}

void frmWhatIf::keyPressEvent(QKeyEvent* pEvent) {
  if (pEvent->key() == Qt::Key_Escape) {
    close();
    return;
  }
  QWidget::keyPressEvent(pEvent);
}

}  // namespace quillet
