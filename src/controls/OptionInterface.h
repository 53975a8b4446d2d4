// What a screen reader is told about an option. The toolkit mistakes one that code can unset for a
// check box.
#pragma once

#include <QAccessibleWidget>

namespace quillet {

class OptionInterface : public QAccessibleWidget {
 public:
  explicit OptionInterface(QWidget* pOption)
      : QAccessibleWidget(pOption, QAccessible::RadioButton) {}

  /// From now on, describes every OptionButton.
  static void Install();

  [[nodiscard]] QString text(QAccessible::Text eText) const override;
  [[nodiscard]] QAccessible::State state() const override;
  [[nodiscard]] QStringList actionNames() const override;
  void doAction(const QString& sAction) override;
};

}  // namespace quillet
