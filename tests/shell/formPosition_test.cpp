#include "shell/formPosition.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include "base/clsRegistryAccess.h"
#include "platform/qt/Theme.h"

namespace quillet {
namespace {

constexpr QRect kDesign(30, 40, 400, 300);

class Form : public QWidget {
 public:
  Form() {
    setObjectName("frmMain");
    setGeometry(kDesign);
  }
};

std::string Stored(const char* sName) {
  std::string sText;
  Registry().GetRegSettingString(HiveRoot::User, sText, sName, "Forms\\Main", "");
  return sText;
}

void Store(const char* sName, const char* sText) {
  Registry().SetRegSettingString(HiveRoot::User, sText, sName, "Forms\\Main");
}

QRect Restored() {
  Form oForm;
  RestoreFormPosition(oForm);
  return oForm.geometry();
}

TEST(FormPosition, ComesBackFromTwipsWhateverTheZoom) {
  Form oForm;
  oForm.setGeometry(60, 50, 420, 310);
  SetZoom(2.0);
  SaveFormPosition(oForm);
  EXPECT_EQ(Stored("Top"), "750");
  EXPECT_EQ(Stored("Left"), "900");
  EXPECT_EQ(Stored("Height"), "4650");
  EXPECT_EQ(Stored("Width"), "6300");
  EXPECT_EQ(Stored("WindowState"), "0");
  SetZoom(1.0);
  EXPECT_EQ(Restored(), QRect(60, 50, 420, 310));
}

TEST(FormPosition, WhatIsMissingOrNoNumberStaysAsDesigned) {
  EXPECT_EQ(Restored(), kDesign);
  for (const char* const sBad : {"abc", "", "1E30", "nan"}) {
    Store("Top", sBad);
    Store("Left", "150");
    Store("Height", sBad);
    Store("WindowState", sBad);
    EXPECT_EQ(Restored(), QRect(10, 40, 400, 300)) << sBad;
  }
}

TEST(FormPosition, AMaximisedWindowKeepsThePlaceThatItGoesBackTo) {
  {
    Form oForm;
    oForm.show();
    oForm.showMaximized();
    ASSERT_TRUE(oForm.isMaximized());
    SaveFormPosition(oForm);
  }
  EXPECT_EQ(Stored("WindowState"), "2");
  for (int i = 0; i < 2; ++i) {  // and doesn't wander from one start to the next
    Form oForm;
    oForm.setGeometry(0, 0, 100, 100);
    RestoreFormPosition(oForm);
    oForm.show();
    EXPECT_TRUE(oForm.isMaximized());
    EXPECT_EQ(oForm.normalGeometry(), kDesign);
    SaveFormPosition(oForm);
  }
}

TEST(FormPosition, AWindowThatCantBeGraspedIsBroughtOntoTheScreen) {
  const QRect oScreen = QGuiApplication::primaryScreen()->availableGeometry();
  struct Row {
    const char* sTop;
    const char* sLeft;
    const char* sSize;
  };
  for (const Row& oRow : {Row{"750", "-60000", "6000"},
                          {"750", "600000", "6000"},
                          {"-4500", "750", "6000"},
                          {"300000", "750", "6000"},
                          {"-2147483648", "2147483647", "2147483647"},
                          {"750", "750", "-2147483648"}}) {
    Store("Top", oRow.sTop);
    Store("Left", oRow.sLeft);
    Store("Height", oRow.sSize);
    Store("Width", oRow.sSize);
    const QRect oPlace = Restored();
    EXPECT_TRUE(oScreen.contains(oPlace.topLeft())) << oRow.sTop << " " << oRow.sLeft;
    EXPECT_LE(oPlace.width(), oScreen.width());
    EXPECT_LE(oPlace.height(), oScreen.height());
  }
  Store("Top", "0");
  Store("Left", "-150");
  Store("Height", "4500");
  Store("Width", "6000");
  EXPECT_EQ(Restored(), QRect(-10, 0, 400, 300)) << "partly off the screen is the user's affair";
}

}  // namespace
}  // namespace quillet
