#include "controls/OptionInterface.h"

#include "controls/Controls.h"

namespace quillet {
namespace {

OptionButton* OptionOf(const QAccessibleInterface& oInterface) {
  return static_cast<OptionButton*>(oInterface.object());
}

QAccessibleInterface* MakeInterface(const QString& /*sClass*/, QObject* pObject) {
  auto* const pOption = dynamic_cast<OptionButton*>(pObject);
  return pOption != nullptr ? new OptionInterface(pOption) : nullptr;
}

}  // namespace

void OptionInterface::Install() {
  static const bool bInstalled = [] {
    QAccessible::installFactory(&MakeInterface);
    return true;
  }();
  Q_UNUSED(bInstalled);
}

QString OptionInterface::text(QAccessible::Text eText) const {
  const QString sText = QAccessibleWidget::text(eText);
  return eText == QAccessible::Name && sText.isEmpty() ? WordsOf(*OptionOf(*this)) : sText;
}

QAccessible::State OptionInterface::state() const {
  QAccessible::State oState = QAccessibleWidget::state();
  oState.checkable = true;
  oState.checked = OptionOf(*this)->isChecked();
  return oState;
}

QStringList OptionInterface::actionNames() const {
  return QStringList(pressAction()) + QAccessibleWidget::actionNames();
}

void OptionInterface::doAction(const QString& sAction) {
  if (sAction == pressAction()) {
    OptionOf(*this)->click();
  } else {
    QAccessibleWidget::doAction(sAction);
  }
}

}  // namespace quillet
