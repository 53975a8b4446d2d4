#include "platform/qt/Theme.h"

#include <QApplication>
#include <QFontDatabase>
#include <QIcon>
#include <QPalette>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "platform/qt/ThemeStyle.h"

namespace quillet {
namespace {

constexpr double kTwipsPerPixel = 15.0;  // 1440 to the inch, the toolkit's 96 pixels to the inch

double g_fZoom = 1.0;
QString g_sFontFamily;

void LoadFont() {
  for (const char* const sWeight : {"Regular", "Medium", "SemiBold", "Bold"}) {
    const int nFont =
        QFontDatabase::addApplicationFont(QString(":/fonts/Inter-%1.otf").arg(sWeight));
    const QStringList asFamilies = QFontDatabase::applicationFontFamilies(nFont);
    if (g_sFontFamily.isEmpty() && !asFamilies.isEmpty()) {
      g_sFontFamily = asFamilies.first();
    }
  }
}

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

QColor InkColour(Ink eInk) {
  switch (eInk) {
    case Ink::Ground:
      return {0x14, 0x17, 0x1A};
    case Ink::Panel:
      return {0x1B, 0x1F, 0x24};
    case Ink::Hairline:
      return {0x2C, 0x33, 0x3B};
    case Ink::Field:
      return {0x11, 0x14, 0x17};
    case Ink::FieldEdge:
      return {0x4A, 0x53, 0x5D};
    case Ink::Text:
      return {0xE8, 0xEA, 0xED};
    case Ink::GreyText:
      return {0x8A, 0x92, 0x9C};
    case Ink::FaintText:
      return {0x9A, 0xA3, 0xAD};
    case Ink::Accent:
      return {0x5A, 0xA2, 0xFF};
    case Ink::OnAccent:
      return {0x0B, 0x1A, 0x2E};
    case Ink::HeaderBar:
      return {0x2F, 0x6F, 0xB5};
    case Ink::OnHeaderBar:
      return {0xFF, 0xFF, 0xFF};
    case Ink::Hover:
      return {0x22, 0x28, 0x2F};
    case Ink::Column:
      return {0x10, 0x12, 0x14};
    case Ink::ColumnText:
      return {0xB4, 0xBB, 0xC3};
    case Ink::Warning:
      return {0xFF, 0xB8, 0x4D};
    case Ink::Error:
      return {0xFF, 0x6B, 0x6B};
  }
  return {};
}

QColor ColourOf(std::uint32_t nColour) {
  switch (nColour) {
    case kColourWindow:
      return InkColour(Ink::Text);
    case kColourFrame:
    case kColourWindowText:
      return InkColour(Ink::Ground);
    case kColourFace:
    case kColourHighlight:
      return InkColour(Ink::Hairline);
    case kColourGreyText:
      return InkColour(Ink::GreyText);
    default:
      return {static_cast<int>(nColour & 0xFFU), static_cast<int>((nColour >> 8U) & 0xFFU),
              static_cast<int>((nColour >> 16U) & 0xFFU)};
  }
}

QFont ThemeFont(double fPoints, QFont::Weight eWeight) {
  constexpr double kPixelsPerPoint = 96.0 / 72.0;
  constexpr double kDotsPerInch = 96.0;
  QFont oFont(g_sFontFamily);
  // By way of the screen's own resolution, since only a size in points may have a fraction.
  const double fPixels = fPoints * kPixelsPerPoint * g_fZoom;
  oFont.setPointSizeF(fPixels * 72.0 / kDotsPerInch);
  oFont.setWeight(eWeight);
  // Hinting rounds the width of a letter to whole pixels on Windows, too much for a narrow place.
  oFont.setHintingPreference(QFont::PreferNoHinting);
  return oFont;
}

void InstallTheme() {
  LoadFont();
  QApplication::setStyle(new ThemeStyle);
  QApplication::setPalette(ThemePalette());
  QApplication::setFont(ThemeFont(kTextPoints));
  QApplication::setWindowIcon(ProgramIcon());
}

double Zoom() {
  return g_fZoom;
}

void SetZoom(double fZoom) {
  g_fZoom = std::clamp(fZoom, 0.75, 3.0);
}

int Pixels(double fTwips) {
  return static_cast<int>(std::lround(fTwips / kTwipsPerPixel * g_fZoom));
}

int Twips(double fPixels) {
  return static_cast<int>(std::lround(fPixels * kTwipsPerPixel / g_fZoom));
}

}  // namespace quillet
