// The free-layout view: all sections and the summary on one panel. In config mode it shows the
// default auction, with the boxes that choose the rows on view and with sections to be dragged.
#pragma once

#include <QWidget>
#include <array>
#include <map>
#include <string>

#include "controls/Control.h"
#include "shell/SectionSet.h"

namespace quillet {

class Card;
class ImageButton;
class ScheduleLine;

class ctlCalculator : public QWidget, public Control {
  Q_OBJECT

 public:
  explicit ctlCalculator(QWidget* pParent);
  ctlCalculator(const ctlCalculator&) = delete;
  ctlCalculator& operator=(const ctlCalculator&) = delete;
  ~ctlCalculator() override;
  [[nodiscard]] const char* TypeName() const override { return "ctlCalculator"; }

  /// Every write lays all sections out again, puts them at their stored places and refreshes them.
  [[nodiscard]] bool ConfigMode() const { return m_bConfigMode; }
  void SetConfigMode(bool bConfigMode);

  /// Puts the sections back where the design has them, and stores that.
  void ResetControlPositions();

  /// Calculates and shows a document, and keeps it. Without one, uses the one kept before, or else
  /// the working auction.
  void RefreshSums(bool bUpdateControlDisplays, clsCalculate* pDocument = nullptr);

  /// Another fee schedule is in use: shows its figures for the auction on view, which doesn't
  /// change.
  void FollowSchedule();

  /// The size, in twips, that holds the summary and all sections but the auction type's, which
  /// doesn't count for the window's smallest size.
  void CalcMinSize(int& nWidth, int& nHeight) const;

  /// The size, in twips, that holds everything as it is now, or as it is in config mode.
  void WholeSize(bool bInConfigMode, int& nWidth, int& nHeight) const;

  [[nodiscard]] SectionSet& Set() { return m_oSet; }

  /// The document on view, or that will be on view when the calculator is.
  [[nodiscard]] clsCalculate& Document() const;

 signals:
  void Changed(bool bDocDirty);
  /// The document was calculated, or couldn't be, and is shown as it is.
  void Shown();
  /// The button of the what-if window was clicked.
  void WhatIfClicked();
  /// The user has chosen another fee schedule, which is loaded.
  void ScheduleChosen();

 protected:
  void showEvent(QShowEvent* pEvent) override;
  void paintEvent(QPaintEvent* pEvent) override;
  void Placed() override;

 private:
  void UserControl_Show();
  void FollowPlaces();
  void PlaceCards();
  void PlaceWhatIf();
  void OrderTabs();
  void FollowFocus(const QWidget* pOld, const QWidget* pNow);
  void MoveSection(SectionPanel& oSection, float fX, float fY);
  void SnapSection(SectionPanel& oSection, Single fLeft, Single fTop);
  void SaveSectionPositions() const;
  void LoadSectionPositions();
  void GrowToHold(int& nWidth, int& nHeight, const Control& oControl) const;

  SectionSet m_oSet;
  ScheduleLine* m_pScheduleLine;
  ImageButton* m_pWhatIf;
  std::array<Card*, 6> m_apCards{};  ///< in the order of all sections
  bool m_bConfigMode = false;
  clsCalculate* m_oDocument = nullptr;
  std::map<std::string, int> m_colDesignPositions;  ///< by SectionKey + "_Left" or "_Top", twips
};

}  // namespace quillet
