#include "platform/qt/Theme.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QIcon>
#include <QImage>
#include <cmath>

#include <gtest/gtest.h>

#include "base/Settings.h"

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

TEST(Theme, ColourNumbersHaveRedInTheLowByteAndSystemColoursAreInverted) {
  EXPECT_EQ(ColourOf(0x00C0FFC0), QColor(0xC0, 0xFF, 0xC0));
  EXPECT_EQ(ColourOf(33023), QColor(0xFF, 0x80, 0x00));
  EXPECT_EQ(ColourOf(0x00332211), QColor(0x11, 0x22, 0x33));
  EXPECT_EQ(ColourOf(kColourWindow), InkColour(Ink::Text));
  EXPECT_EQ(ColourOf(kColourWindowText), InkColour(Ink::Ground));
  EXPECT_EQ(ColourOf(kColourFrame), InkColour(Ink::Ground));
  EXPECT_EQ(ColourOf(kColourGreyText), InkColour(Ink::GreyText));
}

TEST(Theme, AllDigitsHaveOneAdvanceAtEveryWeightAndZoom) {
  for (const auto eWeight : {QFont::Normal, QFont::Medium, QFont::DemiBold, QFont::Bold}) {
    for (int nPercent = 75; nPercent <= 300; nPercent += 25) {
      SetZoom(nPercent / 100.0);
      const QFontMetricsF oMetrics(ThemeFont(kTextPoints, eWeight));
      const double fWidth = oMetrics.horizontalAdvance("$000.00");
      for (char c = '1'; c <= '9'; ++c) {
        const QString sAmount = QString("$000.00").replace('0', c);
        EXPECT_EQ(oMetrics.horizontalAdvance(sAmount), fWidth)
            << sAmount.toStdString() << ", weight " << eWeight << ", zoom " << nPercent;
      }
    }
  }
}

TEST(Theme, ItsFontIsTheEmbeddedOneInTheWeightAskedFor) {
  for (const auto eWeight : {QFont::Normal, QFont::Medium, QFont::DemiBold, QFont::Bold}) {
    const QFontInfo oInfo(ThemeFont(kTextPoints, eWeight));
    EXPECT_EQ(oInfo.family(), "Inter Quillet");
    EXPECT_EQ(oInfo.weight(), eWeight);
  }
}

TEST(Theme, WindowsHaveTheProgramsIconInEverySize) {
  for (const int nSize : {16, 24, 32, 48, 64, 128, 256}) {
    const QImage oImage = QApplication::windowIcon().pixmap(nSize).toImage();
    EXPECT_EQ(oImage.size(), QSize(nSize, nSize));
    EXPECT_TRUE(oImage.hasAlphaChannel()) << nSize;
  }
}

TEST(Theme, PlacesInTwipsFollowTheZoomAndComeBack) {
  const struct {
    double fZoom;
    double fTwips;
    int nPixels;
  } aoRows[] = {{1.0, 1080, 72}, {1.25, 1080, 90}, {2.0, 15, 2}, {0.75, 1080, 54}, {9.0, 15, 3}};
  for (const auto& oRow : aoRows) {
    SetZoom(oRow.fZoom);
    EXPECT_EQ(Pixels(oRow.fTwips), oRow.nPixels) << oRow.fTwips << " at " << oRow.fZoom;
    EXPECT_EQ(Twips(oRow.nPixels), oRow.fTwips) << oRow.nPixels << " at " << oRow.fZoom;
  }
}

}  // namespace
}  // namespace quillet
