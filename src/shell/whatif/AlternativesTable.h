// A table of the toolkit, drawn as a part of its card: as high as its rows, without edges.
#pragma once

#include <QTableView>

namespace quillet {

class AlternativesTable : public QTableView {
 public:
  AlternativesTable(QAbstractItemModel* pModel, QWidget* pParent);

  /// The height of that many rows and the headings, in twips.
  [[nodiscard]] static int HeightOf(int nRows);

  /// Updates fonts and sizes after a change of zoom.
  void Rescale();

 protected:
  void keyPressEvent(QKeyEvent* pEvent) override;
  void resizeEvent(QResizeEvent* pEvent) override;

 private:
  void PlaceColumns();
};

}  // namespace quillet
