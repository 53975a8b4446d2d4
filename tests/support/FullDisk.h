// Simulates a full disk for this process.
#pragma once

#include <csignal>

#include <sys/resource.h>

namespace quillet {

/// Keeps every file of this process from growing beyond `nBytes`; `pAtTheEnd` handles the signal
/// raised by a write beyond that.
class FullDisk {
 public:
  explicit FullDisk(rlim_t nBytes, void (*pAtTheEnd)(int) = SIG_IGN)
      : m_pBefore(std::signal(SIGXFSZ, pAtTheEnd)) {
    ::getrlimit(RLIMIT_FSIZE, &m_oBefore);
    const rlimit oSmall{nBytes, m_oBefore.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &oSmall);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &m_oBefore);
    std::signal(SIGXFSZ, m_pBefore);
  }

 private:
  rlimit m_oBefore{};
  void (*m_pBefore)(int);
};

}  // namespace quillet
