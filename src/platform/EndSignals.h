// The system's word that the program is to end at once.
#pragma once

#include <functional>

class QObject;

namespace quillet {

/// From now on, as long as `oContext` lives, the event loop calls `fnEnd` when the system or a
/// terminal tells the program to end. One that was started to take no notice of such a signal
/// doesn't.
void OnEndSignal(QObject& oContext, const std::function<void()>& fnEnd);

}  // namespace quillet
