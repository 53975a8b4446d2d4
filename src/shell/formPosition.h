// Where a window stood when it was last closed.
#pragma once

class QWidget;

namespace quillet {

/// Stores the window's place, in twips whatever the zoom, and whether it is minimised or maximised.
/// The place of such a window is the one that it goes back to.
void SaveFormPosition(const QWidget& oForm);

/// Puts the window where it was; what isn't stored, or is no number, stays as it is. A window that
/// couldn't be seen or grasped on any screen is brought back onto one.
void RestoreFormPosition(QWidget& oForm);

}  // namespace quillet
