#include "shell/ScheduleButton.h"

#include <QActionGroup>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QStringList>
#include <algorithm>

#include "base/basCommon.h"
#include "base/basMain.h"
#include "base/failure.h"
#include "look/font.h"
#include "look/marks.h"
#include "look/scale.h"
#include "platform/Files.h"
#include "prices/scheduleChoice.h"
#include "sections/ctlNumericText.h"

namespace quillet {
namespace {

// In twips.
constexpr int kArrowSize = 90;
constexpr int kArrowGap = 75;
constexpr int kSides = 60;

/// The schedule in use; if its file is gone, only its name is known.
OfferedSchedule InUse(const std::vector<OfferedSchedule>& aoOffered) {
  const std::string sFile = UpdateFileName(true);
  const auto pInUse =
      std::find_if(aoOffered.begin(), aoOffered.end(),
                   [&](const OfferedSchedule& oOffered) { return oOffered.sFile == sFile; });
  return pInUse != aoOffered.end() ? *pInUse
                                   : OfferedSchedule{sFile, UpdateFileName(false), sFile, {}, {}};
}

/// The names of the usable schedules with a later date.
QStringList NewerThan(const OfferedSchedule& oInUse,
                      const std::vector<OfferedSchedule>& aoOffered) {
  QStringList asNewer;
  for (const OfferedSchedule& oOffered : aoOffered) {
    if (oOffered.sFault.empty() && oOffered.oDate > oInUse.oDate) {
      asNewer += QString::fromStdString(oOffered.sName);
    }
  }
  return asNewer;
}

QStringList LinesOfToolTip(const OfferedSchedule& oInUse,
                           const std::vector<OfferedSchedule>& aoOffered) {
  QStringList asLines = {QString::fromStdString(oInUse.sPath)};
  if (!oInUse.oDate.sWords.empty()) {
    asLines += "As of " + QString::fromStdString(oInUse.oDate.sWords);
  }
  if (const QStringList asNewer = NewerThan(oInUse, aoOffered); !asNewer.empty()) {
    asLines += "Newer fees are available: " + asNewer.join(", ");
  }
  return asLines;
}

QString MenuWordsOf(const OfferedSchedule& oOffered) {
  return QString::fromStdString(oOffered.sName).replace("&", "&&") +
         (oOffered.sFault.empty() ? "" : " (can't be used)");
}

void ShowFolder() {
  const std::string sPath = UpdateFileName(false);
  OpenDocument(sPath.substr(0, sPath.find_last_of(NativePath("\\"))));
}

}  // namespace

ScheduleButton::ScheduleButton(QWidget* pParent)
    : QAbstractButton(pParent), Control(static_cast<QWidget&>(*this)) {
  setAttribute(Qt::WA_Hover);
  setFocusPolicy(Qt::TabFocus);  // a click leaves the focus in the box being typed into
  connect(this, &QAbstractButton::clicked, this, &ScheduleButton::ShowMenu);
}

void ScheduleButton::Refresh() {
  const std::vector<OfferedSchedule> aoOffered = SchedulesOnOffer();
  const OfferedSchedule oInUse = InUse(aoOffered);
  const QStringList asLines = LinesOfToolTip(oInUse, aoOffered);
  const QString sWords = "Fees: " + QString::fromStdString(oInUse.sName);
  setText(QString(sWords).replace("&", "&&"));
  setAccessibleName(sWords);
  setAccessibleDescription(asLines.join(". "));
  setToolTip("<div style='white-space:pre'>" + asLines.join("\n").toHtmlEscaped() + "</div>");
}

int ScheduleButton::WholeWidth() const {
  const int nWords = QFontMetrics(ThemeFont(kTextPoints)).horizontalAdvance(accessibleName());
  return Twips(nWords + 1) + kArrowGap + kArrowSize + 2 * kSides;
}

/// Enters what was typed first, so that the new fees are those of what is on screen.
void ScheduleButton::Choose(const std::string& sFile) {
  ctlNumericText::CommitFocused();
  try {
    ChooseSchedule(sFile);
  } catch (const Failure& oFailure) {
    ShowMessage("The fee schedule " + sFile + " can't be used:\n\n" + oFailure.what() +
                    "\n\nThe fees stay as they are.",
                kMessageWarning, EditionName());
    return;
  }
  emit Chosen();
}

void ScheduleButton::ShowMenu() {
  auto* const pMenu = new QMenu(this);
  pMenu->setAttribute(Qt::WA_DeleteOnClose);
  auto* const pOneOf = new QActionGroup(pMenu);
  for (const OfferedSchedule& oOffered : SchedulesOnOffer()) {
    QAction* const pChoice = pOneOf->addAction(pMenu->addAction(MenuWordsOf(oOffered)));
    pChoice->setCheckable(true);
    pChoice->setChecked(oOffered.sFile == UpdateFileName(true));
    connect(pChoice, &QAction::triggered, this, [this, sFile = oOffered.sFile] { Choose(sFile); });
  }
  pMenu->addSeparator();
  connect(pMenu->addAction("Show in folder"), &QAction::triggered, this, ShowFolder);
  const QPoint oBelow = mapToGlobal(QPoint(width(), height()));
  pMenu->popup(oBelow - QPoint(pMenu->sizeHint().width(), 0));
}

void ScheduleButton::keyPressEvent(QKeyEvent* pEvent) {
  const bool bEnter = pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter;
  if (bEnter && !pEvent->isAutoRepeat()) {
    click();
  } else if (!bEnter) {
    QAbstractButton::keyPressEvent(pEvent);
  }
}

void ScheduleButton::paintEvent(QPaintEvent* /*pEvent*/) {
  constexpr double kRadius = 3.0;
  const bool bLit = underMouse() || hasFocus() || isDown();
  const QColor oInk = InkColour(bLit ? Ink::Text : Ink::FaintText);
  const QRect oWords =
      rect().adjusted(Pixels(kSides), 0, -Pixels(kSides + kArrowSize + kArrowGap), 0);
  const double fArrow = Pixels(kArrowSize);
  QPainter oPainter(this);
  oPainter.setRenderHint(QPainter::Antialiasing);
  if (underMouse()) {
    DrawRounded(oPainter, rect(), kRadius, Qt::NoPen, InkColour(Ink::Hover));
  }
  DrawWords(oPainter, oWords,
            fontMetrics().elidedText(accessibleName(), Qt::ElideMiddle, oWords.width()), oInk);
  DrawChevron(
      oPainter,
      {rect().right() + 1 - Pixels(kSides) - fArrow, (height() - fArrow) / 2, fArrow, fArrow},
      Towards::Down, oInk);
  if (hasFocus()) {
    DrawRing(oPainter, QRectF(rect()).adjusted(1, 1, -1, -1), kRadius);
  }
}

}  // namespace quillet
