// How views and windows make and place their controls.
#pragma once

#include <QWidget>
#include <span>
#include <utility>

#include "controls/Control.h"

namespace quillet {

/// Makes a named control, which its parent owns.
template <typename Kind, typename... Arguments>
Kind* Make(const char* sName, Arguments&&... oArguments) {
  auto* const pControl = new Kind(std::forward<Arguments>(oArguments)...);
  pControl->SetName(sName);
  return pControl;
}

/// Gives a control a tooltip and a caption, which without its "&" is the accessible name too.
inline void Describe(Control& oControl, const char* sCaption, const char* sToolTip = "") {
  oControl.SetCaption(sCaption);
  oControl.Widget().setToolTip(sToolTip);
  oControl.Widget().setAccessibleName(QString(sCaption).remove('&'));
}

/// A row of a table of places, in twips.
struct ControlPlace {
  Control* pControl;
  int nLeft;
  int nTop;
  int nWidth;
  int nHeight;
};

inline void PlaceAll(std::span<const ControlPlace> aoPlaces) {
  for (const auto& [pControl, nLeft, nTop, nWidth, nHeight] : aoPlaces) {
    pControl->Place(nLeft, nTop, nWidth, nHeight);
  }
}

}  // namespace quillet
