// The diagnostic log as a test reads it.
#pragma once

#include <fstream>
#include <regex>
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

/// The comments of QlDebug.log in `oFolder`. A line that has no time in front comes back whole, so
/// the header shows as seven lines.
inline std::vector<std::string> LogComments(const TemporaryFolder& oFolder) {
  static const std::regex oTime(R"(^\d{4}-\d\d-\d\d [0-2]\d:[0-5]\d:[0-6]\d  )");
  std::vector<std::string> asComments;
  std::ifstream oFile(oFolder / "QlDebug.log");
  for (std::string sLine; std::getline(oFile, sLine);) {
    asComments.push_back(std::regex_replace(sLine, oTime, ""));
  }
  return asComments;
}

}  // namespace quillet
