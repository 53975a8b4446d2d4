#include "shell/tabOrder.h"

#include <algorithm>
#include <numeric>
#include <tuple>

#include "sections/SectionPanel.h"

namespace quillet {
namespace {

bool InOneColumn(const SectionPlace& a, const SectionPlace& b) {
  const int nShared = std::min(a.nLeft + a.nWidth, b.nLeft + b.nWidth) - std::max(a.nLeft, b.nLeft);
  return 2 * nShared >= std::min(a.nWidth, b.nWidth);
}

}  // namespace

/// Each column is that of the leftmost remaining section.
std::vector<std::size_t> ReadingOrder(const std::vector<SectionPlace>& aoPlaces) {
  std::vector<std::size_t> anOrder(aoPlaces.size());
  std::iota(anOrder.begin(), anOrder.end(), std::size_t{0});
  std::sort(anOrder.begin(), anOrder.end(), [&](std::size_t a, std::size_t b) {
    return std::tie(aoPlaces[a].nLeft, aoPlaces[a].nTop) <
           std::tie(aoPlaces[b].nLeft, aoPlaces[b].nTop);
  });
  for (auto pColumn = anOrder.begin(); pColumn != anOrder.end();) {
    const SectionPlace& oLeftmost = aoPlaces[*pColumn];
    const auto pNext = std::stable_partition(
        pColumn, anOrder.end(), [&](std::size_t n) { return InOneColumn(oLeftmost, aoPlaces[n]); });
    std::stable_sort(pColumn, pNext, [&](std::size_t a, std::size_t b) {
      return aoPlaces[a].nTop < aoPlaces[b].nTop;
    });
    pColumn = pNext;
  }
  return anOrder;
}

QWidget* ChainInputs(QWidget& oView, const std::vector<SectionPanel*>& aoSections) {
  QWidget* pBefore = &oView;
  for (const SectionPanel* const pSection : aoSections) {
    for (QWidget* const pInput : pSection->InputsInReadingOrder()) {
      QWidget::setTabOrder(pBefore, pInput);
      pBefore = pInput;
    }
  }
  return pBefore;
}

}  // namespace quillet
