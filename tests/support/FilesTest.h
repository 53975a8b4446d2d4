// Shared by the tests that write whole files.
#pragma once

#include <filesystem>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "support/Log.h"

namespace quillet {

class Files : public ::testing::Test {
 protected:
  std::ptrdiff_t FilesInFolder() const {
    return std::distance(std::filesystem::directory_iterator(m_oFolder.sPath), {});
  }

  TemporaryFolder m_oFolder;
  std::string m_sFile = m_oFolder / "a.qlt";
};

}  // namespace quillet
