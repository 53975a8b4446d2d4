// Where a window was when it was last closed.
#pragma once

class QWidget;

namespace quillet {

/// Stores the window's place, in twips whatever the zoom, and whether it is minimised or maximised,
/// in which case the place is the one that it will be restored to.
void SaveFormPosition(const QWidget& oForm);

/// Puts the window where it was; a value that isn't stored, or isn't a number, changes nothing. A
/// window that couldn't be seen or dragged on any screen is brought back onto one.
void RestoreFormPosition(QWidget& oForm);

}  // namespace quillet
