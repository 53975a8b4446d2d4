// The 32-bit float in which every amount, rate and fee is kept.
#pragma once

#include "base/failure.h"

namespace quillet {

/// A Single turns into a double wherever it is read and rounds once, to the nearest 32-bit float
/// (ties to even), wherever it is assigned. So `fee = rate / 100 * amount + fee` is worked out in
/// double precision and rounded at the "=", and no expression can do otherwise. Assigning a value
/// beyond the range of a 32-bit float, an infinity or a NaN throws a Failure.
class Single {
 public:
  constexpr Single() = default;
  constexpr Single(double fValue)
      : m_fValue(Round(fValue)) {}  // NOLINT: the conversion is the idea

  constexpr operator double() const {  // NOLINT: the conversion is the idea
    return static_cast<double>(m_fValue);
  }

  /// `fValue` itself, which must be finite.
  [[nodiscard]] static constexpr Single OfFinite(float fValue) {
    Single fResult;
    fResult.m_fValue = fValue;
    return fResult;
  }

  [[nodiscard]] constexpr float Float() const { return m_fValue; }

 private:
  static constexpr float Round(double fValue) {
    constexpr double kFirstThatOverflows = 0x1.ffffffp127;
    if (fValue != fValue) {
      throw Failure(FailureNumber::Overflow, "The calculation has no result.");
    }
    if (fValue >= kFirstThatOverflows || fValue <= -kFirstThatOverflows) {
      throw Failure(FailureNumber::Overflow, "An amount is too large to calculate with.");
    }
    return static_cast<float>(fValue);
  }

  float m_fValue = 0.0F;
};

}  // namespace quillet
