#include <cmath>

#include <gtest/gtest.h>

#include "base/Settings.h"
#include "look/palette.h"

namespace quillet {
namespace {

/// Relative luminance by the Web Content Accessibility Guidelines.
double Luminance(const QColor& oColour) {
  const auto Linear = [](double f) {
    return f <= 0.04045 ? f / 12.92 : std::pow((f + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * Linear(oColour.redF()) + 0.7152 * Linear(oColour.greenF()) +
         0.0722 * Linear(oColour.blueF());
}

double Contrast(const QColor& oOne, const QColor& oOther) {
  const double fOne = Luminance(oOne) + 0.05;
  const double fOther = Luminance(oOther) + 0.05;
  return std::max(fOne, fOther) / std::min(fOne, fOther);
}

QColor SettingColour(const Setting& oSetting) {
  return ColourOf(static_cast<std::uint32_t>(std::stoul(oSetting.sDefault)));
}

TEST(Theme, EveryTextHasAContrastOfFourAndAHalfOnEveryGroundItStandsOn) {
  const struct {
    const char* sText;
    QColor oText;
    std::vector<Ink> aeGrounds;
  } aoPairs[] = {
      {"text",
       InkColour(Ink::Text),
       {Ink::Ground, Ink::Panel, Ink::Field, Ink::Hover, Ink::Hairline}},
      {"grey text",
       InkColour(Ink::GreyText),
       {Ink::Column, Ink::Ground, Ink::Panel, Ink::Field, Ink::Hover}},
      {"button", InkColour(Ink::ColumnText), {Ink::Column}},
      {"section name", InkColour(Ink::FaintText), {Ink::Ground, Ink::Panel}},
      {"link", InkColour(Ink::Accent), {Ink::Ground, Ink::Panel, Ink::Hover}},
      {"chosen text", InkColour(Ink::OnAccent), {Ink::Accent}},
      {"header", InkColour(Ink::OnHeaderBar), {Ink::HeaderBar}},
      {"error", InkColour(Ink::Error), {Ink::Ground, Ink::Panel, Ink::Field}},
      {"subtotal", SettingColour(settings::kSubtotalColour), {Ink::Ground, Ink::Panel}},
      {"total", SettingColour(settings::kTotalColour), {Ink::Ground, Ink::Panel}},
  };
  EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21.0, 0.001);
  for (const auto& oPair : aoPairs) {
    for (const Ink eGround : oPair.aeGrounds) {
      EXPECT_GE(Contrast(oPair.oText, InkColour(eGround)), 4.5)
          << oPair.sText << " on ground " << static_cast<int>(eGround);
    }
  }
}

}  // namespace
}  // namespace quillet
