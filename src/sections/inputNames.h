// What screen readers call the inputs of a panel.
#pragma once

#include <functional>
#include <span>

#include "sections/PanelDesign.h"

namespace quillet {

/// Numeric boxes, lists and Show boxes have no text of their own: they are named after their row.
/// `fnRowOf` finds the control beside a Show box, or null.
void NameInputs(std::span<Control* const> aoControls, std::span<const ControlDesign> aoDesigns,
                const std::function<const Control*(const Control& oBox)>& fnRowOf);

}  // namespace quillet
