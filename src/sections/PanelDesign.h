// The description of a member of the family of panels: the table of its controls, and switches.
#pragma once

#include <span>

class QWidget;

namespace quillet {

class Control;
class SectionPanel;

enum class ControlKind {
  kLabel,
  kCheckBox,
  kOption,
  kNumber,   ///< numeric box for whole numbers
  kMoney,    ///< numeric box with currency symbol and two decimals
  kWeight,   ///< numeric box with three decimals
  kPercent,  ///< the same, from 0 to 100
  kList,     ///< box that opens a list to choose from
  kFrame,
  kHeader,  ///< the bar by which the panel is dragged
  kSubControl,
};

/// One row of a member's table of controls; places in twips.
struct ControlDesign {
  const char* sName;
  ControlKind eKind;
  const char* sCaption;
  int nLeft;
  int nTop;
  int nWidth;
  int nHeight;
  const char* sTag = "";
  const char* sContainer = nullptr;                     ///< the Frame that it is in
  SectionPanel* (*fnMake)(QWidget* pParent) = nullptr;  ///< makes the sub-control
};

/// How a member differs from the others.
struct PanelDesign {
  const char* sTypeName;      ///< such as "ctlOutlay"
  const char* sTitle;         ///< on the header, and in its place while it is hidden
  const char* sSectionKey;    ///< names the panel in the settings
  const char* sReferenceBox;  ///< the Show box whose place sets the panel's width
  /// The panel whose list ApplyAllVisibility reads; null if the member has no such step.
  const char* sVisibilityList = nullptr;
  /// True: the rows are registered once, at their design places, and a click on a Show box rereads
  /// the list. False: they are registered again at each show, and after each click at their places
  /// at that moment.
  bool bAddingComplete = false;
  bool bRowsByLabel = false;  ///< a Show box is beside its row's label, whatever else the tag names
  int nWidth;
  int nHeight;
  /// In the order of the panel's collection, which the packing keeps within a row: a control that
  /// the region may remove from a row comes before its row-mates.
  std::span<const ControlDesign> aoControls;
};

/// Makes a control of the design's kind, which the parent owns; its place and text aren't set yet.
[[nodiscard]] Control* MakeOfKind(const ControlDesign& oDesign, QWidget* pParent);

}  // namespace quillet
