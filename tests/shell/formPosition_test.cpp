#include "shell/formPosition.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include "base/clsRegistryAccess.h"
#include "look/scale.h"

namespace quillet {
namespace {

constexpr QRect kDesign(30, 40, 400, 300);
constexpr std::array kValues = {"Top", "Left", "Height", "Width", "WindowState"};

struct Form : QWidget {
  Form() {
    setObjectName("frmMain");
    setGeometry(kDesign);
  }
};

std::vector<std::string> Stored() {
  std::vector<std::string> asStored(kValues.size());
  for (std::size_t i = 0; i < kValues.size(); ++i) {
    Registry().GetRegSettingString(HiveRoot::User, asStored[i], kValues.at(i), "Forms\\Main", "");
  }
  return asStored;
}

/// Where stored values, in the order of kValues, place a window.
QRect Restored(const std::vector<std::string>& asValues) {
  for (std::size_t i = 0; i < asValues.size(); ++i) {
    Registry().SetRegSettingString(HiveRoot::User, asValues[i], kValues.at(i), "Forms\\Main");
  }
  Form oForm;
  RestoreFormPosition(oForm);
  return oForm.geometry();
}

TEST(FormPosition, ComesBackFromTwipsWhateverTheZoom) {
  Form oForm;
  oForm.setGeometry(60, 50, 420, 310);
  SetZoom(2.0);
  SaveFormPosition(oForm);
  EXPECT_EQ(Stored(), (std::vector<std::string>{"750", "900", "4650", "6300", "0"}));
  SetZoom(1.0);
  EXPECT_EQ(Restored({}), QRect(60, 50, 420, 310));
}

TEST(FormPosition, WhatIsMissingOrNoNumberStaysAsDesigned) {
  for (const char* const sBad : {"abc", "", "1E30", "nan"}) {
    EXPECT_EQ(Restored({sBad, "150", sBad, sBad, sBad}), QRect(10, 40, 400, 300)) << sBad;
  }
}

TEST(FormPosition, AMaximisedWindowKeepsThePlaceThatItGoesBackTo) {
  Form oFirst;
  oFirst.show();
  oFirst.showMaximized();
  ASSERT_TRUE(QTest::qWaitFor([&] { return oFirst.width() > kDesign.width(); }, 5000));
  SaveFormPosition(oFirst);
  for (int i = 0; i < 2; ++i) {  // and doesn't drift from one start to the next
    EXPECT_EQ(Stored(), (std::vector<std::string>{"600", "450", "4500", "6000", "2"}));
    Form oForm;
    oForm.setGeometry(0, 0, 100, 100);
    RestoreFormPosition(oForm);
    oForm.show();
    EXPECT_TRUE(oForm.isMaximized());
    ASSERT_TRUE(QTest::qWaitFor([&] { return oForm.width() > kDesign.width(); }, 5000));
    SaveFormPosition(oForm);
  }
}

TEST(FormPosition, AWindowThatCantBeGraspedIsBroughtOntoTheScreen) {
  const QRect oScreen = QGuiApplication::primaryScreen()->availableGeometry();
  for (const auto& asValues : std::vector<std::vector<std::string>>{
           {"750", "-60000", "6000", "6000"},
           {"300000", "750", "6000", "6000"},
           {"-2147483648", "2147483520", "2147483520", "2147483520"},
           {"750", "750", "-2147483648", "-2147483648"}}) {
    const QRect oPlace = Restored(asValues);
    EXPECT_TRUE(oScreen.contains(oPlace.topLeft())) << asValues[0] << ", " << asValues[1];
    EXPECT_LE(oPlace.width(), oScreen.width());
    EXPECT_LE(oPlace.height(), oScreen.height());
  }
  EXPECT_EQ(Restored({"0", "-150", "4500", "6000"}), QRect(-10, 0, 400, 300))
      << "partly off the screen is the user's affair";
}

}  // namespace
}  // namespace quillet
