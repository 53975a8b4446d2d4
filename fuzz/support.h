// Shared by the fuzzers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "engine/clsCalculate.h"

namespace quillet {

/// Crashes if something that must hold doesn't; the fuzzer keeps the input.
void Require(bool bHolds);

/// Sets the region and the decimal separator by the first byte of the input, and returns the rest.
[[nodiscard]] std::string_view TakeSettings(const std::uint8_t* pData, std::size_t nSize);

/// DoCalc, ignoring its Failures.
void CalculateQuietly(clsCalculate& oAuction);

/// The text of an auction, read and saved.
[[nodiscard]] std::string Resaved(std::string sText);

}  // namespace quillet
