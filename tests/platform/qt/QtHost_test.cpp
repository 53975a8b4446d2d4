#include "platform/qt/QtHost.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
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

using Step = std::function<void(QDialog&)>;

/// Performs the next step on each dialog that opens. After ten seconds it closes any open dialog,
/// so that the test fails instead of hanging.
class User {
 public:
  explicit User(std::deque<Step> aoSteps) : m_aoSteps(std::move(aoSteps)) {
    m_oTimer.callOnTimeout([this] { Look(); });
    m_oTimer.start();
  }
  User(const User&) = delete;
  User& operator=(const User&) = delete;
  ~User() { EXPECT_TRUE(m_aoSteps.empty()) << m_aoSteps.size() << " dialogs didn't open"; }

 private:
  void Look() {
    auto* const pDialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (pDialog != nullptr && m_oLimit.hasExpired()) {
      ADD_FAILURE() << "a dialog stays open: " << pDialog->metaObject()->className();
      pDialog->reject();
    } else if (pDialog != nullptr && pDialog != m_pSeen && !m_aoSteps.empty()) {
      m_pSeen = pDialog;
      // Outside the timer's call: inside it, the timer would miss a dialog that this one opens.
      QTimer::singleShot(0, pDialog, [oStep = m_aoSteps.front(), pDialog] { oStep(*pDialog); });
      m_aoSteps.pop_front();
    }
  }

  QTimer m_oTimer;
  QDeadlineTimer m_oLimit{std::chrono::seconds(10)};
  std::deque<Step> m_aoSteps;
  QPointer<QDialog> m_pSeen;
};

auto Press(Qt::Key eKey) {
  return [eKey](QDialog& oDialog) { QTest::keyClick(&oDialog, eKey); };
}

auto Click(Button eButton) {
  return
      [eButton](QDialog& oDialog) { dynamic_cast<QMessageBox&>(oDialog).button(eButton)->click(); };
}

/// Types a name into a file dialog and accepts it.
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
  [[nodiscard]] std::optional<std::string> Save() {
    return m_oHost.ChooseFile(
        {true, "Quillet US files", "*.qlt", m_oFolder / "not/there", "proposed.qlt"});
  }

  TemporaryFolder m_oFolder;
  QtHost m_oHost;
};

TEST_F(QtHostTest, TheButtonOfALongMessageStaysOnTheScreen) {
  const QRect oScreen = QGuiApplication::primaryScreen()->availableGeometry();
  for (const auto& [sWhat, sText] :
       {std::pair("letters", QString(1000, 'n').replace("nn", "no way ")),
        {"lines", QString(400, '\n')},
        {"short", QString("short")}}) {
    const User oUser({[&, sText = sText, sWhat = sWhat](QDialog& oDialog) {
      EXPECT_TRUE(oScreen.contains(oDialog.geometry())) << sWhat;
      const auto* const pLong = oDialog.findChild<QPlainTextEdit*>();
      EXPECT_EQ(pLong == nullptr ? "short" : pLong->toPlainText(), sText) << sWhat;
      QTest::keyClick(&oDialog, Qt::Key_Return);
    }});
    EXPECT_EQ(m_oHost.ShowMessage(sText.toStdString(), kMessageWarning, ""), Answer::Ok) << sWhat;
  }
}

TEST_F(QtHostTest, AMessageShowsItsTextAsItIsAndEachWayOutGivesItsAnswer) {
  const Step fnClose = [](QDialog& oDialog) { oDialog.close(); };
  const std::tuple<int, QMessageBox::Icon, Step, Answer> aoRows[] = {
      {kMessageQuestion, QMessageBox::Question, Click(Button::Yes), Answer::Yes},
      {kMessageQuestion, QMessageBox::Question, Click(Button::No), Answer::No},
      {kMessageQuestion, QMessageBox::Question, Press(Qt::Key_Return), Answer::Yes},
      {kMessageQuestion, QMessageBox::Question, fnClose, Answer::Cancel},
      {kMessagePlain, QMessageBox::NoIcon, Press(Qt::Key_Return), Answer::Ok},
      {kMessageCritical, QMessageBox::Critical, Press(Qt::Key_Return), Answer::Ok},
      {kMessageWarning, QMessageBox::Warning, Press(Qt::Key_Escape), Answer::Ok},
      {kMessageInformation, QMessageBox::Information, fnClose, Answer::Ok}};
  for (const auto& [nButtons, eIcon, oStep, eAnswer] : aoRows) {
    const User oUser({[&, eIcon = eIcon, oStep = oStep](QDialog& oDialog) {
      const auto& oBox = dynamic_cast<QMessageBox&>(oDialog);
      EXPECT_EQ(oBox.icon(), eIcon);
      EXPECT_EQ(oBox.text(), "<b>5 & 6</b> &c");
      EXPECT_EQ(oBox.textFormat(), Qt::PlainText);
      EXPECT_EQ(oBox.windowTitle(), "Quillet US");
      oStep(oDialog);
    }});
    EXPECT_EQ(m_oHost.ShowMessage("<b>5 & 6</b> &c", nButtons, "Quillet US"), eAnswer) << nButtons;
  }
}

TEST_F(QtHostTest, SavingAddsTheExtensionOnlyToANameWithoutAny) {
  using Row = std::pair<const char*, const char*>;  // typed name, chosen name
  for (const auto& [sTyped, sChosen] :
       {Row{"lathe.qlt", "lathe.qlt"}, Row{"lathe", "lathe.qlt"}, Row{"lathe.", "lathe.qlt"},
        Row{"v1.2", "v1.2"}, Row{"Café & Bar", "Café & Bar.qlt"}}) {
    const User oUser({Type(sTyped)});
    EXPECT_EQ(Save(), m_oFolder / sChosen) << sTyped;
  }
}

TEST_F(QtHostTest, NoFileIsReplacedUnasked) {
  std::ofstream(m_oFolder / "lathe.qlt") << "text";
  {
    const User oUser({Type("lathe"), Click(Button::Yes)});
    EXPECT_EQ(Save(), m_oFolder / "lathe.qlt");
  }
  const auto fnCancel = [](QDialog& oDialog) {
    EXPECT_EQ(oDialog.findChild<QLineEdit*>("fileNameEdit")->text(), "lathe");
    QTest::keyClick(&oDialog, Qt::Key_Escape);
  };
  const User oUser({Type("lathe"), Click(Button::No), fnCancel});
  EXPECT_EQ(Save(), std::nullopt) << "the dialog comes back";
}

}  // namespace
}  // namespace quillet
