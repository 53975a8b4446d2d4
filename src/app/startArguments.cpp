#include "app/startArguments.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <cstdio>
#include <cstdlib>

#include "base/basCommon.h"
#include "base/version.h"

namespace quillet {
namespace {

/// The switch of the log may stand anywhere, in any spelling that the log itself accepts.
bool IsLogSwitch(const QString& sArgument) {
  return sArgument.contains("DEBUG=TRUE", Qt::CaseInsensitive) && !QFileInfo::exists(sArgument);
}

}  // namespace

std::string AuctionFileToOpen(int& nArguments, char** asArguments) {
  const QCoreApplication oForTheParser(nArguments, asArguments);
  QCoreApplication::setApplicationName(QString::fromStdString(EditionName()));
  QCoreApplication::setApplicationVersion(kVersion);
  QCommandLineParser oParser;
  oParser.setApplicationDescription(
      "Tells what selling through auctions on eBay costs and brings.");
  oParser.addHelpOption();
  oParser.addVersionOption();
  oParser.addPositionalArgument("auction", "An auction file (.qlt) to open.", "[auction]");
  oParser.addPositionalArgument("DEBUG=TRUE", "Writes the diagnostic log QlDebug.log.",
                                "[DEBUG=TRUE]");
  QStringList asWords = QCoreApplication::arguments();
  asWords.removeIf(IsLogSwitch);
  oParser.process(asWords);

  const QStringList asFiles = oParser.positionalArguments();
  if (asFiles.size() > 1) {
    std::fputs("One auction can be opened at a time.\n", stderr);
    std::exit(EXIT_FAILURE);  // NOLINT(concurrency-mt-unsafe): one thread
  }
  return asFiles.isEmpty() ? std::string()
                           : QDir::toNativeSeparators(QFileInfo(asFiles.front()).absoluteFilePath())
                                 .toStdString();
}

}  // namespace quillet
