#include "platform/qt/QtHost.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontMetrics>
#include <QLabel>
#include <QLayout>
#include <QLocale>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QScreen>
#include <QStandardPaths>
#include <QThread>
#include <QUrl>

#include "platform/UserData.h"

namespace quillet {
namespace {

constexpr int kLettersOfFileDialog = 110;
constexpr int kLinesOfFileDialog = 36;
constexpr int kLettersOfLongText = 74;
constexpr int kLinesOfLongText = 21;

/// The size of that many lines of that many letters, in the program's current font.
QSize SizeInText(int nLetters, int nLines) {
  const QFontMetrics oText(QApplication::font());
  return {oText.averageCharWidth() * nLetters, oText.lineSpacing() * nLines};
}

QMessageBox::Icon IconOf(int nButtons) {
  switch (nButtons) {
    case kMessageCritical:
      return QMessageBox::Critical;
    case kMessageQuestion:
      return QMessageBox::Question;
    case kMessageWarning:
      return QMessageBox::Warning;
    case kMessageInformation:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

Answer AnswerOf(int nButton) {
  switch (nButton) {
    case QMessageBox::Yes:
      return Answer::Yes;
    case QMessageBox::No:
      return Answer::No;
    case QMessageBox::Cancel:
      return Answer::Cancel;
    default:
      return Answer::Ok;
  }
}

/// The folder, or the nearest one above it that exists.
QString ExistingFolder(const std::string& sFolder) {
  QString sPath = QDir::cleanPath(QDir::fromNativeSeparators(QString::fromStdString(sFolder)));
  while (!QFileInfo(sPath).isDir()) {
    const QString sAbove = QFileInfo(sPath).path();
    if (sAbove == sPath) {
      break;
    }
    sPath = sAbove;
  }
  return sPath;
}

/// Lets the user choose; an empty text if the dialog was cancelled.
QString RunDialog(QFileDialog& oDialog) {
  return oDialog.exec() == QDialog::Accepted ? oDialog.selectedFiles().value(0) : QString();
}

bool MayReplace(const QString& sPath) {
  QMessageBox oBox(
      QMessageBox::Warning, {},
      QString("%1 already exists.\nDo you want to replace it?").arg(QFileInfo(sPath).fileName()),
      QMessageBox::Yes | QMessageBox::No, QApplication::activeWindow());
  oBox.setTextFormat(Qt::PlainText);
  oBox.setDefaultButton(QMessageBox::No);
  return oBox.exec() == QMessageBox::Yes;
}

/// Native dialogs differ in whether they ask about the name as typed or as completed, so this adds
/// the extension and then asks about replacing a file.
QString RunSaveDialog(QFileDialog& oDialog, const QString& sExtension) {
  while (true) {
    const QString sPath = RunDialog(oDialog);
    if (sPath.isEmpty() || !QFileInfo(sPath).suffix().isEmpty()) {
      return sPath;
    }
    const QString sCompleted = sPath + (sPath.endsWith('.') ? "" : ".") + sExtension;
    if (!QFileInfo::exists(sCompleted) || MayReplace(sCompleted)) {
      return sCompleted;
    }
  }
}

std::string NativeText(const QString& sPath) {
  return QDir::toNativeSeparators(sPath).toStdString();
}

/// Reads the group sizes off a number that has three groups in every locale.
NumberStyle StyleOf(const QLocale& oLocale) {
  NumberStyle oStyle;
  oStyle.sGroup = oLocale.groupSeparator().toStdString();
  oStyle.sCurrency = oLocale.currencySymbol().toStdString();
  const QStringList asGroups = oLocale.toString(1'000'000'000).split(oLocale.groupSeparator());
  if (asGroups.size() > 2) {
    oStyle.nLastGroup = static_cast<std::size_t>(asGroups.last().size());
    oStyle.nGroup = static_cast<std::size_t>(asGroups.at(asGroups.size() - 2).size());
  }
  return oStyle;
}

/// Whether a message with that text would be hard to read, or larger than the screen.
bool NeedsScrolling(const QString& sText, const QSize& oScreen) {
  constexpr int kMostLetters = 2000;
  constexpr int kMostLines = 20;
  const QRect oNeeded =
      QFontMetrics(QApplication::font())
          .boundingRect(QRect({}, oScreen / 2), Qt::AlignLeft | Qt::TextWordWrap, sText);
  return sText.size() > kMostLetters || sText.count('\n') >= kMostLines ||
         oNeeded.width() > oScreen.width() / 2 || oNeeded.height() > oScreen.height() / 2;
}

/// Puts the text of a message into a scrolling field, so that the buttons stay on the screen.
void LetScroll(QMessageBox& oBox, const QSize& oScreen) {
  auto* const pText = new QPlainTextEdit(oBox.text(), &oBox);
  pText->setReadOnly(true);
  pText->setTabChangesFocus(true);
  pText->setFont(oBox.font());
  pText->setFixedSize(SizeInText(kLettersOfLongText, kLinesOfLongText).boundedTo(oScreen / 2));
  auto* const pLabel = oBox.findChild<QLabel*>("qt_msgbox_label");
  delete oBox.layout()->replaceWidget(pLabel, pText);
  pLabel->hide();
}

}  // namespace

QtHost::QtHost()
    : m_sDecimalSeparator(QLocale::system().decimalPoint().toStdString()),
      m_oNumbers(StyleOf(QLocale::system())) {
  m_oClock.start();
}

Answer QtHost::ShowMessage(const std::string& sPrompt, int nButtons, const std::string& sTitle) {
  QMessageBox oBox(IconOf(nButtons), QString::fromStdString(sTitle),
                   QString::fromStdString(sPrompt), QMessageBox::Ok, QApplication::activeWindow());
  oBox.setTextFormat(Qt::PlainText);
  if (nButtons == kMessageQuestion) {
    oBox.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    oBox.setDefaultButton(QMessageBox::Yes);
    oBox.setEscapeButton(QMessageBox::Cancel);
  }
  const QSize oScreen = oBox.screen()->availableSize();
  if (NeedsScrolling(oBox.text(), oScreen)) {
    LetScroll(oBox, oScreen);
  }
  return AnswerOf(oBox.exec());
}

std::optional<std::string> QtHost::ChooseFile(const FileDialog& oDialog) {
  const QString sPattern = QString::fromStdString(oDialog.sPattern);
  QFileDialog oWindow(QApplication::activeWindow());
  oWindow.setWindowTitle(oDialog.bSave ? "Save As" : "Open");  // not every native dialog has one
  oWindow.resize(SizeInText(kLettersOfFileDialog, kLinesOfFileDialog));
  oWindow.setAcceptMode(oDialog.bSave ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  oWindow.setFileMode(oDialog.bSave ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  oWindow.setNameFilter(
      QString("%1 (%2)").arg(QString::fromStdString(oDialog.sTypeName), sPattern));
  oWindow.setDirectory(ExistingFolder(oDialog.sInitDir));
  if (!oDialog.sFileName.empty()) {
    oWindow.selectFile(QString::fromStdString(oDialog.sFileName));
  }
  const QString sPath =
      oDialog.bSave ? RunSaveDialog(oWindow, QFileInfo(sPattern).suffix()) : RunDialog(oWindow);
  return sPath.isEmpty() ? std::nullopt : std::optional(NativeText(sPath));
}

void QtHost::PumpEvents() {
  QCoreApplication::processEvents();
  QThread::msleep(1);
}

std::string QtHost::CommandLine() const {
  return QCoreApplication::arguments().mid(1).join(' ').toStdString();
}

std::string QtHost::ProgramFolder() const {
  return NativeText(QCoreApplication::applicationDirPath());
}

std::string QtHost::DataFolder() const {
  return FolderForChanges(ProgramFolder());
}

std::string QtHost::DocumentsFolder() const {
  return NativeText(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
}

void QtHost::OpenLink(const std::string& sTarget) {
  QDesktopServices::openUrl(QUrl::fromUserInput(QString::fromStdString(sTarget)));
}

}  // namespace quillet
