// The Tab order of sections that may be anywhere.
#pragma once

#include <cstddef>
#include <vector>

class QWidget;

namespace quillet {

class SectionPanel;

struct SectionPlace {
  int nLeft;
  int nTop;
  int nWidth;
};

/// The indices of the places: column by column from the left, and downward in each. Two sections
/// are in one column if at least half of the narrower one is above or below the other.
[[nodiscard]] std::vector<std::size_t> ReadingOrder(const std::vector<SectionPlace>& aoPlaces);

/// Lets Tab go from the view through all inputs of the sections, one section after the other.
QWidget* ChainInputs(QWidget& oView, const std::vector<SectionPanel*>& aoSections);

}  // namespace quillet
