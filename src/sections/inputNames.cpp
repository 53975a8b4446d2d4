#include "sections/inputNames.h"

#include <algorithm>

#include "controls/ComboBox.h"
#include "sections/controlHelpers.h"
#include "sections/ctlNumericText.h"

namespace quillet {
namespace {

using ControlSpan = std::span<Control* const>;

/// The text of a control, or of the first one inside it.
QString CaptionOf(ControlSpan aoControls, const Control& oControl) {
  const auto pFound = std::find_if(aoControls.begin(), aoControls.end(), [&](const Control* p) {
    return (p == &oControl || p->Container() == &oControl) && !p->Caption().isEmpty();
  });
  return pFound == aoControls.end() ? QString() : WordsOf(**pFound);
}

/// The text in a control's row, a label's rather than a box's. The row is known by its place in the
/// design: packed rows end up where hidden ones were.
QString CaptionBeside(ControlSpan aoControls, std::span<const ControlDesign> aoDesigns,
                      std::size_t nControl) {
  QString sWords;
  for (std::size_t i = 0; i < aoControls.size(); ++i) {
    const Control& oMate = *aoControls[i];
    const bool bLabel = aoDesigns[i].eKind == ControlKind::kLabel;
    if (aoDesigns[i].nTop == aoDesigns[nControl].nTop &&
        oMate.Container() == aoControls[nControl]->Container() && !IsShowCheck(oMate) &&
        !oMate.Caption().isEmpty() && (bLabel || sWords.isEmpty())) {
      sWords = WordsOf(oMate);
    }
  }
  return sWords;
}

}  // namespace

void NameInputs(ControlSpan aoControls, std::span<const ControlDesign> aoDesigns,
                const std::function<const Control*(const Control& oBox)>& fnRowOf) {
  for (std::size_t i = 0; i < aoControls.size(); ++i) {
    Control& oControl = *aoControls[i];
    if (IsShowCheck(oControl)) {
      const Control* const pRow = fnRowOf(oControl);
      const QString sRow = pRow != nullptr ? CaptionOf(aoControls, *pRow) : QString();
      oControl.Widget().setAccessibleName(sRow.isEmpty() ? "Show" : "Show " + sRow);
    } else if (auto* const pBox = dynamic_cast<ctlNumericText*>(&oControl)) {
      pBox->SetAccessibleName(CaptionBeside(aoControls, aoDesigns, i));
    } else if (auto* const pList = dynamic_cast<ComboBox*>(&oControl)) {
      pList->setAccessibleName(CaptionBeside(aoControls, aoDesigns, i));
    }
  }
}

}  // namespace quillet
