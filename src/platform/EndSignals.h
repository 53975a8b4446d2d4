// Signals that tell the program to end at once.
#pragma once

#include <functional>

class QObject;

namespace quillet {

/// From now on, while `oContext` lives, the event loop calls `fnEnd` when the system or a terminal
/// tells the program to end. A signal that the program was started to ignore stays ignored.
void OnEndSignal(QObject& oContext, const std::function<void()>& fnEnd);

}  // namespace quillet
