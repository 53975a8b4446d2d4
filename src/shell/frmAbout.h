// The window about the product, with two pages: what it is, and its settings.
#pragma once

#include <QDialog>
#include <cstdint>

#include "controls/Control.h"

namespace quillet {

class Frame;
class ImageButton;
class SettingsPage;
class ShockwaveFlash;

/// One is made for each opening, and begins on the first page.
class frmAbout : public QDialog {
  Q_OBJECT

 public:
  /// `pOwner` is the window that it is in front of.
  explicit frmAbout(QWidget* pOwner);

  /// 0 is the page about the product, 1 that of the settings.
  void ShowPage(std::int32_t lPage);

  /// Shows the stored settings, with nothing to apply.
  void ResetSettings();

 signals:
  /// The user wants the calculator's sections back where the design has them.
  void ResetControlPositions();

 protected:
  void keyPressEvent(QKeyEvent* pEvent) override;
  void paintEvent(QPaintEvent* pEvent) override;
  void showEvent(QShowEvent* pEvent) override;

 private:
  void PlaceControls();
  void DescribeControls();
  void ConnectControls();
  void Form_Load();
  void imgAbout_Click();
  void aniFlash_FSCommand(const QString& sCommand);

  Control* m_pLine1;
  ImageButton* m_pImgAbout;
  ImageButton* m_pImgSettings;
  Frame* m_pFraAmination;
  ShockwaveFlash* m_pAniFlash;
  SettingsPage* m_pFraSettings;
};

}  // namespace quillet
