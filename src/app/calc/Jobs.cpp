#include "app/calc/Jobs.h"

#include <cstdlib>
#include <system_error>

#include "app/calc/Renderer.h"
#include "app/calc/Status.h"

namespace quillet {

namespace {
constexpr std::size_t kBatchesPerJob = 4;
}

Jobs::Jobs(const Options& oOptions, Auctions& oAuctions, Printer& oPrinter)
    : m_oOptions(oOptions),
      m_oAuctions(oAuctions),
      m_oPrinter(oPrinter),
      m_aoSlots(oOptions.nJobs * kBatchesPerJob),
      m_nMoreJobs(oOptions.nJobs - 1) {}

void Jobs::Run() {
  Work();
  for (std::thread& oThread : m_aoThreads) {
    oThread.join();
  }
}

/// After a failure the program ends here, since another job may be waiting for input that never
/// comes, and nothing could wake it.
void Jobs::Work() {
  try {
    Renderer oRenderer(m_oOptions);
    while (Slot* const pSlot = Take()) {
      oRenderer.Render(pSlot->oBatch);
      Finish(*pSlot);
    }
  } catch (...) {
    std::_Exit(StatusOfCaught());
  }
}

Jobs::Slot* Jobs::Take() {
  const std::scoped_lock oTaking(m_oTaking);
  if (m_bEnded) {
    return nullptr;
  }
  {
    std::unique_lock oLock(m_oPrinting);
    m_oRoom.wait(oLock, [this] { return m_nTaken - m_nPrinted < m_aoSlots.size(); });
  }
  Slot& oSlot = SlotOf(m_nTaken);
  m_bEnded = !m_oAuctions.Take(oSlot.oBatch);
  if (m_bEnded) {
    return nullptr;
  }
  if (m_nTaken > 0 && m_nMoreJobs > 0) {
    StartAnother();
  }
  ++m_nTaken;
  return &oSlot;
}

/// If the system has no more threads, those that run do all the work.
void Jobs::StartAnother() {
  try {
    m_aoThreads.emplace_back([this] { Work(); });
    --m_nMoreJobs;
  } catch (const std::system_error&) {
    m_nMoreJobs = 0;
  }
}

void Jobs::Finish(Slot& oSlot) {
  std::unique_lock oLock(m_oPrinting);
  oSlot.bReady = true;
  if (m_bPrinting) {
    return;  // the job that is printing gets to it
  }
  m_bPrinting = true;
  for (Slot* pNext = &SlotOf(m_nPrinted); pNext->bReady; pNext = &SlotOf(m_nPrinted)) {
    oLock.unlock();
    m_oPrinter.Print(pNext->oBatch);
    oLock.lock();
    pNext->bReady = false;
    ++m_nPrinted;
    m_oRoom.notify_one();
  }
  m_bPrinting = false;
}

}  // namespace quillet
