#include "shell/whatif/AlternativesTable.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

#include "look/font.h"
#include "look/marks.h"
#include "look/scale.h"
#include "shell/whatif/TitledCard.h"

namespace quillet {
namespace {

// Twips.
constexpr int kRow = 332;
constexpr int kHeadings = 300;
constexpr int kName = 2700;  // at least, if the figures leave room
constexpr int kLeastFigure = 900;
constexpr int kMostFigure = 1500;
constexpr int kInset = 90;  // of the words
constexpr int kMark = 30;   // the width of the current row's mark

class Headings : public QHeaderView {
 public:
  explicit Headings(QWidget* pParent) : QHeaderView(Qt::Horizontal, pParent) {
    setSectionsClickable(false);
    setHighlightSections(false);
    setSectionResizeMode(QHeaderView::Fixed);
  }

 protected:
  void paintSection(QPainter* pPainter, const QRect& oPlace, int nSection) const override {
    pPainter->fillRect(oPlace, InkColour(Ink::Panel));
    pPainter->setFont(ThemeFont(kTextPoints));
    pPainter->setPen(InkColour(Ink::FaintText));
    pPainter->drawText(oPlace.adjusted(0, 0, -Pixels(kInset), 0), Qt::AlignRight | Qt::AlignVCenter,
                       model()->headerData(nSection, Qt::Horizontal).toString());
  }
};

/// Each row is one line of text; the current one has a light background while the table has the
/// focus.
class RowDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* pPainter, const QStyleOptionViewItem& oOption,
             const QModelIndex& oIndex) const override {
    const bool bCurrent = (oOption.state & QStyle::State_Selected) != 0;
    const bool bHover = (oOption.state & QStyle::State_MouseOver) != 0;
    if (bCurrent || bHover) {
      pPainter->fillRect(oOption.rect, InkColour(bCurrent ? Ink::Hairline : Ink::Hover));
    }
    if (bCurrent && oOption.widget->hasFocus() && oIndex.column() == 0) {
      pPainter->fillRect(
          QRect(oOption.rect.left(), oOption.rect.top(), Pixels(kMark), oOption.rect.height()),
          InkColour(Ink::Accent));
    }
    const QRect oWords = oOption.rect.adjusted(Pixels(kInset), 0, -Pixels(kInset), 0);
    const auto oColour = oIndex.data(Qt::ForegroundRole).value<QColor>();
    if (oIndex.column() > 0) {
      DrawFitted(*pPainter, oWords, oIndex.data().toString(), ThemeFont(kTextPoints), oColour,
                 Qt::AlignRight);
      return;
    }
    pPainter->setFont(ThemeFont(kTextPoints));
    pPainter->setPen(oColour);
    pPainter->drawText(oWords, oIndex.data(Qt::TextAlignmentRole).toInt() | int{Qt::TextSingleLine},
                       pPainter->fontMetrics().elidedText(oIndex.data().toString(), Qt::ElideRight,
                                                          oWords.width()));
  }
};

}  // namespace

AlternativesTable::AlternativesTable(QAbstractItemModel* pModel, QWidget* pParent)
    : QTableView(pParent) {
  setModel(pModel);
  setHorizontalHeader(new Headings(this));
  setItemDelegate(new RowDelegate(this));
  verticalHeader()->hide();
  setFrameShape(QFrame::NoFrame);
  setShowGrid(false);
  setCornerButtonEnabled(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTabKeyNavigation(false);
  setAutoScroll(false);
  setMouseTracking(true);
  QPalette oPalette = palette();
  oPalette.setColor(QPalette::Base, InkColour(Ink::Panel));
  setPalette(oPalette);
  Rescale();
}

int AlternativesTable::HeightOf(int nRows) {
  return kHeadings + nRows * kRow;
}

void AlternativesTable::Rescale() {
  verticalHeader()->setMinimumSectionSize(1);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(Pixels(kRow));
  QHeaderView& oHeadings = *horizontalHeader();
  oHeadings.setFixedHeight(Pixels(kHeadings));
  oHeadings.setMinimumSectionSize(1);
  PlaceColumns();
}

void AlternativesTable::PlaceColumns() {
  QHeaderView& oHeadings = *horizontalHeader();
  const int nFigures = oHeadings.count() - 1;
  const int nFigure = std::clamp((Twips(width()) - kName) / nFigures, kLeastFigure, kMostFigure);
  for (int i = 1; i <= nFigures; ++i) {
    oHeadings.resizeSection(i, Pixels(nFigure));
  }
  oHeadings.resizeSection(0, width() - nFigures * Pixels(nFigure));
}

void AlternativesTable::resizeEvent(QResizeEvent* pEvent) {
  QTableView::resizeEvent(pEvent);
  PlaceColumns();
}

/// A key held down uses one row, not one after the other.
void AlternativesTable::keyPressEvent(QKeyEvent* pEvent) {
  const bool bEnter = pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter;
  if (bEnter && pEvent->isAutoRepeat()) {
    return;
  }
  if (pEvent->key() == Qt::Key_Escape) {
    pEvent->ignore();
    return;
  }
  QTableView::keyPressEvent(pEvent);
}

}  // namespace quillet
