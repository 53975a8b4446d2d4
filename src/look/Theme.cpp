#include "look/Theme.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>
#include <array>
#include <utility>

#include "look/ThemeStyle.h"
#include "look/font.h"
#include "look/palette.h"

namespace quillet {
namespace {

QPalette ThemePalette() {
  constexpr std::array<std::pair<QPalette::ColorRole, Ink>, 14> kRoles = {{
      {QPalette::Window, Ink::Ground},
      {QPalette::WindowText, Ink::Text},
      {QPalette::Base, Ink::Field},
      {QPalette::AlternateBase, Ink::Panel},
      {QPalette::Text, Ink::Text},
      {QPalette::Button, Ink::Panel},
      {QPalette::ButtonText, Ink::Text},
      {QPalette::ToolTipBase, Ink::Panel},
      {QPalette::ToolTipText, Ink::Text},
      {QPalette::Highlight, Ink::Accent},
      {QPalette::HighlightedText, Ink::OnAccent},
      {QPalette::PlaceholderText, Ink::GreyText},
      {QPalette::Link, Ink::Accent},
      {QPalette::Mid, Ink::Hairline},
  }};
  QPalette oPalette;
  for (const auto& [eRole, eInk] : kRoles) {
    oPalette.setColor(eRole, InkColour(eInk));
  }
  for (const auto eRole : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    oPalette.setColor(QPalette::Disabled, eRole, InkColour(Ink::GreyText));
  }
  return oPalette;
}

QIcon ProgramIcon() {
  QIcon oIcon;
  for (const int nSize : {16, 24, 32, 48, 64, 128, 256}) {
    oIcon.addFile(QString(":/icons/quillet-%1.png").arg(nSize), {nSize, nSize});
  }
  return oIcon;
}

}  // namespace

void InstallTheme() {
  QApplication::setStyle(new ThemeStyle);
  QApplication::setPalette(ThemePalette());
  QPalette oOfMenus = ThemePalette();
  for (const auto eRole : {QPalette::Window, QPalette::Base, QPalette::Button}) {
    oOfMenus.setColor(eRole, InkColour(Ink::Hover));  // they stand out from the window
  }
  QApplication::setPalette(oOfMenus, "QMenu");
  QApplication::setFont(ThemeFont(kTextPoints));
  QApplication::setWindowIcon(ProgramIcon());
}

}  // namespace quillet
