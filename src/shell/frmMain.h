// The main window: a column of buttons, and one of the views beside it.
#pragma once

#include <QWidget>
#include <memory>
#include <string>

#include "controls/Controls.h"
#include "documents/lifecycle.h"
#include "shell/ButtonColumn.h"
#include "shell/WhatIfOpener.h"
#include "shell/WindowZoom.h"
#include "shell/ctlCalculator.h"
#include "shell/ctlWizard.h"

namespace quillet {

class ScrollFrame;
class frmAbout;

class frmMain : public QWidget, private DocumentView {
  Q_OBJECT

 public:
  frmMain();
  frmMain(const frmMain&) = delete;
  frmMain& operator=(const frmMain&) = delete;
  ~frmMain() override;

  /// Loads, shows and activates the window; the first document is set up when this returns.
  void Show();

  /// Like a click on a button of the column. Reports an unknown one in a message box.
  void ClickButton(int nIndex);

  /// Loads an auction file, like the Load button once the user has chosen one, and shows it in the
  /// calculator.
  void OpenAuction(const std::string& sPath);

  /// The desktop session is ending: stores the window's place, and asks about unsaved changes if it
  /// may. False if the user cancelled; else the close that follows asks nothing.
  [[nodiscard]] bool EndSession(bool bMayAsk);

  /// The program is ending at once: stores the window's place; unsaved changes are lost.
  void EndUnasked();

  /// Draws everything at another size, in percent, and remembers it.
  void SetZoomPercent(int nPercent) { m_oZoom.SetPercent(nPercent); }

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

  void MakeShortcuts();
  void Form_Load();
  void Form_Activate();
  void Form_Resize();
  void ShowConfiguration();
  void ShowAboutBox();
  void StorePlaces() const;
  void FollowSchedule();
  void PushDocument(bool bConfigMode, clsCalculate& oDocument, const std::string& sTitle);
  void LeaveBox();
  void FitFirstStart();
  void PlaceViews();
  [[nodiscard]] QSize WholeView() const;
  void Rescale();

  std::string m_sCaption;
  DocumentLifecycle m_oDocuments;
  WindowZoom m_oZoom;
  ButtonColumn* m_pLhs;
  ScrollFrame* m_pRhs;
  ctlCalculator* m_pCalculator;
  ctlWizard* m_pWizard;
  WhatIfOpener m_oWhatIf;
  std::unique_ptr<frmAbout> m_frmAboutBox;  ///< while it is open
  int m_lMinWidth = 0;                      ///< twips; the smallest size while the wizard shows
  int m_lMinHeight = 0;                     ///< likewise
  int m_lCalcMinWidth = 0;                  ///< twips; the latest result of CalcMinSize
  int m_lCalcMinHeight = 0;                 ///< likewise
  bool m_bFirstActivate = true;
  bool m_bEndAgreed = false;  ///< nothing has changed since EndSession asked
};

}  // namespace quillet
