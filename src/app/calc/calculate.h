// From the text of an auction to its result.
#pragma once

#include <string>

#include "app/calc/Options.h"
#include "app/calc/Result.h"

namespace quillet {

/// Fills all of `oResult` but its name from the text of an auction, which may be altered. An empty
/// text is an error.
void Calculate(std::string& sText, const Options& oOptions, Result& oResult);

/// The same for the auction in the file that `oResult` names.
void CalculateFile(const Options& oOptions, Result& oResult);

/// Empties `oResult` except its name, and sets the error.
void SetError(Result& oResult, std::string sError);

}  // namespace quillet
