#include "sections/PanelDesign.h"

#include "controls/ComboBox.h"
#include "controls/Controls.h"
#include "controls/SectionHeader.h"
#include "platform/Host.h"
#include "sections/SectionPanel.h"
#include "sections/ctlNumericText.h"

namespace quillet {
namespace {

std::int16_t DecimalPlacesOf(ControlKind eKind) {
  switch (eKind) {
    case ControlKind::kMoney:
      return 2;
    case ControlKind::kWeight:
    case ControlKind::kPercent:
      return 3;
    default:
      return 0;
  }
}

Control* MakeNumericBox(ControlKind eKind, QWidget* pParent) {
  auto* const pBox = new ctlNumericText(pParent);
  pBox->SetDecimalSeperator(TheHost().DecimalSeparator());
  pBox->SetShowMoney(eKind == ControlKind::kMoney);
  pBox->SetDecimalPlaces(DecimalPlacesOf(eKind));
  if (eKind == ControlKind::kPercent) {
    pBox->SetMax(100);
  }
  return pBox;
}

}  // namespace

Control* MakeOfKind(const ControlDesign& oDesign, QWidget* pParent) {
  switch (oDesign.eKind) {
    case ControlKind::kLabel:
      return new Label(pParent);
    case ControlKind::kCheckBox:
      return new CheckBox(pParent);
    case ControlKind::kOption:
      return new OptionButton(pParent);
    case ControlKind::kNumber:
    case ControlKind::kMoney:
    case ControlKind::kWeight:
    case ControlKind::kPercent:
      return MakeNumericBox(oDesign.eKind, pParent);
    case ControlKind::kList:
      return new ComboBox(pParent);
    case ControlKind::kFrame:
      return new Frame(pParent);
    case ControlKind::kHeader:
      return new SectionHeader(pParent);
    case ControlKind::kSubControl:
      return oDesign.fnMake(pParent);
  }
  return nullptr;
}

}  // namespace quillet
