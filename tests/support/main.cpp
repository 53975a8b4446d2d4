#include <gtest/gtest.h>

#include "support/TestHost.h"

int main(int nArguments, char** asArguments) {
  ::testing::InitGoogleTest(&nArguments, asArguments);
  quillet::TestHost oHost;
  quillet::SetHost(oHost);
  return RUN_ALL_TESTS();
}
