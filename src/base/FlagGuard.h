// A flag that is set while a routine runs.
#pragma once

namespace quillet {

/// Sets a flag for as long as it lives.
class FlagGuard {
 public:
  explicit FlagGuard(bool& bFlag) : m_bFlag(bFlag) { m_bFlag = true; }
  FlagGuard(const FlagGuard&) = delete;
  FlagGuard& operator=(const FlagGuard&) = delete;
  ~FlagGuard() { m_bFlag = false; }

 private:
  bool& m_bFlag;
};

}  // namespace quillet
