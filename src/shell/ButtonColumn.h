// The column of buttons at the left of the main window.
#pragma once

#include <array>

#include "shell/ScrollFrame.h"

namespace quillet {

class ShockwaveFlash;

/// The buttons of the column, by their index.
enum MenuButton : int {
  kButtonNew = 0,
  kButtonCalculator = 1,
  kButtonWizard = 2,
  kButtonSave = 3,
  kButtonLoad = 4,
  kButtonConfig = 5,
};

/// The buttons, each with its key, and the about button far below them.
class ButtonColumn : public ScrollFrame {
  Q_OBJECT

 public:
  static constexpr int kColumnWidth = 1575;  ///< twips

  /// `nWindowHeight` is the height, in twips, that the window is designed for.
  ButtonColumn(int nWindowHeight, QWidget* pParent);

  /// Fills the left side of a window of this height, in twips.
  void PlaceBeside(int nHeight);

  /// Marks the button of the view that is shown.
  void MarkCurrent(int nIndex);

  void Rescale() override;

 signals:
  /// A button was clicked, or its key was pressed.
  void Clicked(int nIndex);
  void AboutClicked();

 private:
  void PlaceAbout();

  std::array<ShockwaveFlash*, 6> m_apMenuButtons{};
  ShockwaveFlash* m_pAbout = nullptr;
  int m_lAboutBottomGap;  ///< twips from the top of the about button to the window's bottom
};

}  // namespace quillet
