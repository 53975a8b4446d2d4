// What the window shows, as text for a spreadsheet.
#pragma once

#include <QString>

#include "shell/whatif/Answers.h"

namespace quillet {

/// The breakdown and the table of alternatives, with tabs between the columns. Amounts are plain
/// numbers, with the user's decimal separator.
[[nodiscard]] QString CopyText(const Answers& oAnswers);

}  // namespace quillet
