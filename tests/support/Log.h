// A test's own files, and reading the diagnostic log.
#pragma once

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "support/TestHost.h"

namespace quillet {

inline std::string ReadTestFile(const std::string& sPath) {
  std::ifstream oFile(sPath, std::ios::binary);
  return {std::istreambuf_iterator<char>(oFile), {}};
}

inline void WriteTestFile(const std::string& sPath, const std::string& sContent) {
  std::ofstream(sPath, std::ios::binary) << sContent;
}

/// The platform's messages for a missing file, and for a folder where a file should be.
inline std::string MissingWords() {
  return RemoveFile("no such file").message();
}
inline std::string FolderWords(bool bWritten) {
  std::string sContent;
  return (bWritten ? ReplaceFile(".", "") : ReadWholeFile(".", 0, sContent)).message();
}

/// The comments in QlDebug.log in `oFolder`; each follows its time and two blanks.
inline std::vector<std::string> LogComments(const TemporaryFolder& oFolder) {
  std::vector<std::string> asComments;
  std::ifstream oFile(oFolder / "QlDebug.log");
  for (std::string sLine; std::getline(oFile, sLine);) {
    const std::size_t nBlanks = sLine.find("  ");
    asComments.push_back(nBlanks == 19 ? sLine.substr(21) : sLine);
  }
  return asComments;
}

}  // namespace quillet
