// The settings page of the window about the product.
#pragma once

#include "controls/Controls.h"

namespace quillet {

class ComboBox;
class ImageButton;
class ctlNumericText;

class SettingsPage : public Frame {
  Q_OBJECT

 public:
  explicit SettingsPage(QWidget* pParent);

  /// Shows the stored settings, with nothing to apply.
  void ResetSettings();

  /// Stores the settings if Apply is on view.
  void ApplyIfOffered();

 signals:
  /// The user wants the calculator's sections back where the design has them.
  void ResetControlPositions();

 protected:
  bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

 private:
  void DescribeControls();
  void PlaceControls();
  void ConnectControls();
  void imgApply_Click();

  Label* m_pLblStartMode;
  ComboBox* m_pCboStartMode;
  Label* m_pLabel3;
  ctlNumericText* m_pTxtSnapToGrid;
  Label* m_pLabel2;
  ImageButton* m_pImgResetPositions;
  Label* m_pLblHint;
  ImageButton* m_pImgApply;
  ImageButton* m_pImgCancel;
};

}  // namespace quillet
