// A row of options that look like one control: one of them is chosen.
#pragma once

#include <QStringList>

#include "controls/Controls.h"

namespace quillet {

class Segments : public Frame {
  Q_OBJECT

 public:
  /// The first one is chosen. `nWidth` is that of each, in twips.
  Segments(const QStringList& asCaptions, int nWidth, QWidget* pParent);

  [[nodiscard]] int Chosen() const;

 signals:
  void ChosenChanged();

 protected:
  void paintEvent(QPaintEvent* pEvent) override;
  void Placed() override;

 private:
  QList<OptionButton*> m_apOptions;
  int m_nEach;
};

}  // namespace quillet
