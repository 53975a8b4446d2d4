#include "platform/EndSignals.h"

namespace quillet {

void OnEndSignal(QObject& /*oContext*/, const std::function<void()>& /*fnEnd*/) {
  // A program with windows is told by a message to them, of which the toolkit takes care.
}

}  // namespace quillet
