#include "platform/EndSignals.h"

namespace quillet {

void OnEndSignal(QObject& /*oContext*/, const std::function<void()>& /*fnEnd*/) {
  // A program with windows is told by a message to its windows, which the toolkit handles.
}

}  // namespace quillet
