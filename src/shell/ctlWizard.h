// The guided view: one section of the working auction at a time, with the summary below it. It has
// sections of its own, which edit the same models as the calculator's.
#pragma once

#include <QWidget>
#include <cstdint>
#include <optional>

#include "controls/Controls.h"
#include "shell/SectionSet.h"
#include "shell/WizardPages.h"

namespace quillet {

class ImageButton;
class ScheduleLine;
class PageScroller;
class WizardSteps;

class ctlWizard : public QWidget, public Control {
  Q_OBJECT

 public:
  explicit ctlWizard(QWidget* pParent);
  [[nodiscard]] const char* TypeName() const override { return "ctlWizard"; }

  /// Calculates the working auction and shows it.
  void RefreshSums(bool bUpdateControlDisplays);

  /// As the calculator's. A page that isn't on view any more gives way to the one before it.
  void FollowSchedule();

  /// The current page; none before the view is first shown. Each showing starts at the first page.
  [[nodiscard]] const std::optional<WizardPage>& Current() const { return m_tCurrent; }

  [[nodiscard]] SectionSet& Set() { return m_oSet; }

 signals:
  void Changed(bool bDocDirty);
  /// The auction was calculated, or couldn't be, and is shown as it is.
  void Shown();
  /// The button of the what-if window was clicked.
  void WhatIfClicked();
  /// As the calculator's.
  void ScheduleChosen();
  /// Finished or cancelled, which is the same: what was entered stays.
  void WizardComplete();

 protected:
  void showEvent(QShowEvent* pEvent) override;
  void paintEvent(QPaintEvent* pEvent) override;
  void mousePressEvent(QMouseEvent* pEvent) override;
  bool focusNextPrevChild(bool bNext) override;
  void keyPressEvent(QKeyEvent* pEvent) override;
  void Placed() override;

 private:
  void TakePages();
  void ListenToSections();
  void MakeButtons();
  void MakeKeys();

  void UserControl_Show();
  void UserControl_Resize();
  void ShowPage(std::int16_t nPage);
  void TurnTo(const WizardPage& tPage);
  void imgBack_Click();
  void imgNext_Click();
  void FinishWizard();

  void LeaveInput();
  void FocusFirstInput();

  SectionSet m_oSet;
  PageScroller* m_pViewPort;
  WizardPages m_oPages;
  std::optional<WizardPage> m_tCurrent;
  Label* m_pInfo;
  WizardSteps* m_pSteps;
  ScheduleLine* m_pScheduleLine;
  Frame* m_pButtons;
  ImageButton* m_pBack;
  ImageButton* m_pNext;
  ImageButton* m_pCancel;
  ImageButton* m_pWhatIf;
  int m_lLineTop = 0;  ///< of the rule above the summary, twips
  int m_lLaidWidth = -1;
  int m_lLaidHeight = -1;
};

}  // namespace quillet
