// The window about the product, with two pages: what it is, and its settings.
#pragma once

#include <QDialog>
#include <cstdint>

#include "controls/Control.h"

namespace quillet {

class ComboBox;
class Frame;
class ImageButton;
class Label;
class ShockwaveFlash;
class ctlNumericText;

/// One is made for each opening, and begins on the first page.
class frmAbout : public QDialog {
  Q_OBJECT

 public:
  /// `pOwner` is the window that it is in front of.
  explicit frmAbout(QWidget* pOwner);

  /// 0 is the page about the product, 1 that of the settings.
  void ShowPage(std::int32_t lPage);

  /// Shows the stored settings, with nothing to be applied.
  void ResetSettings();

 signals:
  /// The user wants the calculator's sections back where the design has them.
  void ResetControlPositions();

 protected:
  bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
  void keyPressEvent(QKeyEvent* pEvent) override;
  void paintEvent(QPaintEvent* pEvent) override;
  void showEvent(QShowEvent* pEvent) override;

 private:
  void PlaceControls();
  void DescribeControls();
  void ConnectControls();
  void Form_Load();
  void FillStartMode(const std::string& sStored);
  void imgAbout_Click();
  void imgApply_Click();
  void aniFlash_FSCommand(const QString& sCommand);

  Control* m_pLine1;
  ImageButton* m_pImgAbout;
  ImageButton* m_pImgSettings;
  Frame* m_pFraAmination;
  ShockwaveFlash* m_pAniFlash;
  Frame* m_pFraSettings;
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
