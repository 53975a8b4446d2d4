// Threads that work on batches in parallel; the results come out in order.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <thread>
#include <vector>

#include "app/calc/Auctions.h"
#include "app/calc/Options.h"
#include "app/calc/Printer.h"

namespace quillet {

/// Each job takes a batch, works on it, and prints it when its turn has come, along with any after
/// it that are ready. The number of batches is fixed, so memory doesn't grow with the work.
class Jobs {
 public:
  /// All must live as long as this. The options' form must not be the automatic one.
  Jobs(const Options& oOptions, Auctions& oAuctions, Printer& oPrinter);

  /// Works on this thread too, and returns when everything is printed. A failure to print ends the
  /// program.
  void Run();

 private:
  struct Slot {
    Batch oBatch;
    bool bReady = false;  ///< to be printed; guarded by m_oPrinting
  };

  void Work();
  /// The next batch to work on; null if there are no more.
  Slot* Take();
  void StartAnother();
  void Finish(Slot& oSlot);
  Slot& SlotOf(std::size_t nBatch) { return m_aoSlots[nBatch % m_aoSlots.size()]; }

  const Options& m_oOptions;
  Auctions& m_oAuctions;
  Printer& m_oPrinter;
  std::vector<Slot> m_aoSlots;

  std::mutex m_oTaking;  ///< guards the auctions and the next four
  bool m_bEnded = false;
  std::size_t m_nTaken = 0;
  std::size_t m_nMoreJobs;  ///< that may be started
  std::vector<std::thread> m_aoThreads;

  std::mutex m_oPrinting;  ///< guards the next three; not held while a job prints
  std::condition_variable m_oRoom;
  std::size_t m_nPrinted = 0;
  bool m_bPrinting = false;
};

}  // namespace quillet
