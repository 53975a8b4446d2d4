#include "app/startArguments.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "base/basCommon.h"
#include "base/version.h"
#include "documents/lifecycle.h"
#include "platform/Files.h"
#include "platform/paths.h"

namespace quillet {
namespace {

/// An argument, and its bytes, which may not be text that the toolkit can hold.
struct Word {
  QString sText;
  std::string sBytes;
};

std::vector<Word> WordsOf(int nArguments, char** asArguments) {
  std::vector<Word> aoWords;
  for (const QString& sText : QCoreApplication::arguments()) {
    const auto nWord = static_cast<int>(aoWords.size());
    const bool bText = !sText.contains(QChar::ReplacementCharacter) || nWord >= nArguments;
    aoWords.push_back({sText, bText ? sText.toStdString() : std::string(asArguments[nWord])});
  }
  return aoWords;
}

/// The log's switch may be anywhere, in any case. Other switches like "/x" mean nothing here; a
/// missing auction isn't skipped but reported.
bool IsPassedOver(const Word& oWord) {
  const bool bLog = oWord.sText.contains("DEBUG=TRUE", Qt::CaseInsensitive);
  const bool bSwitch =
      oWord.sText.startsWith('/') && !oWord.sText.endsWith(kAuctionExtension, Qt::CaseInsensitive);
  return (bLog || bSwitch) && !FileExists(oWord.sBytes);
}

/// The options that the toolkit handles later, with one dash or two.
void AddOptionsOfToolkit(QCommandLineParser& oParser) {
  constexpr const char* kWithValue[] = {
      "platform", "platformpluginpath", "platformtheme", "plugin",  "qwindowgeometry", "geometry",
      "title",    "qwindowtitle",       "icon",          "session", "qwindowicon",     "style",
      "display",  "stylesheet",         "name"};
  constexpr const char* kAlone[] = {"reverse", "widgetcount", "nograb", "dograb"};
  const auto fnAdd = [&](const char* sName, const QString& sValue) {
    QCommandLineOption oOption(sName, {}, sValue);
    oOption.setFlags(QCommandLineOption::HiddenFromHelp);
    oParser.addOption(oOption);
  };
  for (const char* const sName : kWithValue) {
    fnAdd(sName, "value");
  }
  for (const char* const sName : kAlone) {
    fnAdd(sName, {});
  }
  oParser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
}

/// Handles the options that need no window, and then ends the process.
QStringList FilesAmong(const std::vector<Word>& aoWords) {
  QCommandLineParser oParser;
  oParser.setApplicationDescription("Works out what a sale on eBay costs, and what it leaves you.");
  oParser.addHelpOption();
  oParser.addVersionOption();
  oParser.addPositionalArgument("auction", "An auction file (.qlt) to open.", "[auction]");
  oParser.addPositionalArgument("DEBUG=TRUE", "Writes the diagnostic log QlDebug.log.",
                                "[DEBUG=TRUE]");
  AddOptionsOfToolkit(oParser);
  QStringList asWords;
  for (const Word& oWord : aoWords) {
    asWords += oWord.sText;
  }
  oParser.process(asWords);
  return oParser.positionalArguments();
}

}  // namespace

std::string AuctionFileToOpen(int& nArguments, char** asArguments) {
  const QCoreApplication oForTheParser(nArguments, asArguments);
  QCoreApplication::setApplicationName(QString::fromStdString(EditionName()));
  QCoreApplication::setApplicationVersion(kVersion);
  std::vector<Word> aoWords = WordsOf(nArguments, asArguments);
  aoWords.erase(std::remove_if(aoWords.begin() + 1, aoWords.end(), IsPassedOver), aoWords.end());
  const QStringList asFiles = FilesAmong(aoWords);
  if (asFiles.isEmpty()) {
    return {};
  }
  if (asFiles.size() > 1) {
    std::fputs("Only one auction can be opened at a time.\n", stderr);
    std::exit(EXIT_FAILURE);  // NOLINT(concurrency-mt-unsafe): one thread
  }
  const auto oFile = std::find_if(aoWords.begin(), aoWords.end(),
                                  [&](const Word& o) { return o.sText == asFiles.front(); });
  return NativePath(TextOfPath(std::filesystem::absolute(PathOf(oFile->sBytes))));
}

}  // namespace quillet
