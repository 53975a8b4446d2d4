// What a screen reader is told of an option. The toolkit takes one that can be unset by code for a
// check box.
#pragma once

#include <QAccessibleWidget>

namespace quillet {

class OptionInterface : public QAccessibleWidget {
 public:
  explicit OptionInterface(QWidget* pOption)
      : QAccessibleWidget(pOption, QAccessible::RadioButton) {}

  /// Answers for every OptionButton from now on.
  static void Install();

  [[nodiscard]] QString text(QAccessible::Text eText) const override;
  [[nodiscard]] QAccessible::State state() const override;
  [[nodiscard]] QStringList actionNames() const override;
  void doAction(const QString& sAction) override;
};

}  // namespace quillet
