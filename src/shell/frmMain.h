// The main window: a column of buttons, and one of the views beside it.
#pragma once

#include <QWidget>
#include <array>
#include <memory>
#include <string>

#include "controls/Controls.h"
#include "documents/lifecycle.h"
#include "shell/ctlCalculator.h"
#include "shell/ctlWizard.h"

namespace quillet {

class ScrollFrame;
class ShockwaveFlash;
class frmAbout;

/// The buttons of the column, by their index.
enum MenuButton : int {
  kButtonNew = 0,
  kButtonCalculator = 1,
  kButtonWizard = 2,
  kButtonSave = 3,
  kButtonLoad = 4,
  kButtonConfig = 5,
};

class frmMain : public QWidget, private DocumentView {
  Q_OBJECT

 public:
  frmMain();
  frmMain(const frmMain&) = delete;
  frmMain& operator=(const frmMain&) = delete;
  ~frmMain() override;

  /// Loads, shows and activates the window; the first document is set up when this returns.
  void Show();

  /// As a click on a button of the column. An unknown one says so in a message box.
  void ClickButton(int nIndex);

  /// Loads an auction file as the Load button does with the file that the user chooses, and shows
  /// it in the calculator.
  void OpenAuction(const std::string& sPath);

  /// The session of the desktop is ending: stores the window's place, and asks about what is
  /// unsaved if it may. False if the user cancelled; else the close that follows asks nothing.
  [[nodiscard]] bool EndSession(bool bMayAsk);

  /// The program is ending at once: stores the window's place, and what is unsaved is lost.
  void EndUnasked();

  /// Draws everything at another size, in percent, and remembers it.
  void SetZoomPercent(int nPercent);

  [[nodiscard]] ctlCalculator& Calculator() { return *m_pCalculator; }
  [[nodiscard]] ctlWizard& Wizard() { return *m_pWizard; }

 protected:
  void closeEvent(QCloseEvent* pEvent) override;
  void resizeEvent(QResizeEvent* pEvent) override;
  void changeEvent(QEvent* pEvent) override;
  void wheelEvent(QWheelEvent* pEvent) override;

 private:
  // DocumentView
  void SetWindowTitle(const std::string& sName, bool bDirty) override;
  void ShowCalculator() override;
  void RefreshCalculator() override;
  void ShowWizard() override;

  void MakeButtons();
  void MakeShortcuts();
  void Form_Load();
  void Form_Activate();
  void Form_Resize();
  void ShowConfiguration();
  void ShowAboutBox();
  void PushDocument(bool bConfigMode, clsCalculate& oDocument, const std::string& sTitle);
  void MarkCurrent(int nIndex);
  void LeaveBox();
  void FitFirstStart();
  void ResizeWithZoom();
  void KeepOnScreen();
  void PlaceAbout();
  void PlaceViews();
  [[nodiscard]] QSize RoomOnScreen() const;
  [[nodiscard]] QSize WholeView() const;
  void Rescale();

  std::string m_sCaption;
  DocumentLifecycle m_oDocuments;
  ScrollFrame* m_pLhs;
  ScrollFrame* m_pRhs;
  ctlCalculator* m_pCalculator;
  ctlWizard* m_pWizard;
  std::array<ShockwaveFlash*, 6> m_apMenuButtons{};
  ShockwaveFlash* m_pAbout = nullptr;
  std::unique_ptr<frmAbout> m_frmAboutBox;  ///< while it is open
  int m_lMinWidth = 0;                      ///< twips; the smallest size while the wizard shows
  int m_lMinHeight = 0;                     ///< likewise
  int m_lCalcMinWidth = 0;                  ///< twips; what CalcMinSize told last
  int m_lCalcMinHeight = 0;                 ///< likewise
  QSize m_oChosenSize;        ///< twips; that of the window when it was last sized but by a zoom
  QSize m_oZoomedSize;        ///< pixels; that of the window when it was last sized by a zoom
  int m_lAboutBottomGap = 0;  ///< twips from the top of the about button to the window's bottom
  bool m_bFirstActivate = true;
  bool m_bEndAgreed = false;   ///< nothing has changed since EndSession has asked
  bool m_bFirstStart = false;  ///< no zoom was ever stored
};

}  // namespace quillet
