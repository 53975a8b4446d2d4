#include "support.h"

#include <cstdlib>

#include "base/failure.h"
#include "base/region.h"
#include "platform/TerminalHost.h"

namespace quillet {
namespace {

std::int32_t g_nRegion = 0;

class FuzzHost : public TerminalHost {
 public:
  Answer ShowMessage(const std::string& /*sPrompt*/, int /*nButtons*/,
                     const std::string& /*sTitle*/) override {
    return Answer::Ok;
  }
  [[nodiscard]] const std::string& DecimalSeparator() const override { return m_sSeparator; }

  std::string m_sSeparator = ".";
};

FuzzHost& SharedHost() {
  static FuzzHost oHost;
  return oHost;
}

}  // namespace

std::int32_t RegionCode() {
  return g_nRegion;
}

void Require(bool bHolds) {
  if (!bHolds) {
    std::abort();
  }
}

std::string_view TakeSettings(const std::uint8_t* pData, std::size_t nSize) {
  SetHost(SharedHost());
  if (nSize == 0) {
    return {};
  }
  g_nRegion = pData[0] & 1U;
  SharedHost().m_sSeparator = (pData[0] & 2U) != 0 ? "," : ".";
  return {reinterpret_cast<const char*>(pData) + 1, nSize - 1};
}

void CalculateQuietly(clsCalculate& oAuction) {
  IgnoreFailure([&] { oAuction.DoCalc(); });
}

std::string Resaved(std::string sText) {
  clsCalculate oAuction;
  oAuction.Serialize(sText, false);
  std::string sSaved;
  oAuction.Serialize(sSaved, true);
  return sSaved;
}

}  // namespace quillet
