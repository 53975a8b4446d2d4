// What the fuzzers share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "engine/clsCalculate.h"

namespace quillet {

/// Ends the run with a crash, which the fuzzer keeps, if something that must hold doesn't.
void Require(bool bHolds);

/// Takes the first byte off the input, and sets the region and the decimal separator by it.
[[nodiscard]] std::string_view TakeSettings(const std::uint8_t* pData, std::size_t nSize);

/// DoCalc, whose Failures are none of the fuzzer's business.
void CalculateQuietly(clsCalculate& oAuction);

/// The text of an auction, read and saved.
[[nodiscard]] std::string Resaved(std::string sText);

}  // namespace quillet
