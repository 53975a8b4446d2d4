// Shared by the update tests: a program folder, settings in memory, and the log.
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "base/basCommon.h"
#include "base/basError.h"
#include "base/basMain.h"
#include "base/clsRegistryAccess.h"
#include "support/Log.h"
#include "support/MemoryHive.h"
#include "support/TestHost.h"

namespace quillet {

class OnlineHost : public ScopedHost {
 public:
  std::string DataFolder() const override {
    return sDataFolder.empty() ? sProgramFolder : sDataFolder;
  }

  std::string sDataFolder;
};

class OnlineTest : public ::testing::Test {
 protected:
  OnlineTest() {
    m_oHost.sProgramFolder = m_oFolder.sPath;
    SetRegistryHive(m_oHive);
    g_bDebug = true;
    WriteTestFile(m_oFolder / "QlDebug.log", "\n");  // so the log gets no header
    g_lActionFlags = 0;
    g_sActionMessage.clear();
    g_sAboutText = "Welcome";
  }
  ~OnlineTest() override {
    g_bDebug = false;
    ChooseUpdateFile("");
  }

  /// The log since the last call, with each procedure's lines joined: "Start FTP 1|2|3".
  std::string Story() {
    std::string sStory;
    std::string sLast;
    for (const std::string& sComment : LogComments(m_oFolder)) {
      const std::size_t nStep = sComment.find_first_of("0123456789");
      const bool bStep = nStep != std::string::npos && nStep > 0;
      const std::string sProcedure = bStep ? sComment.substr(0, nStep) : "";
      sStory += bStep && sProcedure == sLast ? "|" + sComment.substr(nStep) : "\n" + sComment;
      sLast = sProcedure;
    }
    WriteTestFile(m_oFolder / "QlDebug.log", "\n");
    return sStory.erase(0, sStory.find_first_not_of('\n'));
  }

  void PutSetting(const Setting& oSetting, const std::string& sValue) {
    Registry().Set(oSetting, sValue);
  }
  std::string SkipMark() { return Registry().Get(settings::kFtpSkipFlag); }

  TemporaryFolder m_oFolder;
  OnlineHost m_oHost;
  MemoryHive m_oHive;
  const std::string m_sName = UpdateFileName(true);
  const std::string m_sLocal = m_oFolder / m_sName;
};

}  // namespace quillet
