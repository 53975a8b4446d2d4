// What every section does to its controls, by their names and types.
#pragma once

#include <cstdint>

#include "base/Single.h"
#include "controls/Control.h"
#include "controls/Controls.h"
#include "prices/clsTokeniser.h"

namespace quillet {

// Colours as in palette.h, from the settings.
[[nodiscard]] std::uint32_t SubtotalColour();  ///< of section totals
[[nodiscard]] std::uint32_t TotalColour();     ///< of the profit

/// Gives a label, box, option or frame its colour: that of section totals to "lblTotal", that of
/// text to any other. Other controls stay as they are.
void ApplyThemeColours(Control& oControl);

/// Greys or ungreys an input. A numeric box is also disabled and leaves the tab order, a greyed
/// check box is unticked; with `bAlsoContainer` the Frame around it is disabled or enabled.
void SetControlActive(bool bActive, Control& oControl, bool bAlsoContainer);

/// A box captioned "Show": a CheckBox whose name contains "chkShow".
[[nodiscard]] bool IsShowCheck(const Control& oControl);
/// The bar by which a section is dragged.
[[nodiscard]] bool IsHeaderImage(const Control& oControl);
/// A control of the project's own, by the name of its type.
[[nodiscard]] bool IsSubControl(const Control& oControl);

[[nodiscard]] bool ControlInVisibleList(const Control& oControl, const clsTokeniser& oList);

/// Ticks the box if its tag is one of the list's words, and unticks it otherwise.
void ApplyShowCheck(CheckBox& oBox, const clsTokeniser& oList);

/// Shows what the region has and, out of config mode, the list names; hides anything else.
void ApplyControlVisibility(Control& oControl, const clsTokeniser& oList, bool bShowConfig);

/// "Section Total $12.50".
void ShowSectionTotal(Label& oLabel, Single fTotal);

}  // namespace quillet
