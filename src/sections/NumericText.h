// The rules of a numeric box that need no toolkit: the value of its text, how a number is shown,
// where the caret is and what a step does. Places in a text count UTF-16 units.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/Single.h"
#include "controls/SpinRange.h"

namespace quillet {

/// The text in the box, and its caret: the start of the selection if there is one.
struct BoxText {
  std::u16string sText;
  std::size_t nCaret = 0;
};

struct NumericText {
  Single m_fMin;  ///< equal bounds mean none
  Single m_fMax;
  bool m_bShowMoney = false;  ///< show the schedule's currency symbol in front
  std::u16string m_sDecimalSeperator = u".";
  std::int16_t m_nDecimalPlaces = 0;

  [[nodiscard]] bool HasDecimals() const { return m_nDecimalPlaces >= 1; }

  /// The nearest value within the bounds; bounds that are equal or the wrong way round are ignored.
  [[nodiscard]] Single ClampValue(Single fValue) const;

  /// The value of the text (ToTypedSingle); nothing if it isn't a number or is too large for a
  /// Single.
  [[nodiscard]] std::optional<Single> ParseCurrentValue(std::u16string_view sText) const;

  /// True for a number within the bounds. Without decimals a currency symbol makes it invalid.
  [[nodiscard]] bool IsTextValid(std::u16string_view sText) const;

  /// True for a valid text whose number the box can show: without decimals it ends at 32 bits.
  [[nodiscard]] bool CanBeShown(std::u16string_view sText) const;

  /// True if the caret is after the decimal separator.
  [[nodiscard]] bool CaretRegion(const BoxText& oBox) const;

  /// Shows the clamped value. With decimals the caret moves next to the separator, on the side that
  /// it was on; otherwise to the end. Without decimals a value beyond 32 bits throws a Failure.
  void SetDisplayValue(Single fValue, BoxText& oBox) const;

  /// Adds `nDelta`, or that many of the last decimal place. A text that isn't a number stays.
  /// Throws a Failure for five decimal places or more, which have no decimal step.
  void StepValue(std::int32_t nDelta, bool bInDecimals, BoxText& oBox) const;
};

/// Which way, and how far, a spin button went from one value to another.
[[nodiscard]] std::int32_t SpinDelta(const SpinRange& oRange, std::int32_t nFrom, std::int32_t nTo);

}  // namespace quillet
