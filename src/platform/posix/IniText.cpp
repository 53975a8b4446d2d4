#include "platform/posix/IniText.h"

#include <QByteArray>
#include <QStringList>
#include <algorithm>
#include <array>
#include <utility>

namespace quillet {
namespace {

constexpr std::array<std::pair<char, char>, 7> kEscapes = {
    {{'a', '\a'}, {'b', '\b'}, {'f', '\f'}, {'n', '\n'}, {'r', '\r'}, {'t', '\t'}, {'v', '\v'}}};

bool IsPlain(QChar nLetter) {
  const char16_t n = nLetter.unicode();
  return (n >= 'a' && n <= 'z') || (n >= 'A' && n <= 'Z') || (n >= '0' && n <= '9') || n == '_' ||
         n == '-' || n == '.';
}

bool IsDigitOf(int nBase, QChar nLetter) {
  bool bDigit = false;
  QString(nLetter).toInt(&bDigit, nBase);
  return bDigit;
}

QString KeyText(const QString& sKey) {
  QString sText;
  for (const QChar nLetter : sKey) {
    const unsigned nCode = nLetter.unicode();
    if (IsPlain(nLetter)) {
      sText += nLetter;
    } else if (nLetter == '/') {
      sText += '\\';
    } else {
      sText += QString::asprintf(nCode > 0xFF ? "%%U%04X" : "%%%02X", nCode);
    }
  }
  return sText;
}

QString ReadKey(const QString& sText) {
  QString sKey;
  for (qsizetype i = 0; i < sText.size(); ++i) {
    const bool bWide = sText.mid(i, 2) == "%U";
    const qsizetype nMark = bWide ? 2 : 1;
    const qsizetype nDigits = bWide ? 4 : 2;
    bool bCode = false;
    const uint nCode = sText.mid(i + nMark, nDigits).toUInt(&bCode, 16);
    if (sText[i] == '%' && bCode) {
      sKey += QChar(nCode);
      i += nMark + nDigits - 1;
    } else {
      sKey += sText[i] == '\\' ? QChar('/') : sText[i];
    }
  }
  return sKey;
}

/// The number of a character has no end of its own: a digit behind it is written as one, too.
QString ValueText(const QString& sValue) {
  const QString sMarked = sValue.startsWith('@') ? '@' + sValue : sValue;
  if (std::all_of(sMarked.begin(), sMarked.end(), IsPlain)) {
    return sMarked;
  }
  QString sText;
  bool bNumber = false;
  for (const QChar nLetter : sMarked) {
    bNumber = nLetter.unicode() < ' ' || (bNumber && IsDigitOf(16, nLetter));
    if (bNumber) {
      sText += QString::asprintf("\\x%x", static_cast<unsigned>(nLetter.unicode()));
    } else {
      sText += (nLetter == '"' || nLetter == '\\' ? "\\" : "") + QString(nLetter);
    }
  }
  return '"' + sText + '"';
}

/// What stands behind a backslash at `i`, which moves to its last letter.
QChar ReadEscape(const QString& sText, qsizetype& i) {
  const QChar nLetter = sText.size() > ++i ? sText[i] : QChar();
  const int nBase = nLetter == 'x' ? 16 : 8;
  if (nBase == 16 || IsDigitOf(8, nLetter)) {
    i -= nBase == 16 ? 0 : 1;
    uint nCode = 0;
    for (; i + 1 < sText.size() && IsDigitOf(nBase, sText[i + 1]); ++i) {
      nCode = nCode * static_cast<uint>(nBase) + QString(sText[i + 1]).toUInt(nullptr, nBase);
    }
    return QChar(nCode & 0xFFFFU);
  }
  const auto* const pEscape = std::find_if(kEscapes.begin(), kEscapes.end(),
                                           [&](const auto& o) { return nLetter == o.first; });
  return pEscape == kEscapes.end() ? nLetter : QChar(pEscape->second);
}

/// A text may be marked as one, and what isn't a text, or once stood for one, is marked as well.
QString WithoutMark(const QString& sText) {
  for (const QString sMark : {"@String(", "@ByteArray(", "@Invalid("}) {
    if (sText.startsWith(sMark) && sText.endsWith(')')) {
      return sText.mid(sMark.size()).chopped(1);
    }
  }
  return sText.startsWith("@@") ? sText.mid(1) : sText;
}

/// Blanks count in quotes only. Bare commas make a list, which is one text here.
QString ReadValue(const QString& sText) {
  QString sValue;
  bool bQuoted = false;
  qsizetype nStart = 0;  // of what a blank may not be dropped from
  for (qsizetype i = 0; i < sText.size(); ++i) {
    const bool bComma = !bQuoted && sText[i] == ',';
    const bool bBlank = !bQuoted && (sText[i] == ' ' || sText[i] == '\t');
    while (bComma && sValue.size() > nStart && sValue.back().isSpace()) {
      sValue.chop(1);
    }
    if (sText[i] == '"') {
      bQuoted = !bQuoted;
    } else if (sText[i] == '\\') {
      sValue += ReadEscape(sText, i);
    } else if (!bBlank || sValue.size() > nStart) {
      sValue += sText[i];
    }
    nStart = bQuoted || bComma || sText[i] == '"' ? sValue.size() : nStart;
  }
  return WithoutMark(sValue);
}

/// Values without a section stand in "General", and a section of that name isn't it.
QString SectionText(const QString& sSection) {
  return sSection.isEmpty()                                      ? "General"
         : sSection.compare("General", Qt::CaseInsensitive) == 0 ? "%General"
                                                                 : KeyText(sSection);
}

QString ReadSection(const QString& sText) {
  return sText.compare("General", Qt::CaseInsensitive) == 0    ? ""
         : sText.compare("%General", Qt::CaseInsensitive) == 0 ? "General/"
                                                               : ReadKey(sText) + '/';
}

}  // namespace

std::string IniText(const IniValues& asValues) {
  std::map<QString, QString> asSections;
  for (const auto& [sKey, sValue] : asValues) {
    const qsizetype nEnd = sKey.indexOf('/');  // -1 without a section
    asSections[SectionText(sKey.left(std::max<qsizetype>(nEnd, 0)))] +=
        KeyText(sKey.mid(nEnd + 1)) + '=' + ValueText(sValue) + '\n';
  }
  QString sText;
  for (const auto& [sSection, sLines] : asSections) {
    sText += (sText.isEmpty() ? "[" : "\n[") + sSection + "]\n" + sLines;
  }
  return sText.toStdString();
}

IniValues ReadIniText(const std::string& sText) {
  IniValues asValues;
  QString sSection;
  for (const QString& sRaw : QString::fromStdString(sText).split('\n')) {
    const QString sLine = sRaw.trimmed();
    const qsizetype nEqual = sLine.indexOf('=');
    if (sLine.startsWith('[') && sLine.endsWith(']')) {
      sSection = ReadSection(sLine.mid(1).chopped(1).trimmed());
    } else if (nEqual > 0 && !sLine.startsWith(';') && !sLine.startsWith('#')) {
      asValues[sSection + ReadKey(sLine.left(nEqual).trimmed())] =
          ReadValue(sLine.mid(nEqual + 1).trimmed());
    }
  }
  return asValues;
}

}  // namespace quillet
