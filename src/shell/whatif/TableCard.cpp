#include "shell/whatif/TableCard.h"

#include <QResizeEvent>

#include "look/scale.h"
#include "shell/whatif/AlternativesModel.h"
#include "shell/whatif/AlternativesTable.h"

namespace quillet {

TableCard::TableCard(QWidget* pParent)
    : TitledCard("What if", pParent),
      m_pModel(new AlternativesModel(this)),
      m_pTable(new AlternativesTable(m_pModel, this)) {
  m_pTable->setObjectName("tblAlternatives");
  m_pTable->setAccessibleName("What if: ways to list side by side");
  connect(m_pTable, &QAbstractItemView::activated, this, [this](const QModelIndex& oIndex) {
    const Alternative& oRow = m_pModel->At(oIndex.row());
    if (oRow.eKind != AlternativeKind::AsItIs) {
      emit UseClicked(Change(oRow.oChange));  // a copy, since using it changes the rows
    }
  });
  connect(m_pTable->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& oIndex) {
            const QRect oRow = m_pTable->visualRect(oIndex);
            emit CurrentMoved(oRow.translated(m_pTable->viewport()->mapTo(this, QPoint())));
          });
}

void TableCard::Show(const std::vector<Alternative>& aoAlternatives) {
  const int nBefore = m_pModel->rowCount({});
  m_pModel->Show(aoAlternatives);
  if (m_pModel->rowCount({}) != nBefore) {
    updateGeometry();
  }
}

void TableCard::GoToAsItIs() {
  m_pTable->setCurrentIndex(m_pModel->index(m_pModel->RowAsItIs(), 0));
}

void TableCard::Rescale() {
  m_pTable->Rescale();
  PlaceTable();
}

int TableCard::ContentHeight(int /*nWidth*/) const {
  return AlternativesTable::HeightOf(m_pModel->rowCount({}));
}

void TableCard::resizeEvent(QResizeEvent* pEvent) {
  TitledCard::resizeEvent(pEvent);
  PlaceTable();
}

/// Row marks reach a little beyond the text, which lines up with that of other cards.
void TableCard::PlaceTable() {
  constexpr int kBeyond = 90;
  constexpr int kUp = 90;
  m_pTable->setGeometry(Content().adjusted(-Pixels(kBeyond), -Pixels(kUp), Pixels(kBeyond), 0));
}

}  // namespace quillet
