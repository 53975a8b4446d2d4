#include "platform/qt/QtHost.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <deque>
#include <fstream>
#include <functional>

#include <gtest/gtest.h>

#include "support/TestHost.h"

namespace quillet {
namespace {

using Button = QMessageBox::StandardButton;

/// Does the next of its steps to each dialog that opens. A dialog that stays open is closed in the
/// end, so that a test fails and doesn't hang.
class User {
 public:
  explicit User(std::deque<std::function<void(QDialog&)>> aoSteps) : m_aoSteps(std::move(aoSteps)) {
    m_oTimer.callOnTimeout([this] { Look(); });
    m_oTimer.start();
  }
  User(const User&) = delete;
  User& operator=(const User&) = delete;
  ~User() { EXPECT_TRUE(m_aoSteps.empty()) << m_aoSteps.size() << " dialogs didn't open"; }

 private:
  void Look() {
    auto* const pDialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (pDialog == nullptr) {
      return;
    }
    if (m_oLimit.hasExpired()) {
      ADD_FAILURE() << "a dialog stays open: " << pDialog->metaObject()->className();
      pDialog->reject();
    } else if (pDialog != m_pSeen && !m_aoSteps.empty()) {
      m_pSeen = pDialog;
      // Not from within the timer, which would then not look at a dialog that this one opens.
      QMetaObject::invokeMethod(
          pDialog, [oStep = m_aoSteps.front(), pDialog] { oStep(*pDialog); }, Qt::QueuedConnection);
      m_aoSteps.pop_front();
    }
  }

  QTimer m_oTimer;
  QDeadlineTimer m_oLimit{std::chrono::seconds(10)};
  std::deque<std::function<void(QDialog&)>> m_aoSteps;
  QPointer<QDialog> m_pSeen;
};

auto Press(Qt::Key eKey) {
  return [eKey](QDialog& oDialog) { QTest::keyClick(&oDialog, eKey); };
}

auto Click(Button eButton) {
  return
      [eButton](QDialog& oDialog) { dynamic_cast<QMessageBox&>(oDialog).button(eButton)->click(); };
}

/// Types a name into a file dialog and takes it.
auto Type(const char* sName) {
  return [sName](QDialog& oDialog) {
    auto* const pName = oDialog.findChild<QLineEdit*>("fileNameEdit");
    pName->setText(sName);
    QTest::keyClick(pName, Qt::Key_Return);
  };
}

class QtHostTest : public ::testing::Test {
 protected:
  QtHostTest() {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       QString::fromStdString(m_oFolder / "config"));
  }
  [[nodiscard]] FileDialog Dialog(bool bSave, const std::string& sName = "") const {
    return {bSave, "Quillet US files", "*.qlt", m_oFolder / "not/there", sName};
  }
  void MakeFile(const char* sName) const { std::ofstream(m_oFolder / sName) << "text"; }

  TemporaryFolder m_oFolder;
  QtHost m_oHost;
};

TEST_F(QtHostTest, AMessageHasTheIconAndButtonsOfItsNumberAndShowsItsTextAsItIs) {
  const struct {
    int nButtons;
    QMessageBox::Icon eIcon;
    QMessageBox::StandardButtons eButtons;
  } aoRows[] = {
      {kMessagePlain, QMessageBox::NoIcon, Button::Ok},
      {kMessageCritical, QMessageBox::Critical, Button::Ok},
      {kMessageWarning, QMessageBox::Warning, Button::Ok},
      {kMessageInformation, QMessageBox::Information, Button::Ok},
      {kMessageQuestion, QMessageBox::Question, Button::Yes | Button::No | Button::Cancel},
  };
  for (const auto& oRow : aoRows) {
    const User oUser({[&](QDialog& oDialog) {
      const auto& oBox = dynamic_cast<QMessageBox&>(oDialog);
      EXPECT_EQ(oBox.icon(), oRow.eIcon) << oRow.nButtons;
      EXPECT_EQ(oBox.standardButtons(), oRow.eButtons) << oRow.nButtons;
      EXPECT_EQ(oBox.text(), "<b>5 & 6</b> &c");
      EXPECT_EQ(oBox.textFormat(), Qt::PlainText);
      EXPECT_EQ(oBox.windowTitle(), "Quillet US");
      oDialog.reject();
    }});
    m_oHost.ShowMessage("<b>5 & 6</b> &c", oRow.nButtons, "Quillet US");
  }
}

TEST_F(QtHostTest, EachButtonAndKeyOfAMessageGivesItsAnswer) {
  const struct {
    const char* sWhat;
    int nButtons;
    std::function<void(QDialog&)> oStep;
    Answer eAnswer;
  } aoRows[] = {
      {"Yes", kMessageQuestion, Click(Button::Yes), Answer::Yes},
      {"No", kMessageQuestion, Click(Button::No), Answer::No},
      {"Cancel", kMessageQuestion, Click(Button::Cancel), Answer::Cancel},
      {"Enter", kMessageQuestion, Press(Qt::Key_Return), Answer::Yes},
      {"Escape", kMessageQuestion, Press(Qt::Key_Escape), Answer::Cancel},
      {"close", kMessageQuestion, [](QDialog& oDialog) { oDialog.close(); }, Answer::Cancel},
      {"Enter, OK", kMessageWarning, Press(Qt::Key_Return), Answer::Ok},
      {"Escape, OK", kMessageWarning, Press(Qt::Key_Escape), Answer::Ok},
  };
  for (const auto& oRow : aoRows) {
    const User oUser({oRow.oStep});
    EXPECT_EQ(m_oHost.ShowMessage("Save now?", oRow.nButtons, ""), oRow.eAnswer) << oRow.sWhat;
  }
}

TEST_F(QtHostTest, SavingAddsTheExtensionOnlyToANameWithoutAny) {
  const struct {
    const char* sTyped;
    const char* sChosen;
  } aoRows[] = {{"lathe.qlt", "lathe.qlt"}, {"lathe", "lathe.qlt"},
                {"lathe.", "lathe.qlt"},    {"lathe.txt", "lathe.txt"},
                {"v1.2", "v1.2"},           {"Café & Bar", "Café & Bar.qlt"}};
  for (const auto& oRow : aoRows) {
    const User oUser({Type(oRow.sTyped)});
    EXPECT_EQ(m_oHost.ChooseFile(Dialog(true)), m_oFolder / oRow.sChosen) << oRow.sTyped;
  }
}

TEST_F(QtHostTest, NoFileIsReplacedUnasked) {
  MakeFile("lathe.qlt");
  for (const char* const sTyped : {"lathe", "lathe.qlt"}) {
    const User oUser({Type(sTyped), Click(Button::Yes)});
    EXPECT_EQ(m_oHost.ChooseFile(Dialog(true)), m_oFolder / "lathe.qlt") << sTyped;
  }
  const User oUser({Type("lathe"), Click(Button::No), Press(Qt::Key_Escape)});
  EXPECT_EQ(m_oHost.ChooseFile(Dialog(true)), std::nullopt) << "the dialog comes back";
}

TEST_F(QtHostTest, AFileDialogStartsInTheNearestFolderWithTheNameProposed) {
  MakeFile("lathe.qlt");
  for (const bool bSave : {false, true}) {
    const User oUser({[&](QDialog& oDialog) {
      const auto& oFile = dynamic_cast<QFileDialog&>(oDialog);
      EXPECT_EQ(QDir::toNativeSeparators(oFile.directory().path()).toStdString(), m_oFolder.sPath);
      EXPECT_EQ(oFile.nameFilters(), QStringList("Quillet US files (*.qlt)"));
      EXPECT_EQ(oDialog.findChild<QLineEdit*>("fileNameEdit")->text(), "lathe.qlt");
      QTest::keyClick(&oDialog, Qt::Key_Escape);
    }});
    EXPECT_EQ(m_oHost.ChooseFile(Dialog(bSave, "lathe.qlt")), std::nullopt) << bSave;
  }
}

TEST_F(QtHostTest, OpeningGivesAFileThatExists) {
  MakeFile("lathe.qlt");
  const User oUser({Type("lathe.qlt")});
  EXPECT_EQ(m_oHost.ChooseFile(Dialog(false)), m_oFolder / "lathe.qlt");
}

TEST_F(QtHostTest, PumpingDeliversWhatWaitsAndTimePassesMeanwhile) {
  bool bDelivered = false;
  QMetaObject::invokeMethod(
      qApp, [&] { bDelivered = true; }, Qt::QueuedConnection);
  const std::int64_t nBefore = m_oHost.TickCount();
  m_oHost.PumpEvents();
  EXPECT_TRUE(bDelivered);
  EXPECT_GT(m_oHost.TickCount(), nBefore);
}

}  // namespace
}  // namespace quillet
